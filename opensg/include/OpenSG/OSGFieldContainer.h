// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGGL.h>

namespace osg {

class ContainerCloner;

/// Base of everything that is counted, has an id and a type and can be edited.
/// Made by the create function of the class, destroyed by subRefCP; lives on the heap.
/// Left out of real OpenSG: aspects, executeSync, access to fields by description, binary size,
/// dump.
class FieldContainer
{
public:
    using Ptr = FieldContainerPtr;

    enum
    {
        NextFieldId = 1
    };

    static FieldContainerType& getClassType() { return classType; }

    static UInt32 getClassTypeId();

    virtual FieldContainerType& getType() { return classType; }

    virtual const FieldContainerType& getType() const { return classType; }

    const Char8* getTypeName() const;

    UInt32 getTypeId() const;

    /// A container of the same class with equal fields; counted pointer fields are counted once
    /// more. Count 0.
    virtual FieldContainerPtr shallowCopy() const = 0;

    /// Called when an edit ends, with the mask of the fields that the edit names. Overrides end
    /// with Inherited::changed.
    virtual void changed(BitVector /*whichField*/, UInt32 /*origin*/) { }

    /// See FieldContainerPtr.
    Int32 getRefCount() const { return refCount; }

    UInt32 getFieldContainerId() const { return id; }

    /// A container begins to hold this one in a counted field. For classes that know who uses them
    /// (geometry properties); called by the field machinery.
    virtual void ownerAdded(FieldContainer& owner);

    /// The container gives this one up, or dies.
    virtual void ownerRemoved(FieldContainer& owner);

    /// Copies or drops what the pointers of a fresh deep copy refer to; generated per class.
    virtual void cloneReferences(ContainerCloner& cloner);

    FieldContainer& operator=(const FieldContainer&) = delete;

protected:
    FieldContainer();

    /// Copies have an id and counts of their own.
    FieldContainer(const FieldContainer& source);

    virtual ~FieldContainer();

    /// Part of an ended edit: tells the change counters outside this container. The base counts a
    /// shared change (see getTreeChangeCount); nodes and cores count along their ancestors instead;
    /// classes that nothing drawn depends on, such as cameras, do nothing.
    virtual void noteEdit();

private:
    friend void addRefCP(const FieldContainerPtr& container);
    friend void subRefCP(const FieldContainerPtr& container);
    friend void subRefCP(FieldContainerPtr& container);
    friend UInt32 getChangeCount(const FieldContainerPtr& container);
    friend void changedCP(const FieldContainerPtr& container, BitVector whichField, UInt32 origin);

    bool releaseOne();
    static void destroy(FieldContainer* container);

    static FieldContainerType classType;

    Int32 refCount = 0;
    UInt32 id = 0;
    UInt32 changeCount = 0;
    bool dying = false;
};

inline Int32 FieldContainerPtr::getRefCount() const
{
    return target != nullptr ? target->getRefCount() : 0;
}

inline UInt32 FieldContainerPtr::getFieldContainerId() const
{
    return target->getFieldContainerId();
}

}  // namespace osg
