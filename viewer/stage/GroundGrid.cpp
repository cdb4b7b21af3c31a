// SPDX-License-Identifier: MIT
#include "viewer/stage/GroundGrid.h"

#include <cmath>

namespace viewer {
namespace {

const osg::Color3f kColor { 0.46F, 0.49F, 0.54F };
constexpr float kWidthPx = 1.0F;
constexpr int kCells = 10;  ///< to each side
/// Cells in the diagonal of a scene, at least.
constexpr float kLeastCells = 3.0F;

}  // namespace

GroundGrid::GroundGrid()
    : lines(kColor, kWidthPx)
{ }

void GroundGrid::hide()
{
    if (cell > 0.0F) {
        cell = 0.0F;
        lines.set({});
    }
}

void GroundGrid::lay(const osg::BoxVolume& bounds, osg::UInt32 upAxis)
{
    if (bounds.isEmpty()) {
        hide();
        return;
    }
    const osg::Vec3f size = bounds.getMax() - bounds.getMin();
    const float length = std::max(size.length(), 1e-6F);
    const float newCell = std::pow(10.0F, std::floor(std::log10(length / kLeastCells)));
    osg::Pnt3f newMiddle = bounds.getMin() + size * 0.5F;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        newMiddle[i] = i == upAxis ? 0.0F : std::round(newMiddle[i] / newCell) * newCell;
    }
    if (newCell == cell && newMiddle == middle && upAxis == up) {
        return;
    }
    cell = newCell;
    middle = newMiddle;
    up = upAxis;
    std::vector<osg::Pnt3f> corners;
    const osg::UInt32 axes[] = { 0, 3 - up };
    for (const osg::UInt32 along : axes) {
        const osg::UInt32 across = 3 - up - along;
        for (int i = -kCells; i <= kCells; ++i) {
            for (const int end : { -kCells, kCells }) {
                osg::Pnt3f corner = middle;
                corner[across] += static_cast<float>(i) * cell;
                corner[along] += static_cast<float>(end) * cell;
                corners.push_back(corner);
            }
        }
    }
    lines.set(corners);
}

}  // namespace viewer
