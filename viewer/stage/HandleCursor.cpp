// SPDX-License-Identifier: MIT
#include "viewer/stage/HandleCursor.h"

#include "viewer/stage/Stage.h"
#include "viewer/stage/StageTool.h"
#include "viewer/texts/Text.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace viewer {
namespace {

using Action = HandleAction;

struct ActionRow
{
    const char* handle;  ///< with which its name begins
    HandleAction action;
    const char* text;
};

constexpr std::array<ActionRow, 25> kActions { {
    { "xaShape", Action::MoveAlong, QT_TRANSLATE_NOOP("viewer", "Move along x") },
    { "yaShape", Action::MoveAlong, QT_TRANSLATE_NOOP("viewer", "Move along y") },
    { "zaShape", Action::MoveAlong, QT_TRANSLATE_NOOP("viewer", "Move along z") },
    { "xsShape", Action::ScaleAlong, QT_TRANSLATE_NOOP("viewer", "Scale along x") },
    { "ysShape", Action::ScaleAlong, QT_TRANSLATE_NOOP("viewer", "Scale along y") },
    { "zsShape", Action::ScaleAlong, QT_TRANSLATE_NOOP("viewer", "Scale along z") },
    { "grid", Action::ScaleAll, QT_TRANSLATE_NOOP("viewer", "Scale") },
    { "rxShape", Action::Turn, QT_TRANSLATE_NOOP("viewer", "Turn about x") },
    { "ryShape", Action::Turn, QT_TRANSLATE_NOOP("viewer", "Turn about y") },
    { "rzShape", Action::Turn, QT_TRANSLATE_NOOP("viewer", "Turn about z") },
    { "xyaShape", Action::MoveInPlane,
      QT_TRANSLATE_NOOP("viewer", "Move in the plane of x and y") },
    { "xzaShape", Action::MoveInPlane,
      QT_TRANSLATE_NOOP("viewer", "Move in the plane of x and z") },
    { "yzaShape", Action::MoveInPlane,
      QT_TRANSLATE_NOOP("viewer", "Move in the plane of y and z") },
    { "vaShape", Action::MoveInPlane,
      QT_TRANSLATE_NOOP("viewer", "Move in the plane of the screen") },
    { "rvShape", Action::Turn, QT_TRANSLATE_NOOP("viewer", "Turn about the view axis") },
    { "rtShape", Action::Turn, QT_TRANSLATE_NOOP("viewer", "Turn freely") },
    { "xysShape", Action::ScaleAll, QT_TRANSLATE_NOOP("viewer", "Scale along x and y") },
    { "xzsShape", Action::ScaleAll, QT_TRANSLATE_NOOP("viewer", "Scale along x and z") },
    { "yzsShape", Action::ScaleAll, QT_TRANSLATE_NOOP("viewer", "Scale along y and z") },
    { "rotateShape", Action::Turn, QT_TRANSLATE_NOOP("viewer", "Turn") },
    { "scaleXY", Action::ScaleAll, QT_TRANSLATE_NOOP("viewer", "Scale from a corner") },
    { "scaleX", Action::ScaleAll, QT_TRANSLATE_NOOP("viewer", "Scale from an edge") },
    { "scaleY", Action::ScaleAll, QT_TRANSLATE_NOOP("viewer", "Scale from an edge") },
    { "scaleZPlaneShape", Action::ScaleAll, QT_TRANSLATE_NOOP("viewer", "Scale the depth") },
    { "picture", Action::MoveInPlane, QT_TRANSLATE_NOOP("viewer", "Drag the picture") },
} };

/// Null for an unknown handle.
const ActionRow* rowOf(const std::string& handle)
{
    const auto* const row =
        std::find_if(kActions.begin(), kActions.end(), [&handle](const ActionRow& candidate) {
            return handle.rfind(candidate.handle, 0) == 0;
        });
    return row == kActions.end() ? nullptr : row;
}

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
        if (!stage.project(world, px[i])) {
            return false;
        }
    }
    const double right = double(px[1][0]) - double(px[0][0]);
    const double up = double(px[0][1]) - double(px[1][1]);
    angleDeg = std::atan2(up, right) * kDegPerRad;
    angleDeg = angleDeg < 0.0 ? angleDeg + kHalfTurnDeg : angleDeg;
    angleDeg = angleDeg >= kHalfTurnDeg ? 0.0 : angleDeg;
    return std::hypot(right, up) >= kShortestAxisPx;
}

}  // namespace

HandleAction actionOfHandle(const std::string& handle)
{
    const ActionRow* row = rowOf(handle);
    return row != nullptr ? row->action : Action::None;
}

QString textOfHandle(const std::string& handle)
{
    const ActionRow* row = rowOf(handle);
    return row != nullptr ? Text::tr(row->text) : QString::fromStdString(handle);
}

HandleCursor cursorOfHandle(Stage& stage, const std::string& handle)
{
    HandleCursor cursor;
    const StageTool* tool = stage.activeTool();
    cursor.action = tool != nullptr ? tool->actionOf(handle) : actionOfHandle(handle);
    const bool isAlong = cursor.action == Action::MoveAlong || cursor.action == Action::ScaleAlong;
    if (isAlong && !findAngle(stage, handle, cursor.angleDeg)) {
        cursor.angleDeg = 0.0;
        cursor.action = cursor.action == Action::MoveAlong ? Action::MoveInPlane : Action::ScaleAll;
    }
    return cursor;
}

}  // namespace viewer
