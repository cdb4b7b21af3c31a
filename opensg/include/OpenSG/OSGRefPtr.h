// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

namespace osg {

/// Holds one count of a container; Pointer is the pointer type: RefPtr<NodePtr>.
template <class Pointer>
class RefPtr
{
public:
    RefPtr() = default;

    explicit RefPtr(const Pointer& container)
        : pointer(container)
    {
        addRefCP(pointer);
    }

    RefPtr(const RefPtr& other)
        : RefPtr(other.pointer)
    { }

    ~RefPtr() { subRefCP(static_cast<const FieldContainerPtr&>(pointer)); }

    RefPtr& operator=(const RefPtr& other) { return *this = other.pointer; }

    RefPtr& operator=(const Pointer& container)
    {
        setRefdCP(pointer, container);
        return *this;
    }

    RefPtr& operator=(const NullFieldContainerPtr&) { return *this = Pointer(); }

    /// The plain pointer.
    Pointer get() const { return pointer; }

    operator Pointer() const { return pointer; }

    /// Undefined when empty, as in OpenSG.
    const Pointer& operator->() const { return pointer; }

    auto* getCPtr() const { return pointer.getCPtr(); }

    explicit operator bool() const { return pointer != NullFC; }

    bool operator!() const { return pointer == NullFC; }

    bool operator<(const RefPtr& other) const { return pointer < other.pointer; }

    bool operator==(const RefPtr& other) const { return pointer == other.pointer; }

    bool operator!=(const RefPtr& other) const { return pointer != other.pointer; }

    bool operator==(const FieldContainerPtr& other) const { return pointer == other; }

    bool operator!=(const FieldContainerPtr& other) const { return pointer != other; }

    bool operator==(const NullFieldContainerPtr&) const { return pointer == NullFC; }

    bool operator!=(const NullFieldContainerPtr&) const { return pointer != NullFC; }

private:
    Pointer pointer;
};

}  // namespace osg
