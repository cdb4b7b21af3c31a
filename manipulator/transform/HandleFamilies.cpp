// SPDX-License-Identifier: MIT
#include "manipulator/transform/HandleFamilies.h"

#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/HandleNodes.h"
#include "manipulator/transform/TransformHandles.h"

#include <array>
#include <optional>
#include <utility>

namespace nbec::manipulator::transform {

namespace {

using Active = ActiveMode;
using Kind = DragParameters::Kind;

/// Sine of the angle beyond which an axis points away from the viewer.
constexpr float kLeastAway = 1e-3F;
/// By which the square in the middle lies nearer, over the plane handles, gizmo units.
constexpr float kInFront = 0.6F;

}  // namespace

void HandleFamilies::setFurther(HandleSet& handles, const FurtherHandles& wanted,
                                const osg::NodePtr& copies)
{
    if (!wanted.isAny() && !turnWithView()) {
        return;
    }
    further = wanted;
    handles.extend(makeTable(true), copies);
    sides.resize(handles.getTable().rows.size());
    const std::pair<Active, bool> switches[] = {
        { Active::TranslateView, wanted.centre }, { Active::RotateView, wanted.viewRing },
        { Active::RotateFree, wanted.trackball }, { Active::ScaleXY, wanted.planeScales },
        { Active::ScaleXZ, wanted.planeScales },  { Active::ScaleYZ, wanted.planeScales }
    };
    for (const auto& [each, isOn] : switches) {
        handles.setExcluded(static_cast<int>(each), !isOn);
    }
}

void HandleFamilies::place(HandleSet& handles, const Frame& frame)
{
    const osg::Quaternion gizmoFromWorld = frame.worldFromGizmo.inverse();
    const std::vector<HandleRow>& rows = handles.getTable().rows;
    std::array<std::optional<osg::Quaternion>, 4> families;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const HandleAction& each = rows[i].action;
        if (each.kind == Kind::None ||
            !isInModes(static_cast<int>(frame.mode), rows[i].visibleIn)) {
            continue;
        }
        const bool isFixed = each.kind == Kind::Offset && !each.isOfView;
        if (isFixed && sides.empty()) {
            continue;
        }
        std::optional<osg::Quaternion>& family = families[each.isOfView                   ? 0
                                                              : each.kind == Kind::Angle  ? 1
                                                              : each.kind == Kind::Factor ? 2
                                                                                          : 3];
        if (!family) {
            family =
                isFixed ? frame.worldFromGizmo : frame.stance.axesOf(each, frame.mode, frame.node);
        }
        osg::Quaternion turn = gizmoFromWorld;
        turn.mult(*family);
        osg::Vec3f place;
        if (!sides.empty()) {
            const osg::Quaternion side = sideOf(handles, i, *family, frame);
            turn.mult(side);
            place = each.isOfView && each.kind == Kind::Offset
                ? rotated(gizmoFromWorld, frame.sight * -kInFront)
                : rotated(side, osg::Vec3f(rows[i].place[0], rows[i].place[1], rows[i].place[2]));
        }
        turn.mult(quaternionOf(rows[i].turn));
        if (isFixed) {
            moveNode(handles.getNode(i), place, turn);
        } else {
            placeTransform(osg::Transform3DPtr::dcast(handles.getNode(i)->getCore()), place, turn,
                           osg::Vec3f(1.0F, 1.0F, 1.0F));
        }
    }
}

/// The half turn that brings a handle to the viewer's side of its axes. While one is held it stays.
osg::Quaternion HandleFamilies::sideOf(const HandleSet& handles, std::size_t row,
                                       const osg::Quaternion& worldFromAxes, const Frame& frame)
{
    const HandleRow& of = handles.getTable().rows[row];
    const bool hasSide = further.facesViewer && !of.action.isOfView &&
        of.action.kind != DragParameters::Kind::Angle && of.action.axes != kAllAxes;
    if (!frame.isHeld) {
        const osg::Vec3f away = rotated(worldFromAxes.inverse(), frame.sight);
        sides[row] = 0;
        for (osg::UInt32 axis = 0; axis < 3 && hasSide; ++axis) {
            sides[row] |=
                hasAxis(of.action.axes, axis) && away[axis] > kLeastAway ? axisBit(axis) : 0;
        }
    }
    if (sides[row] == 0) {
        return osg::Quaternion();
    }
    // About the axis that is to stay; where both or the only one go, about one at right angles.
    const unsigned rest = of.action.axes & ~sides[row];
    const unsigned about = rest != 0 ? rest : kAllAxes & ~of.action.axes;
    osg::Quaternion turn;
    turn.setValueAsQuat(hasAxis(about, 0) ? 1.0F : 0.0F, about == 2 || about == 6 ? 1.0F : 0.0F,
                        about == 4 ? 1.0F : 0.0F, 0.0F);
    return turn;
}

}  // namespace nbec::manipulator::transform
