// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGSField.h>

#include <vector>

namespace osg {
template <class Value, Int32 space = 0>
class MField : public Field
{
public:
    typedef typename std::vector<Value>::iterator iterator;
    typedef typename std::vector<Value>::const_iterator const_iterator;
    typedef typename std::vector<Value>::reference reference;
    typedef typename std::vector<Value>::const_reference const_reference;
    typedef Value StoredType;
    MField();
    MField(const MField& source);
    explicit MField(UInt32 size);
    void operator=(const MField& source);
    UInt32 size() const;
    UInt32 getSize() const;
    bool empty() const;
    iterator begin();
    iterator end();
    const_iterator begin() const;
    const_iterator end() const;
    reference front();
    const_reference front() const;
    reference back();
    const_reference back() const;
    reference operator[](UInt32 index);
    const_reference operator[](UInt32 index) const;
    void push_back(const Value& value);
    iterator insert(iterator before, const Value& value);
    iterator erase(iterator at);
    iterator find(const Value& value);
    const_iterator find(const Value& value) const;
    void clear();
    void resize(std::size_t size, Value value = Value());
    void reserve(std::size_t size);
};
}  // namespace osg
