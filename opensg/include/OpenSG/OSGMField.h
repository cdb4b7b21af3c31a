// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <algorithm>
#include <vector>

namespace osg {

/// A field with many values: a std::vector with OpenSG's extra names. Changing a field of pointers
/// directly changes no counts. Left out of real OpenSG: text and binary forms.
template <class Value>
class MField : public std::vector<Value>
{
public:
    using StoredType = Value;
    using std::vector<Value>::vector;

    UInt32 getSize() const { return static_cast<UInt32>(this->size()); }

    /// The first equal value, or end().
    auto find(const Value& value) { return std::find(this->begin(), this->end(), value); }

    auto find(const Value& value) const { return std::find(this->begin(), this->end(), value); }

    /// Makes room for the first few values at once: the smallest block of common allocators holds
    /// three pointers, and most nodes and cores have no more children and parents.
    void reserveFew()
    {
        if (this->capacity() == 0) {
            this->reserve(3);
        }
    }

    /// The values themselves.
    MField& getValues() { return *this; }

    const MField& getValues() const { return *this; }
};

}  // namespace osg
