// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

namespace osg {

/// A field with one value. Left out of real OpenSG: the common base Field, text and binary forms.
template <class Value>
class SField
{
public:
    using StoredType = Value;

    SField() = default;

    explicit SField(const Value& start)
        : value(start)
    { }

    Value& getValue() { return value; }

    const Value& getValue() const { return value; }

    void setValue(const Value& newValue) { value = newValue; }

    bool operator==(const SField& other) const { return value == other.value; }

    bool operator!=(const SField& other) const { return !(value == other.value); }

private:
    Value value {};
};

}  // namespace osg
