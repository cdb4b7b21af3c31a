// SPDX-License-Identifier: MIT
#include "viewer/stage/BoundsMarker.h"

#include "viewer/stage/Lines.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbEdit.h>
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

BoundsMarker::BoundsMarker(const osg::Color3f& color, float widthPx)
    : node(osg::Node::create())
    , lines(makeLines(GL_LINES, color, widthPx))
{
    const osg::NodePtr shown = node.get();
    const nbEdit nodeEdit(shown, osg::FieldBits::AllFields);
    shown->setCore(lines.get());
    shown->setActive(false);
    const osg::NodePtr root = nbScenegraph::getInternalRoot();
    const nbEdit rootEdit(root, osg::Node::ChildrenFieldMask);
    root->addChild(shown);
}

BoundsMarker::~BoundsMarker()
{
    const osg::NodePtr shown = node.get();
    const osg::NodePtr parent = shown->getParent();
    if (parent != osg::NullFC) {
        const nbEdit edit(parent, osg::Node::ChildrenFieldMask);
        parent->subChild(shown);
    }
}

void BoundsMarker::mark(const std::vector<osg::NodePtr>& objects)
{
    std::vector<Box> current;
    for (const osg::NodePtr& object : objects) {
        const osg::BoxVolume bounds = nbNodeUtils::getWorldBounds(object);
        if (!bounds.isEmpty()) {
            current.emplace_back(bounds.getMin(), bounds.getMax());
        }
    }
    if (current != boxes) {
        boxes = std::move(current);
        rebuild();
    }
}

void BoundsMarker::rebuild()
{
    std::vector<osg::Pnt3f> corners;
    for (const auto& [low, high] : boxes) {
        const osg::Vec3f margin = (high - low) * (kMargin * 0.5F);
        addCornerLines(low - margin, high + margin, corners);
    }
    setCorners(lines.get(), corners);
    const osg::NodePtr shown = node.get();
    const nbEdit edit(shown, osg::Node::TravMaskFieldMask);
    shown->setActive(!boxes.empty());
}

}  // namespace viewer
