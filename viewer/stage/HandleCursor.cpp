// SPDX-License-Identifier: MIT
#include "viewer/stage/HandleCursor.h"

#include "viewer/stage/Stage.h"
#include "viewer/stage/StageTool.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>

#include <array>
#include <cmath>

namespace viewer {
namespace {

struct ActionRow
{
    const char* handle;
    HandleAction action;
};

constexpr std::array<ActionRow, 23> kActions { {
    { "xaShape", HandleAction::MoveAlong },
    { "yaShape", HandleAction::MoveAlong },
    { "zaShape", HandleAction::MoveAlong },
    { "xsShape", HandleAction::ScaleAlong },
    { "ysShape", HandleAction::ScaleAlong },
    { "zsShape", HandleAction::ScaleAlong },
    { "grid", HandleAction::ScaleAll },
    { "rxShape", HandleAction::Turn },
    { "ryShape", HandleAction::Turn },
    { "rzShape", HandleAction::Turn },
    { "xyaShape", HandleAction::MoveInPlane },
    { "xzaShape", HandleAction::MoveInPlane },
    { "yzaShape", HandleAction::MoveInPlane },
    { "rotateShape", HandleAction::Turn },
    { "scaleXYLLShape", HandleAction::ScaleAll },
    { "scaleXYULShape", HandleAction::ScaleAll },
    { "scaleXYLRShape", HandleAction::ScaleAll },
    { "scaleXYURShape", HandleAction::ScaleAll },
    { "scaleXLShape", HandleAction::ScaleAll },
    { "scaleXRShape", HandleAction::ScaleAll },
    { "scaleYLShape", HandleAction::ScaleAll },
    { "scaleYUShape", HandleAction::ScaleAll },
    { "scaleZPlaneShape", HandleAction::ScaleAll },
} };

/// Length on screen of one unit of a handle below which its direction says nothing.
constexpr double kShortestAxisPx = 3.0;
constexpr double kHalfTurnDeg = 180.0;
constexpr double kDegPerRad = 57.295779513082323;

/// First node of the name with geometry; handles lie along the y axis of its frame.
osg::NodePtr findPart(const osg::NodePtr& node, const std::string& name)
{
    if (node == osg::NullFC || !node->getActive()) {
        return {};
    }
    if (osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC &&
        nbNodeUtils::getName(node) == name) {
        return node;
    }
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        if (const osg::NodePtr found = findPart(node->getChild(i), name); found != osg::NullFC) {
            return found;
        }
    }
    return {};
}

/// Direction on screen of a handle's axis. @return false if it has none
bool findAngle(Stage& stage, const std::string& handle, double& angleDeg)
{
    const osg::NodePtr part = findPart(stage.handles(), handle);
    if (part == osg::NullFC) {
        return false;
    }
    const osg::Matrix toWorld = part->getToWorld();
    std::array<osg::Pnt2f, 2> px;
    for (std::size_t i = 0; i < px.size(); ++i) {
        osg::Pnt3f world;
        toWorld.multFullMatrixPnt(osg::Pnt3f(0.0F, static_cast<float>(i), 0.0F), world);
        const nbOSGWidget& view = stage.view();
        if (!nbCameraNavigation::project(stage.pose(), world, view.getWidth(), view.getHeight(),
                                         px[i])) {
            return false;
        }
    }
    const double right = static_cast<double>(px[1][0]) - static_cast<double>(px[0][0]);
    const double up = static_cast<double>(px[0][1]) - static_cast<double>(px[1][1]);
    angleDeg = std::atan2(up, right) * kDegPerRad;
    angleDeg = angleDeg < 0.0 ? angleDeg + kHalfTurnDeg : angleDeg;
    angleDeg = angleDeg >= kHalfTurnDeg ? 0.0 : angleDeg;
    return std::hypot(right, up) >= kShortestAxisPx;
}

}  // namespace

HandleAction actionOfHandle(const std::string& handle)
{
    for (const ActionRow& row : kActions) {
        if (handle == row.handle) {
            return row.action;
        }
    }
    return HandleAction::None;
}

HandleCursor cursorOfHandle(Stage& stage, const std::string& handle)
{
    HandleCursor cursor;
    const StageTool* tool = stage.activeTool();
    cursor.action = tool != nullptr ? tool->actionOf(handle) : actionOfHandle(handle);
    const bool isAlong =
        cursor.action == HandleAction::MoveAlong || cursor.action == HandleAction::ScaleAlong;
    if (isAlong && !findAngle(stage, handle, cursor.angleDeg)) {
        cursor.angleDeg = 0.0;
        cursor.action = cursor.action == HandleAction::MoveAlong ? HandleAction::MoveInPlane
                                                                 : HandleAction::ScaleAll;
    }
    return cursor;
}

}  // namespace viewer
