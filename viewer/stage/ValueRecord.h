// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbStateRecord.h>
#include <nbKernelServices/nbUndoService.h>

#include <OpenSG/OSGNode.h>

#include <functional>
#include <memory>
#include <type_traits>

namespace viewer {

/// Something of a node that two functions tell and set, as nbStateRecord keeps it.
template <class Value>
struct NodeValue
{
    std::function<Value(const osg::NodePtr&)> get;
    std::function<void(const osg::NodePtr&, const Value&)> set;
    Value value;

    NodeValue now(const osg::NodePtr& node) const { return { get, set, get(node) }; }

    void applyTo(const osg::NodePtr& node) const { set(node, value); }

    bool isSame(const NodeValue& other) const { return !(value != other.value); }
};

/// Records what is edited now in the open step of undo.
/// @param get  Value (const osg::NodePtr&)
/// @param set  void (const osg::NodePtr&, const Value&)
template <class Get, class Set>
void recordValue(const osg::NodePtr& node, Get get, Set set)
{
    using Value = std::decay_t<std::invoke_result_t<Get, const osg::NodePtr&>>;
    nbUndoService::the()->record(std::make_unique<nbStateRecord<NodeValue<Value>, osg::NodePtr>>(
        node, NodeValue<Value> { get, set, get(node) }));
}

}  // namespace viewer
