// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGRefPtr.h>

// How the classes below are declared; no names of OpenSG.
#define OSG_DECLARED_POINTER(Class, BasePtr)                                                       \
    class Class;                                                                                   \
    typedef FCPtr<BasePtr, Class> Class##Ptr;                                                      \
    OSG_DECLARED_FIELDS(Class)
#define OSG_DECLARED_POINTER_CLASS(Class, BasePtr)                                                 \
    class Class;                                                                                   \
    class Class##Ptr : public FCPtr<BasePtr, Class>                                                \
    {                                                                                              \
    public:                                                                                        \
        template <class Pointer>                                                                   \
        static Class##Ptr dcast(const Pointer& source);                                            \
        Class##Ptr();                                                                              \
        Class##Ptr(const NullFieldContainerPtr&);                                                  \
        Class##Ptr(const Class##Ptr& source);                                                      \
        explicit Class##Ptr(const Class& source);                                                  \
        explicit Class##Ptr(const Class* source);                                                  \
        void operator=(const NullFieldContainerPtr&);                                              \
        void operator=(const Class##Ptr& source);                                                  \
    };                                                                                             \
    OSG_DECLARED_FIELDS(Class)
#define OSG_DECLARED_FIELDS(Class)                                                                 \
    typedef RefPtr<Class##Ptr> Class##RefPtr;                                                      \
    typedef SField<Class##Ptr> SF##Class##Ptr;                                                     \
    typedef MField<Class##Ptr> MF##Class##Ptr
#define OSG_DECLARED_TYPE(Class, Base)                                                             \
public:                                                                                            \
    typedef Base Inherited;                                                                        \
    typedef Class##Ptr Ptr;                                                                        \
    static FieldContainerType& getClassType();                                                     \
    static UInt32 getClassTypeId();                                                                \
    FieldContainerType& getType() override;                                                        \
    const FieldContainerType& getType() const override;                                            \
    UInt32 getContainerSize() const override;                                                      \
    FieldContainerPtr shallowCopy() const override;                                                \
                                                                                                   \
protected:                                                                                         \
    Class();                                                                                       \
    Class(const Class& source);                                                                    \
    ~Class() override;                                                                             \
                                                                                                   \
public:
#define OSG_DECLARED_CLASS(Class, Base)                                                            \
    OSG_DECLARED_TYPE(Class, Base)                                                                 \
    static Class##Ptr create();
#define OSG_DECLARED_MASK(Name) static const BitVector Name##FieldMask;
#define OSG_DECLARED_VALUE(Name, Type)                                                             \
    OSG_DECLARED_MASK(Name)                                                                        \
    SField<Type>* getSF##Name();                                                                   \
    Type& get##Name();                                                                             \
    const Type& get##Name() const;                                                                 \
    void set##Name(const Type& value);
#define OSG_DECLARED_VALUES(Name, Type)                                                            \
    OSG_DECLARED_MASK(Name)                                                                        \
    MField<Type>* getMF##Name();                                                                   \
    MField<Type>& get##Name();                                                                     \
    const MField<Type>& get##Name() const;                                                         \
    MField<Type>::reference get##Name(UInt32 index);

namespace osg {
class FieldContainer
{
public:
    enum
    {
        NextFieldId = 1
    };

    static FieldContainerType& getClassType();
    static UInt32 getClassTypeId();
    virtual FieldContainerType& getType();
    virtual const FieldContainerType& getType() const;
    const Char8* getTypeName() const;
    UInt32 getTypeId() const;
    virtual UInt32 getContainerSize() const = 0;
    virtual FieldContainerPtr shallowCopy() const = 0;
    virtual void changed(BitVector whichField, UInt32 origin);
    virtual void dump(UInt32 indent = 0, const BitVector flags = 0) const = 0;
    virtual void executeSync(FieldContainer& other, const BitVector& whichField);

protected:
    FieldContainer();
    FieldContainer(const FieldContainer& source);
    virtual ~FieldContainer();
    template <class Pointer>
    static void newPtr(Pointer& result);
    template <class Pointer>
    static void newPtr(Pointer& result, const typename Pointer::StoredObjectType* prototype);
};
}  // namespace osg
