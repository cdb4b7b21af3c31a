// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNodeCorePtr.h>
#include <OpenSG/OSGNodeFields.h>

namespace osg {

/// A new node with the core; count 0. A null core gives a node without one.
NodePtr makeNodeFor(const NodeCorePtr& core);

namespace detail {

/// Null for a null node.
NodeCorePtr coreOf(const NodePtr& node);

}  // namespace detail

/// A new node with a new core: `makeCoredNode<Group>()`; count 0.
template <class Core>
NodePtr makeCoredNode()
{
    return makeNodeFor(Core::create());
}

/// The same; the core is handed out as well.
template <class Core>
NodePtr makeCoredNode(typename Core::Ptr* core)
{
    *core = Core::create();
    return makeNodeFor(*core);
}

/// A node together with its core. Holds one count of the node.
template <class Core>
class CoredNodePtr
{
public:
    using CorePtr = typename Core::Ptr;

    CoredNodePtr() = default;

    /// Of a node whose core is of the class; otherwise empty.
    explicit CoredNodePtr(const NodePtr& node) { *this = node; }

    static CoredNodePtr create() { return CoredNodePtr(makeCoredNode<Core>()); }

    CoredNodePtr& operator=(const NodePtr& node)
    {
        corePointer = CorePtr::dcast(detail::coreOf(node));
        nodePointer = corePointer != NullFC ? node : NodePtr();
        return *this;
    }

    CoredNodePtr& operator=(const NullFieldContainerPtr&) { return *this = NodePtr(); }

    NodePtr node() const { return nodePointer.get(); }

    CorePtr core() const { return corePointer; }

    operator NodePtr() const { return nodePointer.get(); }

    /// The core.
    const CorePtr& operator->() const { return corePointer; }

    bool operator==(const NullFieldContainerPtr&) const { return nodePointer == NullFC; }

    bool operator!=(const NullFieldContainerPtr&) const { return nodePointer != NullFC; }

private:
    NodeRefPtr nodePointer;
    CorePtr corePointer;
};

}  // namespace osg
