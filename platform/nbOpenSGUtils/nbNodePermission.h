// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNodePtr.h>

/// What may be done with a node. Everything is allowed until it is denied.
/// A permission is the node's own: it is not inherited. Denying the transform of a group keeps the
/// group in its place; its members can still be arranged, and a locked member goes along when the
/// group is moved.
class NB_PLATFORM_API nbNodePermission
{
public:
    /// Numbers of permissions, 0 to 31; those without a name here are free for hosts.
    enum Permission : osg::Int32
    {
        Edit = 0,  ///< anything about the node may be edited; denied, it is locked
        Transform = 19,  ///< translation, rotation, scale and pivots may be edited
    };

    /// Whether something may be done. True for a null node and for numbers outside 0 .. 31, for
    /// which nothing can be denied.
    static bool allows(const osg::NodePtr& node, osg::Int32 permission);

    /// Denies or allows. A null node or a number outside 0 .. 31 changes nothing.
    static void setAllowed(const osg::NodePtr& node, osg::Int32 permission, bool allowed);
};
