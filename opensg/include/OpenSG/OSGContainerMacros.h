// SPDX-License-Identifier: MIT
// clang-format off
/// @file
/// How the classes of the bundled scene graph are declared. One field is one line.
/// (Lists of several lines need backslashes, which are left out in this comment.)
///
/// == Pointers: in OSG<Class>Fields.h or in the class's own header, in namespace osg
///
///     OSG_CONTAINER_POINTER(LineChunk, StateChunkPtr);
///
/// declares class LineChunk, LineChunkPtr, LineChunkRefPtr, SFLineChunkPtr and MFLineChunkPtr. It
/// may be repeated.
///
/// == Class: OSG<Class>.h
///
///     #define OSG_LINE_CHUNK_FIELDS(VALUE, OWNED, LINK)
///         VALUE(Width, width, Real32, 1.0F)
///         VALUE(Smooth, smooth, bool, false)
///
///     class LineChunk : public StateChunk
///     {
///         OSG_STATE_CHUNK(LineChunk, StateChunk, OSG_LINE_CHUNK_FIELDS);
///
///     public:
///         bool isTransparent() const override;
///     };
///
/// OSG_STATE_CHUNK is for chunks with a chunk class (a slot) of their own, OSG_CONTAINER for any
/// other class, OSG_ABSTRACT_CONTAINER for one that cannot be created (no `create`, no prototype).
/// OSG_NO_FIELDS is the empty list.
///
/// == Source: OSG<Class>.cpp, in namespace osg
///
///     OSG_STATE_CHUNK_TYPE(LineChunk, StateChunk);
///
/// or OSG_CONTAINER_TYPE, OSG_ABSTRACT_CONTAINER_TYPE; osgInit makes the type known to the factory
/// by name.
///
/// == What a class gets
///
/// `Inherited`, `Ptr`, `create()` (count 0), `getClassType()`, `getClassTypeId()`, `getType()`,
/// `shallowCopy()`, deep cloning, protected constructors and destructor, and per field the
/// enumerator XFieldId, the mask XFieldMask (1 << id; ids continue those of the base) and:
///
///     VALUE(Width, width, Real32, 1.0F)      a value with its start value
///         Real32& getWidth(), const Real32& getWidth() const, setWidth(const Real32&),
///         SFReal32* getSFWidth(); member sfWidth
///     OWNED(Image, image, ImagePtr)         +1 while held, -1 when replaced and with the
///         the same; no counting through         container's end; copied by deepClone
///         the reference
///     LINK(Beacon, beacon, NodePtr)         neither counted nor followed; null in a deepClone
///         the same
///
/// A class with multi fields writes a list of six and says OSG_MULTI_CONTAINER or
/// OSG_ABSTRACT_MULTI_CONTAINER (the ..._TYPE macros are the same):
///
///     #define OSG_CHUNK_MATERIAL_FIELDS(VALUE, OWNED, LINK, VALUES, OWNEDS, LINKS)
///         OWNEDS(Chunks, chunks, StateChunkPtr)
///         VALUES(Slots, slots, Int32)
///
///     VALUES(Slots, slots, Int32)           values
///         MField<Int32>* getMFSlots(), MField<Int32>& getSlots(), Int32& getSlots(UInt32 index),
///         the same const; member mfSlots
///     OWNEDS(Chunks, chunks, StateChunkPtr) each entry counted; the class adds and removes with
///         the same                              addOwned, eraseOwned, replaceOwned, clearOwned
///     LINKS(Port, port, ViewportPtr)        not counted; empty in a deepClone
///         the same
///
/// Setters are plain: they write at once, announce nothing and call no `changed`. A reaction to an
/// edit is an override of `changed(BitVector, UInt32)` that ends with Inherited::changed. What an
/// OWNED or OWNEDS entry points to is told by ownerAdded and ownerRemoved (see FieldContainer). A
/// class that nothing drawn depends on (cameras, viewports) overrides noteEdit with an empty body.
/// Further data members need start values where they are declared; a copy starts with those.
/// The names of the field types (SFReal32, MFPnt3f ...) come with the header of every class.
#pragma once

#include <OpenSG/OSGContainerCloner.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGFieldTypes.h>
#include <OpenSG/OSGOwnedFields.h>
#include <OpenSG/OSGRefPtr.h>

#define OSG_NO_FIELDS(VALUE, OWNED, LINK)

#define OSG_CONTAINER_POINTER(Class, BasePtr)                                                      \
    class Class;                                                                                   \
    typedef FCPtr<BasePtr, Class> Class##Ptr;                                                      \
    typedef RefPtr<Class##Ptr> Class##RefPtr;                                                      \
    typedef SField<Class##Ptr> SF##Class##Ptr;                                                     \
    typedef MField<Class##Ptr> MF##Class##Ptr

#define OSG_CONTAINER(Class, Base, FIELDS) OSG_CONCRETE_(Class, Base, FIELDS, OSG_LIST_3_)
#define OSG_MULTI_CONTAINER(Class, Base, FIELDS) OSG_CONCRETE_(Class, Base, FIELDS, OSG_LIST_6_)
#define OSG_ABSTRACT_CONTAINER(Class, Base, FIELDS) OSG_COMMON_(Class, Base, FIELDS, OSG_LIST_3_)
#define OSG_ABSTRACT_MULTI_CONTAINER(Class, Base, FIELDS)                                          \
    OSG_COMMON_(Class, Base, FIELDS, OSG_LIST_6_)
#define OSG_STATE_CHUNK(Class, Base, FIELDS)                                                       \
    OSG_CONCRETE_(Class, Base, FIELDS, OSG_LIST_3_);                                               \
    OSG_CHUNK_CLASS_

#define OSG_CONTAINER_TYPE(Class, Base)                                                            \
    osg::FieldContainerType Class::classType(#Class, &Base::getClassType(), &Class::createAny)
#define OSG_ABSTRACT_CONTAINER_TYPE(Class, Base)                                                   \
    osg::FieldContainerType Class::classType(#Class, &Base::getClassType(), nullptr)
#define OSG_STATE_CHUNK_TYPE(Class, Base)                                                          \
    OSG_CONTAINER_TYPE(Class, Base);                                                               \
    osg::StateChunkClass Class::chunkClass(const_cast<osg::Char8*>(#Class))

// == What the macros above are made of

// Hands a field list of three or six kinds of entries the macro for each kind.
#define OSG_LIST_3_(FIELDS, V, O, L, VS, OS, LS) FIELDS(V, O, L)
#define OSG_LIST_6_(FIELDS, V, O, L, VS, OS, LS) FIELDS(V, O, L, VS, OS, LS)

// A class and its type, without fields; for classes that write their fields by hand.
#define OSG_TYPE_ACCESS_(Class, Base)                                                              \
public:                                                                                            \
    typedef Base Inherited;                                                                        \
    typedef Class##Ptr Ptr;                                                                        \
    static osg::FieldContainerType& getClassType() { return classType; }                           \
    static osg::UInt32 getClassTypeId() { return classType.getId(); }                              \
    osg::FieldContainerType& getType() override { return classType; }                              \
    const osg::FieldContainerType& getType() const override { return classType; }                  \
                                                                                                   \
private:                                                                                           \
    static osg::FieldContainerType classType

// Creation of a class that is not abstract.
#define OSG_CREATION_(Class)                                                                       \
public:                                                                                            \
    static Ptr create() { return Ptr(new Class); }                                                 \
    osg::FieldContainerPtr shallowCopy() const override                                            \
    {                                                                                              \
        return osg::FieldContainerPtr(new Class(*this));                                           \
    }                                                                                              \
                                                                                                   \
private:                                                                                           \
    static osg::FieldContainerPtr createAny() { return create(); }                                 \
    static_assert(true)

#define OSG_CONCRETE_(Class, Base, FIELDS, LIST)                                                   \
    OSG_COMMON_(Class, Base, FIELDS, LIST);                                                        \
    OSG_CREATION_(Class)

#define OSG_COMMON_(Class, Base, FIELDS, LIST)                                                     \
    OSG_TYPE_ACCESS_(Class, Base);                                                                 \
                                                                                                   \
public:                                                                                            \
    enum {                                                                                         \
        Class##LastInheritedFieldId = Inherited::NextFieldId - 1,                                  \
        OSG_ALL_(FIELDS, LIST, OSG_FIELD_ID_)                                                      \
        NextFieldId                                                                                \
    };                                                                                             \
    OSG_ALL_(FIELDS, LIST, OSG_FIELD_MASK_)                                                        \
    LIST(FIELDS, OSG_VALUE_ACCESS_, OSG_OWNED_ACCESS_, OSG_LINK_ACCESS_, OSG_MULTI_ACCESS_,        \
         OSG_MULTI_ACCESS_, OSG_MULTI_ACCESS_)                                                     \
    void cloneReferences([[maybe_unused]] osg::ContainerCloner& cloner) override                   \
    {                                                                                              \
        Inherited::cloneReferences(cloner);                                                        \
        LIST(FIELDS, OSG_NOTHING_, OSG_OWNED_CLONE_, OSG_LINK_CLONE_, OSG_NOTHING_,                \
             OSG_OWNEDS_CLONE_, OSG_LINKS_CLONE_)                                                  \
    }                                                                                              \
                                                                                                   \
protected:                                                                                         \
    Class() {}                                                                                     \
    Class(const Class& source)                                                                     \
        : Inherited(source) LIST(FIELDS, OSG_SF_COPY_, OSG_SF_COPY_, OSG_SF_COPY_, OSG_MF_COPY_,   \
                                 OSG_MF_COPY_, OSG_MF_COPY_)                                       \
    {                                                                                              \
        LIST(FIELDS, OSG_NOTHING_, OSG_OWNED_COUNT_, OSG_NOTHING_, OSG_NOTHING_,                   \
             OSG_OWNEDS_COUNT_, OSG_NOTHING_)                                                      \
    }                                                                                              \
    ~Class() override                                                                              \
    {                                                                                              \
        LIST(FIELDS, OSG_NOTHING_, OSG_OWNED_RELEASE_, OSG_NOTHING_, OSG_NOTHING_,                 \
             OSG_OWNEDS_RELEASE_, OSG_NOTHING_)                                                    \
    }                                                                                              \
    LIST(FIELDS, OSG_VALUE_MEMBER_, OSG_SF_MEMBER_, OSG_SF_MEMBER_, OSG_MF_MEMBER_,                \
         OSG_MF_MEMBER_, OSG_MF_MEMBER_)                                                           \
                                                                                                   \
private:                                                                                           \
    static_assert(true)

#define OSG_ALL_(FIELDS, LIST, X) LIST(FIELDS, X, X, X, X, X, X)

#define OSG_CHUNK_CLASS_                                                                           \
public:                                                                                            \
    const osg::StateChunkClass* getClass() const override { return &chunkClass; }                  \
    static const osg::StateChunkClass* getStaticClass() { return &chunkClass; }                    \
    static osg::UInt32 getStaticClassId() { return chunkClass.getId(); }                           \
                                                                                                   \
private:                                                                                           \
    static osg::StateChunkClass chunkClass

// == What the entries of a field list become in each place

#define OSG_NOTHING_(...)
#define OSG_FIELD_ID_(Name, ...) Name##FieldId,
#define OSG_FIELD_MASK_(Name, ...)                                                                 \
    static constexpr osg::BitVector Name##FieldMask = osg::BitVector(1) << Name##FieldId;
#define OSG_SF_COPY_(Name, ...) , sf##Name(source.sf##Name)
#define OSG_MF_COPY_(Name, ...) , mf##Name(source.mf##Name)

#define OSG_SF_ACCESS_(Name, Type)                                                                 \
    osg::SField<Type>* getSF##Name() { return &sf##Name; }                                         \
    const osg::SField<Type>* getSF##Name() const { return &sf##Name; }                             \
    Type& get##Name() { return sf##Name.getValue(); }                                              \
    const Type& get##Name() const { return sf##Name.getValue(); }
#define OSG_VALUE_ACCESS_(Name, name, Type, Start)                                                 \
    OSG_SF_ACCESS_(Name, Type)                                                                     \
    void set##Name(const Type& value) { sf##Name.setValue(value); }
#define OSG_OWNED_ACCESS_(Name, name, Type)                                                        \
    OSG_SF_ACCESS_(Name, Type)                                                                     \
    void set##Name(const Type& value) { osg::setOwned(sf##Name, value, *this); }
#define OSG_LINK_ACCESS_(Name, name, Type)                                                         \
    OSG_SF_ACCESS_(Name, Type)                                                                     \
    void set##Name(const Type& value) { sf##Name.setValue(value); }
#define OSG_MULTI_ACCESS_(Name, name, Type)                                                        \
    osg::MField<Type>* getMF##Name() { return &mf##Name; }                                         \
    const osg::MField<Type>* getMF##Name() const { return &mf##Name; }                             \
    osg::MField<Type>& get##Name() { return mf##Name; }                                            \
    const osg::MField<Type>& get##Name() const { return mf##Name; }                                \
    Type& get##Name(const osg::UInt32 index) { return mf##Name[index]; }                           \
    const Type& get##Name(const osg::UInt32 index) const { return mf##Name[index]; }

#define OSG_OWNED_COUNT_(Name, ...) osg::countOwned(sf##Name.getValue(), *this);
#define OSG_OWNED_RELEASE_(Name, ...) osg::releaseOwned(sf##Name.getValue(), *this);
#define OSG_OWNEDS_COUNT_(Name, ...) osg::countAllOwned(mf##Name, *this);
#define OSG_OWNEDS_RELEASE_(Name, ...) osg::clearOwned(mf##Name, *this);

#define OSG_OWNED_CLONE_(Name, ...)                                                                \
    osg::setOwned(sf##Name, cloner.copyOf(sf##Name.getValue()), *this);
#define OSG_LINK_CLONE_(Name, ...) sf##Name.setValue(osg::NullFC);
#define OSG_OWNEDS_CLONE_(Name, ...) osg::cloneAllOwned(mf##Name, cloner, *this);
#define OSG_LINKS_CLONE_(Name, ...) mf##Name.clear();

#define OSG_VALUE_MEMBER_(Name, name, Type, Start)                                                 \
    osg::SField<Type> sf##Name = osg::SField<Type>(Type(Start));
#define OSG_SF_MEMBER_(Name, name, Type) osg::SField<Type> sf##Name;
#define OSG_MF_MEMBER_(Name, name, Type) osg::MField<Type> mf##Name;

// clang-format on
