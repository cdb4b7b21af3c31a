// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbUndoRecord.h>
#include <nbKernelServices/nbUndoService.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>

#include <memory>

namespace viewer {

/// Undo record of something of a node that two functions tell and set. Made before the edit.
/// @tparam Get  Value (const osg::NodePtr&)  @tparam Set  void (const osg::NodePtr&, const Value&)
template <class Get, class Set>
class ValueRecord : public nbUndoRecord
{
public:
    ValueRecord(const osg::NodePtr& edited, Get getter, Set setter)
        : node(edited)
        , get(getter)
        , set(setter)
        , before(getter(edited))
        , after(before)
    { }

    bool close() override
    {
        after = get(node.get());
        return after != before;
    }

    void undo() override { set(node.get(), before); }

    void redo() override { set(node.get(), after); }

private:
    using Value = decltype(std::declval<Get>()(osg::NodePtr()));

    osg::NodeRefPtr node;
    Get get;
    Set set;
    Value before;
    Value after;
};

/// Records what is edited now in the open step of undo.
template <class Get, class Set>
void recordValue(const osg::NodePtr& node, Get get, Set set)
{
    nbUndoService::the()->record(std::make_unique<ValueRecord<Get, Set>>(node, get, set));
}

}  // namespace viewer
