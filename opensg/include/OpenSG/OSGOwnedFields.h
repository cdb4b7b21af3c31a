// SPDX-License-Identifier: MIT
/// @file
/// Counting of what pointer fields hold. Used by OSGContainerMacros.h and by classes with fields of
/// several counted pointers.
#pragma once

#include <OpenSG/OSGContainerCloner.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGSField.h>

namespace osg {

/// The owner holds the value from now on. Null is accepted.
void countOwned(const FieldContainerPtr& value, FieldContainer& owner);

/// The owner gives the value up. Null is accepted.
void releaseOwned(const FieldContainerPtr& value, FieldContainer& owner);

/// Replaces what a counted field holds; the old value may be destroyed.
template <class Pointer>
void setOwned(SField<Pointer>& field, const Pointer& value, FieldContainer& owner)
{
    const Pointer old = field.getValue();
    if (old == value) {
        return;
    }
    countOwned(value, owner);
    field.setValue(value);
    releaseOwned(old, owner);
}

/// Appends a value.
template <class Pointer>
void addOwned(MField<Pointer>& field, const Pointer& value, FieldContainer& owner)
{
    countOwned(value, owner);
    field.push_back(value);
}

/// Removes the value at an index, which must be valid.
template <class Pointer>
void eraseOwned(MField<Pointer>& field, UInt32 index, FieldContainer& owner)
{
    const Pointer old = field[index];
    field.erase(field.begin() + index);
    releaseOwned(old, owner);
}

/// Replaces the value at an index, which must be valid.
template <class Pointer>
void replaceOwned(MField<Pointer>& field, UInt32 index, const Pointer& value, FieldContainer& owner)
{
    const Pointer old = field[index];
    countOwned(value, owner);
    field[index] = value;
    releaseOwned(old, owner);
}

/// Removes all values.
template <class Pointer>
void clearOwned(MField<Pointer>& field, FieldContainer& owner)
{
    MField<Pointer> old;
    old.swap(field);
    for (const Pointer& value : old) {
        releaseOwned(value, owner);
    }
}

/// Takes the counts of a field that was copied as it is.
template <class Pointer>
void countAllOwned(const MField<Pointer>& field, FieldContainer& owner)
{
    for (const Pointer& value : field) {
        countOwned(value, owner);
    }
}

/// Replaces each value of a copied field by its own copy, or leaves it if it is shared.
template <class Pointer>
void cloneAllOwned(MField<Pointer>& field, ContainerCloner& cloner, FieldContainer& owner)
{
    for (UInt32 i = 0; i < field.getSize(); ++i) {
        replaceOwned(field, i, cloner.copyOf(Pointer(field[i])), owner);
    }
}

}  // namespace osg
