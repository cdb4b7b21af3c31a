// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>

/// The scene's fixed nodes: the world root, which is drawn, with three children: the scene root,
/// below which the person's nodes hang, the internal root for helpers such as gizmos, marked
/// auxiliary, and the root of the scene plates, marked auxiliary too: 3D tools pass it by.
///
/// The nodes are made on first use, which must lie between osgInit and osgExit, and held until
/// clear(), which a host calls before osgExit. Belongs to the user-interface thread.
class NB_PLATFORM_API nbScenegraph
{
public:
    /// Top of what is drawn; never null. Has a group core and no parent.
    static osg::NodePtr getWorldRoot();

    /// Root of the scene, named "RootNode"; never null.
    static osg::NodePtr getRootNode();

    /// Root of the helpers, named "InternalRoot"; never null.
    static osg::NodePtr getInternalRoot();

    /// Root of the scene plates, named "SceneplateRoot"; never null. All views show its plates.
    static osg::NodePtr getSceneplateRoot();

    /// Whether nodes light up under the pointer before they are selected; true at the start.
    static bool isPreselectionEnabled();
    static void setPreselectionEnabled(bool enabled);

    /// Gives the nodes back, which destroys all that nobody else holds, takes them out of the live
    /// render widgets' viewports, and switches preselection on. The next use makes new nodes.
    static void clear();
};
