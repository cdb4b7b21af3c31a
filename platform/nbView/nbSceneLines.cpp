// SPDX-License-Identifier: MIT
#include "nbSceneLines.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/nbBoxCorners.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <cmath>

namespace {

/// Part of a box's edge that is drawn at each of its ends.
constexpr float kCornerLength = 0.18F;

/// Part of the box's size by which it is drawn larger than it is, so that the lines are clear of
/// the surface.
constexpr float kMargin = 0.02F;

void addCornerLines(const osg::Pnt3f& low, const osg::Pnt3f& high,
                    std::vector<osg::Pnt3f>& positions)
{
    const auto corners = nbBoxCorners(low, high);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const osg::Pnt3f& other = corners[i ^ (std::size_t(1) << axis)];
            positions.push_back(corners[i]);
            positions.push_back(corners[i] + (other - corners[i]) * kCornerLength);
        }
    }
}

const osg::Color3f kGridColor { 0.46F, 0.49F, 0.54F };
constexpr float kGridWidthPx = 1.0F;
constexpr int kCells = 10;  ///< of the grid, to each side
/// Cells in the diagonal of a scene, at least.
constexpr float kLeastCells = 3.0F;

}  // namespace

osg::GeometryPtr nbSceneLines::makeGeometry(osg::UInt32 mode, const osg::Color3f& color,
                                            float widthPx)
{
    const osg::LineChunkPtr line = osg::LineChunk::create();
    const nbEdit lineEdit(line, osg::FieldBits::AllFields);
    line->setWidth(widthPx);
    line->setSmooth(true);
    const osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
    const nbEdit materialEdit(material, osg::FieldBits::AllFields);
    material->setDiffuse(color);
    material->setLit(false);
    material->addChunk(line);
    const osg::GeometryPtr lines = osg::Geometry::create();
    const nbEdit edit(lines, osg::FieldBits::AllFields);
    lines->setTypes(osg::GeoPTypesUI8::create());
    lines->getTypes()->push_back(mode);
    lines->setMaterial(material);
    setCorners(lines, {});
    return lines;
}

void nbSceneLines::setCorners(const osg::GeometryPtr& lines, const std::vector<osg::Pnt3f>& corners)
{
    const osg::GeoPositions3fPtr positions = osg::GeoPositions3f::create();
    for (const osg::Pnt3f& corner : corners) {
        positions->push_back(corner);
    }
    const osg::GeoPLengthsUI32Ptr lengths = osg::GeoPLengthsUI32::create();
    lengths->push_back(positions->getSize());
    const nbEdit edit(lines, osg::FieldBits::AllFields);
    lines->setPositions(positions);
    lines->setLengths(lengths);
}

nbSceneLines::nbSceneLines(const osg::Color3f& color, float widthPx)
    : node(osg::Node::create())
    , lines(makeGeometry(GL_LINES, color, widthPx))
{
    const osg::NodePtr shown = node.get();
    const nbEdit edit(shown, osg::FieldBits::AllFields);
    shown->setCore(lines.get());
    shown->setActive(false);
    const osg::NodePtr root = nbScenegraph::getInternalRoot();
    const nbEdit rootEdit(root, osg::Node::ChildrenFieldMask);
    root->addChild(shown);
}

nbSceneLines::~nbSceneLines()
{
    if (const osg::NodePtr root = node->getParent(); root != osg::NullFC) {
        const nbEdit edit(root, osg::Node::ChildrenFieldMask);
        root->subChild(node.get());
    }
}

void nbSceneLines::set(const std::vector<osg::Pnt3f>& corners)
{
    setCorners(lines.get(), corners);
    const osg::NodePtr shown = node.get();
    const nbEdit edit(shown, osg::Node::TravMaskFieldMask);
    shown->setActive(!corners.empty());
}

bool nbBoundsMarker::mark(const std::vector<osg::NodePtr>& objects)
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

nbGroundGrid::nbGroundGrid()
    : lines(kGridColor, kGridWidthPx)
{ }

void nbGroundGrid::hide()
{
    if (cell > 0.0F) {
        cell = 0.0F;
        lines.set({});
    }
}

void nbGroundGrid::lay(const osg::BoxVolume& bounds, osg::UInt32 upAxis)
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
