// SPDX-License-Identifier: MIT
#pragma once

#include <nbNotification/Notifier.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>

namespace nbec::notification {

/// Notifier whose texts stand still before the camera, over the whole scene.
/// Has a place in the scene graph: an auxiliary node named "cameraNotifier" without geometry, which
/// goes with the notifier.
class NB_PLATFORM_API CameraNotifier : public Notifier
{
public:
    /// @param parent  where the node is hung, such as the scene's internal root; null: nowhere
    explicit CameraNotifier(const osg::NodePtr& parent);
    ~CameraNotifier() override;

    /// While the node is active.
    bool isVisible() const override { return node->getActive(); }

    osg::NodePtr getNode() const { return node; }

private:
    osg::RefPtr<osg::NodePtr> node;
};

}  // namespace nbec::notification
