// SPDX-License-Identifier: MIT
#include "viewer/stage/BoundsMarker.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGBoxVolume.h>

namespace viewer {
namespace {

/// Part of a box's edge that is drawn at each of its ends.
constexpr float kCornerLength = 0.18F;

/// Part of the box's size by which it is drawn larger than it is, so that the lines are clear of
/// the surface.
constexpr float kMargin = 0.02F;

constexpr osg::UInt32 kCorners = 8;

/// Corner i of a box: bit 0, 1, 2 of i choose the far side in x, y, z.
osg::Pnt3f cornerOf(const osg::Pnt3f& low, const osg::Pnt3f& high, osg::UInt32 i)
{
    return { (i & 1U) != 0 ? high[0] : low[0], (i & 2U) != 0 ? high[1] : low[1],
             (i & 4U) != 0 ? high[2] : low[2] };
}

void addCornerLines(const osg::Pnt3f& low, const osg::Pnt3f& high,
                    std::vector<osg::Pnt3f>& positions)
{
    for (osg::UInt32 i = 0; i < kCorners; ++i) {
        const osg::Pnt3f corner = cornerOf(low, high, i);
        for (osg::UInt32 axis = 0; axis < 3; ++axis) {
            const osg::Pnt3f other = cornerOf(low, high, i ^ (1U << axis));
            positions.push_back(corner);
            positions.push_back(corner + (other - corner) * kCornerLength);
        }
    }
}

}  // namespace

bool BoundsMarker::mark(const std::vector<osg::NodePtr>& objects)
{
    std::vector<Box> current;
    for (const osg::NodePtr& object : objects) {
        const osg::BoxVolume bounds = nbNodeUtils::getWorldBounds(object);
        if (!bounds.isEmpty()) {
            current.emplace_back(bounds.getMin(), bounds.getMax());
        }
    }
    if (current == boxes) {
        return false;
    }
    boxes = std::move(current);
    std::vector<osg::Pnt3f> corners;
    for (const auto& [low, high] : boxes) {
        const osg::Vec3f margin = (high - low) * (kMargin * 0.5F);
        addCornerLines(low - margin, high + margin, corners);
    }
    lines.set(corners);
    return true;
}

}  // namespace viewer
