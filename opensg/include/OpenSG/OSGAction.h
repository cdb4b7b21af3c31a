// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGNodePtr.h>

namespace osg {

/// Something that goes over a tree. A node takes part with its subtree if its traversal mask and
/// the action's have a bit in common. Left out of real OpenSG: functors per core class, traverse()
/// (a recursion over getChild does it), and the actions that draw: drawing belongs to the renderer,
/// there is no OSGRenderAction.h.
class Action
{
public:
    enum ResultE
    {
        Continue,
        Skip,
        Quit
    };

    virtual ~Action() = default;

    /// Goes over the tree below a node, itself included. @return Quit for null, otherwise Continue
    virtual ResultE apply(NodePtr root) = 0;

    void setTravMask(UInt32 mask) { travMask = mask; }

    UInt32 getTravMask() const { return travMask; }

protected:
    Action() = default;
    Action(const Action&) = default;
    Action& operator=(const Action&) = default;

private:
    UInt32 travMask = 0xffffffffu;
};

}  // namespace osg
