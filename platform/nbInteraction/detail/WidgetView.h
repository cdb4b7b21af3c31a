// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include "PickView.h"

namespace nbec::interaction::detail {

/// The view of the main render widget. Kept until the camera's change counter, its beacon or the
/// widget's size moves: making the matrices takes longer than finding a handle with them.
class WidgetView
{
public:
    /// @return the present view; null without a widget, camera or area
    const PickView* current();

private:
    PickView view;
    osg::UInt32 cameraId = 0;
    osg::UInt32 cameraChanges = 0;
    osg::Matrix beaconToWorld;
};

}  // namespace nbec::interaction::detail
