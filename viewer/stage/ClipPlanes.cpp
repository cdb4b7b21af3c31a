// SPDX-License-Identifier: MIT
#include "viewer/stage/ClipPlanes.h"

#include "viewer/loading/NodeChildren.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbChildrenRecord.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGExt/ClipPlane3D.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbView/nbSceneLines.h>

#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGCoredNodePtr.h>
#include <OpenSG/OSGGeometry.h>

#include <cmath>
#include <memory>
#include <vector>

namespace viewer {
namespace {

constexpr const char* kName = "Clip plane";

/// Edge of the outline by the diagonal of what is cut.
constexpr float kOutlineSize = 0.45F;
constexpr float kOutlineWidthPx = 1.5F;
const osg::Color3f kOutlineColor { 0.98F, 0.72F, 0.2F };

osg::Vec3f nearestAxis(const osg::Vec3f& direction)
{
    osg::UInt32 longest = 0;
    for (osg::UInt32 i = 1; i < 3; ++i) {
        longest = std::abs(direction[i]) > std::abs(direction[longest]) ? i : longest;
    }
    osg::Vec3f axis(0.0F, 0.0F, 0.0F);
    axis[longest] = direction[longest] < 0.0F ? -1.0F : 1.0F;
    return axis;
}

/// A square around the origin in the plane y = 0.
osg::NodePtr makeOutline(float edge)
{
    const float half = 0.5F * edge;
    const osg::GeometryPtr outline =
        nbSceneLines::makeGeometry(GL_LINE_LOOP, kOutlineColor, kOutlineWidthPx);
    nbSceneLines::setCorners(outline,
                             { { -half, 0.0F, -half },
                               { half, 0.0F, -half },
                               { half, 0.0F, half },
                               { -half, 0.0F, half } });
    return osg::makeNodeFor(outline);
}

osg::NodePtr makeFrame(const osg::Pnt3f& centre, const osg::Vec3f& keep, float outlineEdge)
{
    const osg::NodePtr frame = makeClipFrame(outlineEdge);
    const auto core = osg::Transform3DPtr::dcast(frame->getCore());
    const nbEdit edit(core, osg::FieldBits::AllFields);
    core->setTranslation(centre.subZero());
    osg::Quaternion turn(osg::Vec3f(0.0F, 1.0F, 0.0F), keep);
    if (keep[1] < 0.0F) {
        // Half a turn: two opposite directions do not say about what.
        turn.setValueAsAxisDeg(osg::Vec3f(1.0F, 0.0F, 0.0F), 180.0F);
    }
    core->setRotation(turn);
    // Angles are what a person reads and types.
    core->setRotation(core->getRotation());
    return frame;
}

/// The clip plane node, at or below a node, whose frame a node is; null if there is none.
osg::NodePtr planeOfFrame(const osg::NodePtr& top, const osg::NodePtr& frame)
{
    const auto plane = osg::ClipPlane3DPtr::dcast(top->getCore());
    if (plane != osg::NullFC && plane->getTransformNode() == frame) {
        return top;
    }
    for (osg::UInt32 i = 0; i < top->getNChildren(); ++i) {
        if (const osg::NodePtr found = planeOfFrame(top->getChild(i), frame);
            found != osg::NullFC) {
            return found;
        }
    }
    return {};
}

bool isFrame(const osg::NodePtr& node)
{
    return planeOfFrame(nbScenegraph::getRootNode(), node) != osg::NullFC;
}

/// Moves the children of a node that are no frames of clip planes to another node.
void moveChildren(const osg::NodePtr& from, const osg::NodePtr& to)
{
    std::vector<osg::NodePtr> moved;
    for (osg::UInt32 i = 0; i < from->getNChildren(); ++i) {
        if (!isFrame(from->getChild(i))) {
            moved.push_back(from->getChild(i));
        }
    }
    const nbEdit edit(from, osg::Node::ChildrenFieldMask);
    for (const osg::NodePtr& child : moved) {
        addChild(to, child);
    }
}

}  // namespace

osg::NodePtr addClipPlane(const osg::Vec3f& away)
{
    const osg::NodePtr root = nbScenegraph::getRootNode();
    const osg::BoxVolume bounds = nbNodeUtils::getWorldBounds(root);
    if (bounds.isEmpty()) {
        return {};
    }
    const osg::Vec3f size = bounds.getMax() - bounds.getMin();
    const osg::NodePtr frame =
        makeFrame(bounds.getMin() + size * 0.5F, -nearestAxis(away), size.length() * kOutlineSize);
    const osg::NodePtr plane = makeClipPlane(frame);
    const nbScopedUndo scope(Text::tr("Add clip plane"));
    nbUndoService::the()->record(
        std::make_unique<nbChildrenRecord>(std::vector<osg::NodePtr> { root, plane }));
    moveChildren(root, plane);
    addChild(root, plane);
    addChild(root, frame);
    return frame;
}

bool removeClipPlane(const osg::NodePtr& frame)
{
    const osg::NodePtr root = nbScenegraph::getRootNode();
    const osg::NodePtr plane = frame == osg::NullFC ? frame : planeOfFrame(root, frame);
    if (plane == osg::NullFC) {
        return false;
    }
    const osg::NodePtr parent = plane->getParent();
    const nbScopedUndo scope(Text::tr("Remove clip plane"));
    nbUndoService::the()->record(std::make_unique<nbChildrenRecord>(
        std::vector<osg::NodePtr> { parent, plane, frame->getParent() }));
    moveChildren(plane, parent);
    takeFromParent(plane);
    takeFromParent(frame);
    return true;
}

osg::NodePtr makeClipFrame(float outlineEdge)
{
    const osg::NodePtr frame = osg::makeNodeFor(osg::Transform3D::create());
    nbNodeUtils::setName(frame, kName);
    const osg::NodePtr outline = makeOutline(outlineEdge);
    nbNodeUtils::setIsAuxiliaryNode(outline, true);
    addChild(frame, outline);
    return frame;
}

float clipOutlineEdge(const osg::NodePtr& frame)
{
    const bool hasOutline = frame->getNChildren() > 0;
    const auto outline =
        hasOutline ? osg::GeometryPtr::dcast(frame->getChild(0)->getCore()) : osg::GeometryPtr();
    const bool hasCorners = outline != osg::NullFC && outline->getPositions() != osg::NullFC &&
        outline->getPositions()->getSize() > 0;
    return hasCorners ? 2.0F * std::abs(outline->getPositions()->getValue(0)[0]) : 0.0F;
}

osg::NodePtr makeClipPlane(const osg::NodePtr& frame)
{
    osg::ClipPlane3DPtr core;
    const osg::NodePtr plane = osg::makeCoredNode<osg::ClipPlane3D>(&core);
    const nbEdit edit(core, osg::FieldBits::AllFields);
    core->setTransformNode(frame);
    return plane;
}

bool isClipPlaneOrFrame(const osg::NodePtr& node)
{
    return node != osg::NullFC &&
        (osg::ClipPlane3DPtr::dcast(node->getCore()) != osg::NullFC || isFrame(node));
}

void addClipPlaneCommands(Stage& stage)
{
    Commands& commands = stage.commands();
    commands.add("scene.addClipPlane", [&stage](const QJsonValue&, QString& error) {
        const osg::NodePtr frame = addClipPlane(stage.pose().from - stage.pose().at);
        if (frame == osg::NullFC) {
            error = Text::tr("there is nothing to be cut");
            return false;
        }
        stage.select(frame);
        stage.showGizmo(Gizmo::Clipping);
        return true;
    });
    commands.add("scene.removeClipPlane", [&stage](const QJsonValue&, QString& error) {
        const osg::NodePtr frame = stage.selectedObject();
        stage.select(osg::NullFC);
        if (!removeClipPlane(frame)) {
            stage.select(frame);
            error = Text::tr("select a clip plane first");
            return false;
        }
        stage.showGizmo(Gizmo::Universal);
        return true;
    });
}

}  // namespace viewer
