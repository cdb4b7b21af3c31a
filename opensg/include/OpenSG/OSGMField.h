// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <algorithm>
#include <vector>

namespace osg {

/// A field with many values: what OpenSG gives it of a std::vector. Changing a field of pointers
/// directly changes no counts. Left out of real OpenSG: text and binary forms.
template <class Value>
class MField : private std::vector<Value>
{
    using Storage = std::vector<Value>;

public:
    using StoredType = Value;
    using typename Storage::const_iterator;
    using typename Storage::const_reference;
    using typename Storage::iterator;
    using typename Storage::reference;
    using typename Storage::value_type;

    MField() = default;

    explicit MField(UInt32 size)
        : Storage(size)
    { }

    using Storage::back;
    using Storage::begin;
    using Storage::clear;
    using Storage::empty;
    using Storage::end;
    using Storage::front;
    using Storage::push_back;
    using Storage::rbegin;
    using Storage::rend;
    using Storage::reserve;
    using Storage::resize;
    using Storage::operator[];

    UInt32 size() const { return static_cast<UInt32>(Storage::size()); }

    UInt32 getSize() const { return size(); }

    iterator insert(iterator before, const Value& value) { return Storage::insert(before, value); }

    iterator erase(iterator at) { return Storage::erase(at); }

    /// The first equal value, or end().
    iterator find(const Value& value) { return std::find(begin(), end(), value); }

    const_iterator find(const Value& value) const { return std::find(begin(), end(), value); }

    void swap(MField& other) { Storage::swap(other); }

    std::vector<Value>& getValues() { return *this; }

    const std::vector<Value>& getValues() const { return *this; }

    /// Makes room for the first few values at once: the smallest block of common allocators holds
    /// three pointers, and most nodes and cores have no more children and parents.
    void reserveFew()
    {
        if (this->capacity() == 0) {
            this->reserve(3);
        }
    }
};

}  // namespace osg
