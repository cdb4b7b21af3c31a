// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>

#include <vector>

#include "PickView.h"

namespace nbec::interaction::detail {

/// The foremost scene plate that shows at a pixel, as Picker::SceneplateFilter has it. Looked up
/// anew each time: plates are few and found without searching the scene.
/// @param view  its size alone counts
/// @param px  device pixels, y from the top; the pixel that holds it is tested at its centre
/// @return null outside the view, for NaN, and beside every plate
osg::NodePtr pickPlate(const osg::NodePtr& root, const PickView& view, const osg::Pnt2f& px);

/// The shown plates of which all that is in view lies in a box, in the order of drawing. Plates
/// wholly outside of the view do not count.
std::vector<osg::NodePtr> pickPlatesInside(const osg::NodePtr& root, const PickView& view,
                                           const ScreenBox& box);

}  // namespace nbec::interaction::detail
