// SPDX-License-Identifier: MIT
#include "HandlePicking.h"

#include <nbOpenSGExt/NodeFlags.h>
#include <nbOpenSGUtils/nbEnteredChildren.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <iterator>

#include "GeometryExtraction.h"
#include "TreeWalk.h"
#include <ChangeCount.h>

namespace nbec::interaction::detail {

namespace {

constexpr float kDefaultLineWidthPx = 1.0F;

/// @return the line chunk that a material puts into its state, the last of several; null if it has
/// none
osg::LineChunkPtr lineChunkOf(const osg::MaterialPtr& material)
{
    osg::LineChunkPtr found = osg::NullFC;
    if (const osg::ChunkMaterialPtr chunks = osg::ChunkMaterialPtr::dcast(material);
        chunks != osg::NullFC) {
        for (const osg::StateChunkPtr& chunk : *chunks->getMFChunks()) {
            if (const osg::LineChunkPtr line = osg::LineChunkPtr::dcast(chunk);
                line != osg::NullFC) {
                found = line;
            }
        }
    }
    return found;
}

/// @return line width in force, device pixels
/// @param own        material of the geometry, may be null
/// @param outermost  of the material groups above, may be null: it replaces the own one, below a
/// manipulator node only
///                   chunk by chunk
float lineWidth(const osg::MaterialPtr& own, const osg::MaterialPtr& outermost,
                bool isBelowManipulator)
{
    osg::LineChunkPtr chunk = lineChunkOf(outermost);
    if (chunk == osg::NullFC && (outermost == osg::NullFC || isBelowManipulator)) {
        chunk = lineChunkOf(own);
    }
    const float width = chunk == osg::NullFC ? kDefaultLineWidthPx : chunk->getWidth();
    return width > 0.0F ? width : kDefaultLineWidthPx;
}

bool hasName(const osg::NodePtr& node)
{
    const osg::Char8* name = osg::getName(node);
    return name != nullptr && *name != '\0';
}

/// Whether the node and all its ancestors are active.
bool isShown(osg::NodePtr node)
{
    for (; node != osg::NullFC; node = node->getParent()) {
        if (node->getTravMask() == 0) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool HandlePicking::pick(const osg::NodePtr& pickNode, const osg::NodePtr& worldRoot,
                         const PickView& view, const ScreenPoint& position,
                         const HandleReach& reach, const std::function<int(osg::UInt32)>& rankOf,
                         HandleHit& hit)
{
    const bool allCount = pickNode != osg::NullFC;
    const osg::NodePtr top = allCount ? pickNode : worldRoot;
    if (top == osg::NullFC || !isShown(top)) {
        return false;
    }
    refresh(top, allCount, view);
    return rankOf ? table.pick(position, reach, rankOf, hit) : table.pick(position, reach, hit);
}

void HandlePicking::refresh(const osg::NodePtr& top, bool allCount, const PickView& view)
{
    osg::Matrix toWorld;
    if (const osg::NodePtr parent = top->getParent(); parent != osg::NullFC) {
        parent->getToWorld(toWorld);
    }
    const osg::UInt64 changes = osg::getTreeChangeCount(top);
    const bool isFilled =
        top.getFieldContainerId() == topId && changes == topChanges && allCount == topCounts;
    if (isFilled && hasSameBits(toWorld, worldFromTable) && view.isSame(projectedView)) {
        return;
    }
    if (!isFilled) {
        topId = top.getFieldContainerId();
        topChanges = changes;
        topCounts = allCount;
        fill(top);
    }
    worldFromTable = toWorld;
    projectedView = view;
    table.project(worldFromTable, projectedView);
}

void HandlePicking::fill(const osg::NodePtr& top)
{
    ++fillCount;
    table.clear();
    collect(top, inheritedBy(top));
    for (auto shape = shapes.begin(); shape != shapes.end();) {
        shape = shape->second.lastFill == fillCount ? std::next(shape) : shapes.erase(shape);
    }
}

const GeometrySoup& HandlePicking::shapeOf(const osg::GeometryPtr& geometry)
{
    Shape& shape = shapes[geometry.getFieldContainerId()];
    if (shape.lastFill == 0 || shape.changeCount != osg::getChangeCount(geometry)) {
        shape.soup = extractGeometry(geometry);
        shape.changeCount = osg::getChangeCount(geometry);
    }
    shape.lastFill = fillCount;
    return shape.soup;
}

HandlePicking::Inherited HandlePicking::inheritedBy(const osg::NodePtr& top)
{
    Inherited inherited;
    for (osg::NodePtr node = top->getParent(); node != osg::NullFC; node = node->getParent()) {
        if ((nbNodeUtils::getNodeFlags(node) & osg::NodeFlags::ManipulatorNode) != 0) {
            inherited.isBelowManipulator = true;
        }
        const osg::MaterialGroupPtr group = osg::MaterialGroupPtr::dcast(node->getCore());
        if (group != osg::NullFC && group->getMaterial() != osg::NullFC) {
            inherited.outermostMaterial = group->getMaterial();
        }
    }
    return inherited;
}

void HandlePicking::collect(const osg::NodePtr& node, Inherited inherited)
{
    if (node->getTravMask() == 0) {
        return;
    }
    const osg::UInt32 flags = nbNodeUtils::getNodeFlags(node);
    constexpr osg::UInt32 kHandleFlags =
        osg::NodeFlags::ManipulatorNode | osg::NodeFlags::SelectableAuxiliary;
    inherited.isHandle = inherited.isHandle || topCounts || (flags & kHandleFlags) != 0;
    inherited.isBelowManipulator =
        inherited.isBelowManipulator || (flags & osg::NodeFlags::ManipulatorNode) != 0;
    if (const osg::NodeCorePtr core = node->getCore(); core != osg::NullFC) {
        accumulateMatrix(core, inherited.tableFromParent);
        const osg::MaterialGroupPtr group = osg::MaterialGroupPtr::dcast(core);
        if (group != osg::NullFC && inherited.outermostMaterial == osg::NullFC) {
            inherited.outermostMaterial = group->getMaterial();
        }
    }
    addHandle(node, inherited);
    nbForEachEnteredChild(node, [&](const osg::NodePtr& child) {
        collect(child, inherited);
        return true;
    });
}

void HandlePicking::addHandle(const osg::NodePtr& node, const Inherited& inherited)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
    if (geometry == osg::NullFC || !inherited.isHandle || !hasName(node)) {
        return;
    }
    const float width = lineWidth(geometry->getMaterial(), inherited.outermostMaterial,
                                  inherited.isBelowManipulator);
    table.add(node.getFieldContainerId(), shapeOf(geometry), inherited.tableFromParent,
              0.5F * width);
}

}  // namespace nbec::interaction::detail
