// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGFieldContainerPtr.h>

namespace osg {
template <class Pointer>
class RefPtr
{
public:
    typedef const Pointer RefPtr::*unspecified_bool_type;
    RefPtr();
    explicit RefPtr(const Pointer& source);
    RefPtr(const RefPtr& source);
    virtual ~RefPtr();
    RefPtr& operator=(const Pointer& source);
    RefPtr& operator=(const RefPtr& source);
    RefPtr& operator=(const NullFieldContainerPtr&);
    operator Pointer() const;
    typename Pointer::StoredObjectType* operator->() const;
    typename Pointer::StoredObjectType* getCPtr() const;
    Pointer get() const;
    bool operator<(const RefPtr& other) const;
    bool operator==(const RefPtr& other) const;
    bool operator!=(const RefPtr& other) const;
    bool operator==(const FieldContainerPtr& other) const;
    bool operator!=(const FieldContainerPtr& other) const;
    bool operator==(const NullFieldContainerPtr&) const;
    bool operator!=(const NullFieldContainerPtr&) const;
    bool operator!() const;
    operator unspecified_bool_type() const;
};
}  // namespace osg
