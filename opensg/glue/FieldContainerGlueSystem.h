// SPDX-License-Identifier: MIT
/// @file
/// The side of FieldContainerGlue.h for a real OpenSG 1.8. Fields are not written to files and,
/// apart from threads' aspects, not synchronised.
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGDrawAction.h>
#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGFieldDescription.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGIntersectAction.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGRenderAction.h>
#include <OpenSG/OSGSFBaseTypes.h>
#include <OpenSG/OSGSFMathTypes.h>
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGSFVecTypes.h>
#include <OpenSG/OSGSField.h>
#include <OpenSG/OSGStateChunk.h>
#include <OpenSG/OSGTransform.h>

#include <type_traits>

namespace osg {
namespace glue {

/// The field class for a type of value.
template <class Value>
struct FieldOf
{
    typedef SField<Value> Single;
};

/// OpenSG keeps bool in a field class of its own.
template <>
struct FieldOf<bool>
{
    typedef SFBool Single;
};

/// Reaches the protected traversal functions of a core. Never instantiated.
template <class Core>
struct TraversalOf : public Core
{
    typedef Action::ResultE (Core::*Method)(Action*);

    static Action::Functor functor(Method method)
    {
        return osgTypedMethodFunctor2BaseCPtrRef<Action::ResultE, typename Core::Ptr, CNodePtr,
                                                 Action*>(method);
    }

    /// Has the core entered and left as its base is. OpenSG 1.8 looks the functions of a traversal
    /// up by the exact type of the core; a core without an entry is passed like a group: its
    /// children are visited, its matrix is not applied.
    static void registerFunctors()
    {
        const FieldContainerType& type = Core::getClassType();
        DrawAction::registerEnterDefault(type, functor(&TraversalOf::drawEnter));
        DrawAction::registerLeaveDefault(type, functor(&TraversalOf::drawLeave));
        RenderAction::registerEnterDefault(type, functor(&TraversalOf::renderEnter));
        RenderAction::registerLeaveDefault(type, functor(&TraversalOf::renderLeave));
        if constexpr (std::is_base_of_v<Transform, Core>) {
            IntersectAction::registerEnterDefault(type, functor(&TraversalOf::intersectEnter));
            IntersectAction::registerLeaveDefault(type, functor(&TraversalOf::intersectLeave));
        } else {
            IntersectAction::registerEnterDefault(type, functor(&TraversalOf::intersect));
        }
    }
};

/// Runs once, when OpenSG sets the type up.
template <class Container>
void initType()
{
    if constexpr (std::is_base_of_v<Group, Container>) {
        TraversalOf<Container>::registerFunctors();
    }
}

/// Replaces the container that a counted field holds.
template <class Pointer>
void setOwned(SField<Pointer>& field, const Pointer& value)
{
    Pointer old = field.getValue();
    if (old == value) {
        return;
    }
    addRefCP(value);
    field.setValue(value);
    subRefCP(old);
}

}  // namespace glue
}  // namespace osg

// clang-format off

#define NB_NO_FIELDS(VALUE, OWNED, LINK)

/// Declares the class and its pointers, which may be the type of OWNED and LINK fields.
#define NB_CONTAINER_POINTER(Class, BasePtr)                                                       \
    class Class;                                                                                   \
    typedef FCPtr<BasePtr, Class> Class##Ptr;                                                      \
    typedef RefPtr<Class##Ptr> Class##RefPtr;                                                      \
    template <>                                                                                    \
    struct __attribute__((visibility("default"))) FieldDataTraits<Class##Ptr>                      \
        : public FieldTraitsRecurseMapper<Class##Ptr, true>         \
    {                                                                                              \
        enum { StringConvertable = 0x00, bHasParent = 0x01 };                                      \
        static inline DataType _type{#Class "Ptr", #BasePtr};                                      \
        static DataType& getType() { return _type; }                                               \
        static const char* getSName() { return "SF" #Class "Ptr"; }                                \
        static const char* getMName() { return "MF" #Class "Ptr"; }                                \
    };                                                                                             \
    template <>                                                                                    \
    const FieldType SField<Class##Ptr, 0>::_fieldType;                                             \
    typedef SField<Class##Ptr> SF##Class##Ptr

/// First line of the class.
#define NB_CONTAINER(Class, Base, FIELDS)                                                          \
public:                                                                                            \
    typedef Base Inherited;                                                                        \
    typedef Class##Ptr Ptr;                                                                        \
    enum {                                                                                         \
        Class##LastInheritedFieldId = Inherited::NextFieldId - 1,                                  \
        FIELDS(NB_FIELD_ID_, NB_FIELD_ID_, NB_FIELD_ID_)                                           \
        NextFieldId                                                                                \
    };                                                                                             \
    FIELDS(NB_FIELD_MASK_, NB_FIELD_MASK_, NB_FIELD_MASK_)                                         \
    static osg::FieldContainerType& getClassType() { return _type; }                               \
    static osg::UInt32 getClassTypeId() { return _type.getId(); }                                  \
    osg::FieldContainerType& getType() override { return _type; }                                  \
    const osg::FieldContainerType& getType() const override { return _type; }                      \
    osg::UInt32 getContainerSize() const override { return sizeof(Class); }                        \
    void dump(osg::UInt32 = 0, const osg::BitVector = 0) const override {}                         \
    static Ptr create()                                                                            \
    {                                                                                              \
        Ptr result;                                                                                \
        if (_type.getPrototype() != osg::NullFC) {                                                 \
            result = Ptr::dcast(_type.getPrototype()->shallowCopy());                              \
        }                                                                                          \
        return result;                                                                             \
    }                                                                                              \
    static Ptr createEmpty()                                                                       \
    {                                                                                              \
        Ptr result;                                                                                \
        newPtr(result);                                                                            \
        return result;                                                                             \
    }                                                                                              \
    osg::FieldContainerPtr shallowCopy() const override                                            \
    {                                                                                              \
        Ptr result;                                                                                \
        newPtr(result, this);                                                                      \
        return result;                                                                             \
    }                                                                                              \
    FIELDS(NB_VALUE_ACCESS_, NB_OWNED_ACCESS_, NB_LINK_ACCESS_)                                    \
                                                                                                   \
protected:                                                                                         \
    friend class osg::FieldContainer;                                                              \
    friend class osg::FieldContainerType;                                                          \
    template <class, class>                                                                        \
    friend class osg::FCPtr;                                                                       \
    Class() {}                                                                                     \
    Class(const Class& source)                                                                     \
        : Inherited(source) FIELDS(NB_FIELD_COPY_, NB_FIELD_COPY_, NB_FIELD_COPY_)                 \
    {                                                                                              \
        FIELDS(NB_NOTHING_, NB_OWNED_COUNT_, NB_NOTHING_)                                          \
    }                                                                                              \
    ~Class() override { FIELDS(NB_NOTHING_, NB_OWNED_RELEASE_, NB_NOTHING_) }                      \
    NB_SYNC_(FIELDS)                                                                               \
                                                                                                   \
private:                                                                                           \
    typedef Class Self;                                                                            \
    void operator=(const Class&) = delete;                                                         \
    static osg::FieldContainerPtr createPrototype() { return createEmpty(); }                      \
    FIELDS(NB_VALUE_MEMBER_, NB_POINTER_MEMBER_, NB_POINTER_MEMBER_)                               \
    static osg::FieldDescription* _desc[];                                                         \
    static osg::FieldContainerType _type

/// In one source file.
#define NB_CONTAINER_TYPE(Class, Base, FIELDS)                                                     \
    template <>                                                                                    \
    const FieldType SField<Class##Ptr, 0>::_fieldType(                                             \
        SFieldTraits::getSName(), SFieldTraits::getPName(), SFieldTraits::getType(),               \
        SField<Class##Ptr, 0>::create, FieldType::SINGLE_FIELD);                                   \
    FieldDescription* Class::_desc[] = {                                                           \
        FIELDS(NB_VALUE_DESCRIPTION_, NB_OWNED_DESCRIPTION_, NB_LINK_DESCRIPTION_) NULL};          \
    FieldContainerType Class::_type(#Class, #Base, NULL, &Class::createPrototype,                  \
                                    &glue::initType<Class>, Class::_desc,                          \
                                    sizeof(Class::_desc) - sizeof(FieldDescription*))

/// First line of a state chunk.
#define NB_STATE_CHUNK(Class, Base, FIELDS)                                                        \
    NB_CONTAINER(Class, Base, FIELDS);                                                             \
                                                                                                   \
public:                                                                                            \
    const osg::StateChunkClass* getClass() const override { return &_class; }                      \
    static const osg::StateChunkClass* getStaticClass() { return &_class; }                        \
    static osg::UInt32 getStaticClassId() { return _class.getId(); }                               \
                                                                                                   \
private:                                                                                           \
    static osg::StateChunkClass _class

/// In one source file.
#define NB_STATE_CHUNK_TYPE(Class, Base, FIELDS)                                                   \
    NB_CONTAINER_TYPE(Class, Base, FIELDS);                                                        \
    StateChunkClass Class::_class(const_cast<Char8*>(#Class))

// What the entries of a field list become in each place.
#define NB_NOTHING_(...)
#define NB_FIELD_ID_(Name, ...) Name##FieldId,
#define NB_FIELD_MASK_(Name, ...)                                                                  \
    static constexpr osg::BitVector Name##FieldMask = osg::BitVector(1) << Name##FieldId;
#define NB_FIELD_COPY_(Name, ...) , _sf##Name(source._sf##Name)
#define NB_FIELD_SYNC_(Name, ...)                                                                  \
    if (whichField & Name##FieldMask) {                                                            \
        _sf##Name.syncWith(static_cast<Self&>(other)._sf##Name);                                   \
    }
#define NB_SF_(Type) osg::glue::FieldOf<Type>::Single
#define NB_SF_ACCESS_(Name, Type)                                                                  \
    NB_SF_(Type)* getSF##Name() { return &_sf##Name; }                                             \
    osg::Field* field##Name() { return &_sf##Name; }
#define NB_VALUE_ACCESS_(Name, name, Type, Start)                                                  \
    NB_SF_ACCESS_(Name, Type)                                                                      \
    Type& get##Name() { return _sf##Name.getValue(); }                                             \
    const Type& get##Name() const { return _sf##Name.getValue(); }                                 \
    void set##Name(const Type& value) { _sf##Name.setValue(value); }
#define NB_OWNED_ACCESS_(Name, name, Type)                                                         \
    NB_SF_ACCESS_(Name, Type)                                                                      \
    Type& get##Name() { return _sf##Name.getValue(); }                                             \
    const Type& get##Name() const { return _sf##Name.getValue(); }                                 \
    void set##Name(const Type& value) { osg::glue::setOwned(_sf##Name, value); }
#define NB_LINK_ACCESS_(Name, name, Type)                                                          \
    NB_SF_ACCESS_(Name, Type)                                                                      \
    Type& get##Name() { return _sf##Name.getValue(); }                                             \
    const Type& get##Name() const { return _sf##Name.getValue(); }                                 \
    void set##Name(const Type& value) { _sf##Name.setValue(value); }
#define NB_OWNED_COUNT_(Name, ...) osg::addRefCP(_sf##Name.getValue());
#define NB_OWNED_RELEASE_(Name, ...) osg::subRefCP(_sf##Name.getValue());
#define NB_VALUE_MEMBER_(Name, name, Type, Start)                                                  \
    NB_SF_(Type) _sf##Name = NB_SF_(Type)(Type(Start));
#define NB_POINTER_MEMBER_(Name, name, Type) NB_SF_(Type) _sf##Name;
#define NB_VALUE_DESCRIPTION_(Name, name, Type, Start) NB_DESCRIPTION_(Name, name, Type, false)
#define NB_OWNED_DESCRIPTION_(Name, name, Type) NB_DESCRIPTION_(Name, name, Type, false)
#define NB_LINK_DESCRIPTION_(Name, name, Type) NB_DESCRIPTION_(Name, name, Type, true)
#define NB_DESCRIPTION_(Name, name, Type, internal)                                                \
    new FieldDescription(NB_SF_(Type)::getClassType(), #name, Name##FieldId, Name##FieldMask,      \
                         internal, static_cast<FieldAccessMethod>(&Self::field##Name)),

// Copies changed fields between the aspects of threads; OpenSG was built with one of two forms.
#if defined(OSG_FIXED_MFIELDSYNC)
#define NB_SYNC_(FIELDS)                                                                           \
    void executeSync(osg::FieldContainer& other, const osg::BitVector& whichField,                 \
                     const osg::SyncInfo& info) override                                           \
    {                                                                                              \
        Inherited::executeSync(other, whichField, info);                                           \
        FIELDS(NB_FIELD_SYNC_, NB_FIELD_SYNC_, NB_FIELD_SYNC_)                                     \
    }
#else
#define NB_SYNC_(FIELDS)                                                                           \
    void executeSync(osg::FieldContainer& other, const osg::BitVector& whichField) override        \
    {                                                                                              \
        Inherited::executeSync(other, whichField);                                                 \
        FIELDS(NB_FIELD_SYNC_, NB_FIELD_SYNC_, NB_FIELD_SYNC_)                                     \
    }
#endif

// clang-format on
