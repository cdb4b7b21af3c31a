// SPDX-License-Identifier: MIT
#pragma once

#include "tests/manipulator/support/GizmoScene.h"

#include <gtest/gtest.h>

// What tests of handles share: names, sizes in the view of GizmoScene, and comparisons.
namespace nbec::manipulator::test {

using osg::Pnt2f;
using osg::Pnt3f;
using osg::Vec2f;
using osg::Vec3f;

using Names = std::vector<std::string>;

/// Of a world unit at the origin: the eye is 10 units away under 45 degrees and 600 pixels high, so
/// it is 300 / (10 tan 22.5) pixels in both projections.
inline constexpr float kPxPerUnit = 72.4264069F;
/// World units of a drag by 72 pixels.
inline constexpr float kStep = 72.0F / kPxPerUnit;
/// World units of a gizmo's unit at the origin, at size 32: 10 / (0.84 * 800 / 45).
inline constexpr float kUnit = 10.0F * 45.0F / 672.0F;

inline const std::string kHighlight = "1 0.5 0";
/// Messages that pause the material's preview, and that resume it.
inline const Names kPause = { "setMatRenderEnabled" };
inline const Names kResume = { "setMatRenderEnabled", "updateMatRender" };

inline void expectNear(const Vec3f& found, const Vec3f& expected, const std::string& what,
                       float tolerance = 2e-4F)
{
    for (osg::UInt32 i = 0; i < 3; ++i) {
        EXPECT_NEAR(found[i], expected[i], tolerance) << what << ' ' << i;
    }
}

/// The colours of a handle's parts.
inline Names partColors(const osg::NodePtr& handle)
{
    Names colors;
    for (const osg::NodePtr& part : partsOf(handle)) {
        colors.push_back(colorOf(part));
    }
    return colors;
}

inline std::string partColor(const osg::NodePtr& handle, std::size_t part)
{
    return colorOf(partsOf(handle).at(part));
}

}  // namespace nbec::manipulator::test
