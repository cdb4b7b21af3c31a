// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGBaseTypes.h>

namespace osg {
class FieldContainer;

class NullFieldContainerPtr
{ };

extern const NullFieldContainerPtr NullFC;

struct FieldBits
{
    static const BitVector NoField;
    static const BitVector AllFields;
};

struct ChangedOrigin
{
    enum
    {
        Abstract = 0x01,
        Sync = 0x02,
        Child = 0x04,
        External = 0x08
    };
};

class FieldContainerPtr
{
public:
    typedef FieldContainer StoredObjectType;
    typedef UInt8* FieldContainerPtr::*unspecified_bool_type;
    template <class Pointer>
    static FieldContainerPtr dcast(const Pointer& source);
    FieldContainerPtr();
    FieldContainerPtr(const NullFieldContainerPtr&);
    FieldContainerPtr(const FieldContainerPtr& source);
    explicit FieldContainerPtr(const FieldContainer& source);
    explicit FieldContainerPtr(const FieldContainer* source);
    void operator=(const NullFieldContainerPtr&);
    void operator=(const FieldContainerPtr& source);
    FieldContainer* operator->() const;
    FieldContainer& operator*() const;
    FieldContainer* getCPtr() const;
    Int32 getRefCount() const;
    UInt32 getFieldContainerId() const;
    bool operator<(const FieldContainerPtr& other) const;
    bool operator==(const FieldContainerPtr& other) const;
    bool operator!=(const FieldContainerPtr& other) const;
    bool operator==(const NullFieldContainerPtr&) const;
    bool operator!=(const NullFieldContainerPtr&) const;
    bool operator!() const;
    operator unspecified_bool_type() const;
};

bool operator==(const NullFieldContainerPtr&, const FieldContainerPtr& pointer);
bool operator!=(const NullFieldContainerPtr&, const FieldContainerPtr& pointer);

template <class Base, class Object>
class FCPtr : public Base
{
public:
    typedef Object StoredObjectType;
    template <class Pointer>
    static FCPtr dcast(const Pointer& source);
    FCPtr();
    FCPtr(const NullFieldContainerPtr&);
    FCPtr(const FCPtr& source);
    explicit FCPtr(const Object& source);
    explicit FCPtr(const Object* source);
    void operator=(const NullFieldContainerPtr&);
    void operator=(const FCPtr& source);
    Object* operator->() const;
    Object& operator*() const;
    Object* getCPtr() const;
};

void addRefCP(const FieldContainerPtr& container);
void subRefCP(const FieldContainerPtr& container);
void subRefCP(FieldContainerPtr& container);
void clearRefCP(FieldContainerPtr& container);
template <class Pointer>
void setRefdCP(Pointer& variable, const Pointer& value);
void beginEditCP(const FieldContainerPtr& container, BitVector mask = FieldBits::AllFields,
                 UInt32 origin = ChangedOrigin::External);
void endEditCP(const FieldContainerPtr& container, BitVector mask = FieldBits::AllFields,
               UInt32 origin = ChangedOrigin::External);
void endEditNotChangedCP(const FieldContainerPtr& container, BitVector mask = FieldBits::AllFields,
                         UInt32 origin = ChangedOrigin::External);
void changedCP(const FieldContainerPtr& container, BitVector mask = FieldBits::AllFields,
               UInt32 origin = ChangedOrigin::External);
}  // namespace osg
