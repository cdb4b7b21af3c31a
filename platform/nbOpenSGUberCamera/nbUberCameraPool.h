// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbUtils/nbPlatformExport.h>

/// Finds the living cameras of the host, by their own id or by that of their internal parent node.
/// Holds none of them.
class NB_PLATFORM_API nbUberCameraPool
{
public:
    /// Camera of a container id; null for 0, for an id whose container is gone, and for containers
    /// that are no UberCamera.
    static osg::UberCameraPtr get(osg::UInt32 id);

    /// Camera whose getInternalParentNode() has a container id; null if there is none.
    static osg::UberCameraPtr getByNode(osg::UInt32 nodeId);

private:
    friend class osg::UberCamera;

    /// A camera got its internal parent node.
    static void add(osg::UInt32 cameraId, osg::UInt32 nodeId);
};
