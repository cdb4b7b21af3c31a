// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGIDString.h>

namespace osg {

/// The type of a container class, one static object per class. The parent is given by address, so
/// that types may be constructed in any order; isDerivedFrom works from then on. Name look-up and
/// the prototype come with osgInit, or with FieldContainerFactory::initializePendingTypes.
/// Left out of real OpenSG: field descriptions, groups of types, initialisation methods.
class FieldContainerType
{
public:
    /// Makes a container of the type with start values and count 0.
    using PrototypeCreateF = FieldContainerPtr (*)();

    /// @param className   text that outlives the type
    /// @param parentType  type of the base class, null at the top
    /// @param creator     null for an abstract class
    FieldContainerType(const Char8* className, FieldContainerType* parentType,
                       PrototypeCreateF creator);

    /// Takes the type out of the factory and destroys its prototype.
    ~FieldContainerType();

    FieldContainerType(const FieldContainerType&) = delete;
    FieldContainerType& operator=(const FieldContainerType&) = delete;

    /// Unique in the process, from 1 in the order of construction.
    UInt32 getId() const { return id; }

    /// Key of an attachment in a container: each attachment class has a group of its own.
    UInt32 getGroupId() const { return id; }

    const Char8* getCName() const { return name; }

    IDString getName() const { return IDString(name); }

    /// Null at the top.
    FieldContainerType* getParent() const { return parent; }

    /// True for the type itself and for every type below the other.
    bool isDerivedFrom(const FieldContainerType& other) const
    {
        const FieldContainerType* type = this;
        while (type != nullptr && type != &other) {
            type = type->parent;
        }
        return type != nullptr;
    }

    bool isAbstract() const { return createPrototype == nullptr; }

    bool isNode() const;
    bool isNodeCore() const;
    bool isAttachment() const;

    /// A container with start values; null for an abstract type and before osgInit.
    FieldContainerPtr getPrototype() const { return prototype; }

    /// A new container with count 0; null if the type is abstract.
    FieldContainerPtr createContainer() const;

    friend bool operator==(const FieldContainerType& a, const FieldContainerType& b)
    {
        return &a == &b;
    }

    friend bool operator!=(const FieldContainerType& a, const FieldContainerType& b)
    {
        return &a != &b;
    }

private:
    friend class FieldContainerFactory;

    const Char8* name;
    FieldContainerType* parent;
    PrototypeCreateF createPrototype;
    FieldContainerPtr prototype;
    UInt32 id;
    FieldContainerType* nextPending = nullptr;
};

}  // namespace osg
