// SPDX-License-Identifier: MIT
#include "manipulator/transform/TransformGizmo.h"

#include "manipulator/course/ValueText.h"
#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/HandleNodes.h"
#include "manipulator/scene/TargetFrame.h"
#include "manipulator/transform/TransformHandles.h"

#include <nbKernel/nbController.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbTransform/nbTransformModel.h>
#include <nbUtils/nbLog.h>
#include <nbUtils/nbMessage.h>

#include <utility>

namespace nbec::manipulator::transform {

namespace {

using Mode = ManipulatorMode;
using Kind = DragParameters::Kind;

constexpr const char* kLockedWarning = "Selected node cannot be transformed.";
constexpr const char* kOutsideWarning =
    "UniversalTransformManipulator2: the node is not moved, it hangs in no scene";
/// Half the length of a mark's lines, in gizmo units.
constexpr float kMarkReach = 0.15F;
/// Deliberate: the rotation precision is turned into radians with this many digits.
constexpr double kDegreeFactor = 3.1415927 / 360.0;

/// By which a sum of small turns may be off its true value, radians.
constexpr double kSumRounding = 1e-9;

/// What a handle that turns has come to, radians; see screenTurnAt().
osg::Vec2d turnOf(const DragParameters& parameters)
{
    return { parameters.values[0] / kDegPerRad, parameters.values[1] / kDegPerRad };
}

osg::Vec3f toDegrees(const nbEulerAngles& anglesRad)
{
    return nbEulerUtils::toVec3f(nbEulerUtils::toDegrees(anglesRad));
}

}  // namespace

TransformGizmo::TransformGizmo(const TransformSettings& shared, const float& size)
    : Gizmo(CourseRules(), makeTable(false), makeMaterials(), static_cast<int>(Mode::Translate),
            size)
    , stance { &shared }
    , multiselection(osg::makeCoredNode<osg::Group>())
    , additionalGeometry(osg::makeCoredNode<osg::Group>())
{
    nbNodeUtils::setIsAuxiliaryNode(handles.getRoot(), true);
    nbNodeUtils::setIsAuxiliaryNode(multiselection.get(), true);
    nbNodeUtils::setIsAuxiliaryNode(additionalGeometry.get(), true);
    root = makeHandleRootOfPasses(handles.getRoot());
    const nbEdit edit(root.get(), osg::Node::ChildrenFieldMask);
    root->insertChild(0, multiselection.get());
    root->insertChild(2, additionalGeometry.get());
    handles.showRoot(false);
}

void TransformGizmo::setNodes(const osg::NodePtr& node, const std::vector<osg::NodePtr>& further)
{
    prepareAnew();  // a drag goes on from here with the new nodes
    watch.forget();
    marks.show(false);
    isOutsideTold = false;
    stance.heldFacing.reset();
    drag.starts.clear();  // also if the host sets nodes while the former ones are captured
    targets.set(node, further);
    if (targets.count() > 1) {
        marks.make(multiselection.get(), targets.count() - 1, handles.getMaterial(kYellowLine));
    }
}

void TransformGizmo::setFurther(const FurtherHandles& wanted)
{
    families.setFurther(handles, wanted, root->getChild(1)->getChild(0));
    handles.show(getMode(), isHeld() ? getArmed() : 0);
    placeIn(View());
}

bool TransformGizmo::centerPivot()
{
    const osg::NodePtr node = hasTarget() ? targets.makeEditable(0) : osg::NodePtr();
    if (node == osg::NullFC) {
        return false;
    }
    setBothPivots(node, objectCenter(node, false));
    placeIn(View());
    announce();
    return true;
}

// == Placement

osg::Pnt3f TransformGizmo::centerWorld(const osg::NodePtr& node) const
{
    if (!hasBegun() || !stance.hasOnePoint(shownMode())) {
        return stance.centre(node, shownMode(), targets);
    }
    return drag.action.kind == Kind::Offset
        ? drag.center + (stance.anchor(node, shownMode()) - drag.starts.front().anchor)
        : drag.center;
}

void TransformGizmo::place(const View& view)
{
    const osg::NodePtr node = editedNode(targets.first());
    const osg::Pnt3f anchor = centerWorld(node);
    const float size = view.scaleAt(anchor, getSize(), ViewDiagonal::FrustumSides);
    watch.remember(node->getToWorld());
    osg::Vec3f sight;
    if (families.turnWithView()) {
        watch.remember(view);
        sight = view.sightAt(anchor);
    }
    const osg::Quaternion worldFromGizmo = stance.axesOf({}, shownMode(), node);
    placeTransform(handles.getRootTransform(), anchor.subZero(), worldFromGizmo,
                   osg::Vec3f(size, size, size));
    families.place(handles, { stance, shownMode(), node, worldFromGizmo, sight, isHeld() });
    if (targets.count() > 1) {
        placeMarks(size);
    }
    markTarget(size);
}

void TransformGizmo::placeMarks(float size)
{
    PivotMarks::Places places(targets.count() - 1);
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (const osg::NodePtr node = targets.get(i + 1); node != osg::NullFC) {
            places[i] = stance.anchor(node, shownMode());
        }
    }
    marks.draw(places, size * kMarkReach);
}

/// Marks the place to which the drag has snapped.
void TransformGizmo::markTarget(float size)
{
    const bool isSnapped = track.target && !isTyping();
    if (isSnapped && !targetMark.exists()) {
        targetMark.make(additionalGeometry.get(), 1, handles.getMaterial(kOrangeLine));
    }
    targetMark.show(isSnapped);
    if (isSnapped) {
        targetMark.draw({ track.target->point }, size * kMarkReach);
    }
}

/// Deliberate: the camera is not looked at, for which the host places all gizmos, but where further
/// handles turn with it.
bool TransformGizmo::isDisplaced(const View& view) const
{
    const osg::NodePtr node = editedNode(targets.first());
    const osg::Transform3DPtr placed = handles.getRootTransform();
    // Pivots move without the node.
    return watch.isElsewhere(node->getToWorld()) ||
        (families.turnWithView() && watch.isSeenOtherwise(view)) ||
        (placed->getTranslation() - centerWorld(node).subZero()).length() > 0.0F ||
        placed->getRotationQuaternion() != stance.axesOf({}, shownMode(), node);
}

// == Drags

bool TransformGizmo::canStep(const View& view)
{
    const osg::NodePtr selected = targets.first();
    if (selected == osg::NullFC) {
        return false;
    }
    if (selected->getParent() == osg::NullFC) {
        if (!std::exchange(isOutsideTold, true)) {
            nbLog::warning(kOutsideWarning);
        }
        return false;
    }
    if (targets.count() == 1 && targets.isLocked(0)) {
        nbLog::warning(kLockedWarning);
        return false;
    }
    return view.exists() && targets.makeEditable(0) != osg::NullFC;
}

bool TransformGizmo::prepare(const View& view)
{
    stance.heldFacing = View().facing();
    GrabbedGizmo held;
    held.action = handles.findRow(getArmed())->action;
    held.mode = shownMode();
    held.isLocal = stance.isOwn() && !held.action.isOfView;
    held.grabbedPoint = grabbedPoint;
    const osg::Matrix placed = handles.getRoot()->getToWorld();
    held.unit = column(placed, 0).length();
    const osg::NodePtr first = targets.makeEditable(0);
    held.axes = stance.axesOf(held.action, shownMode(), first);
    held.axes.getValue(held.frame);
    held.frame.setTranslate(column(placed, 3));
    drag = prepareManipulator(first, held, view, track);
    targets.capture();
    turned.clear();
    bool isAnyLocked = false;
    for (std::size_t i = 0; i < targets.count(); ++i) {
        if (i > 0) {
            drag.starts.push_back(captureStart(targets.makeEditable(i), held));
        }
        turned.push_back(drag.starts[i].anglesRad);
        drag.starts[i].isLocked = targets.isLocked(i);
        isAnyLocked = isAnyLocked || drag.starts[i].isLocked;
    }
    if (isAnyLocked) {
        nbLog::warning(kLockedWarning);
    }
    if (snapSettings.geometry != 0 && drag.action.kind == Kind::Offset) {
        snapSearch.begin(movesPivot() ? std::vector<osg::NodePtr>() : targets.edited());
    }
    return !drag.starts.empty();
}

void TransformGizmo::finish()
{
    snapSearch.end();
    track.target.reset();
    stance.heldFacing.reset();
    markTarget(0.0F);
}

DragStep TransformGizmo::parametersAt(const View& view, const DragTrack& before) const
{
    DragTrack next = before;
    if (findTarget(view, next)) {
        return { { Kind::Offset, offsetBetween(drag, drag.center, next.target->point, isLocal()) },
                 next };
    }
    const std::optional<osg::Pnt3f> point = drag.path.follow(view.pointerRay(), next);
    if (!point) {
        return DragStep();
    }
    if (drag.action.kind == Kind::Angle) {
        return turnAt(*point, next);
    }
    if (drag.action.kind == Kind::Turns) {
        const osg::Vec2d turn = screenTurnAt(drag, *point) * kDegPerRad;
        const double step = turnStepDeg();
        DragParameters rolled(Kind::Turns, osg::Vec2f());
        rolled.values = { snapped(turn.x(), step), snapped(turn.y(), step), 0.0 };
        return { rolled, next };
    }
    if (drag.action.kind == Kind::Factor && !movesPivot()) {
        return { { Kind::Factor, factorAt(drag, *point, view.upAxis()) }, next };
    }
    const osg::Vec3f offset = offsetBetween(drag, drag.dragStartWorld, *point, isLocal());
    return { { Kind::Offset, snappedOffset(offset) }, next };
}

/// Looks for a place in the scene that the drag snaps to. @return whether there is one
bool TransformGizmo::findTarget(const View& view, DragTrack& next) const
{
    next.target = isSnapping() && drag.action.kind == Kind::Offset
        ? snapSearch.find(view.getPointer(), snapSettings.geometry, snapSettings.reachPx,
                          next.target)
        : std::nullopt;
    return next.target.has_value();
}

osg::Vec3f TransformGizmo::snappedOffset(const osg::Vec3f& offset) const
{
    const double step = nbTransformModel::the()->getTranslationPrecision();
    if (!isSnapping() || movesPivot()) {  // Deliberate: no step holds pivots.
        return offset;
    }
    return snapSettings.isAbsolute && !drag.action.isOfView
        ? withSnappedPlace(drag, offset, step, isLocal())
        : withSnappedLength(offset, step);
}

double TransformGizmo::turnStepDeg() const
{
    return isSnapping() ? nbTransformModel::the()->getRotationPrecision() : 0.0;
}

DragStep TransformGizmo::turnAt(const osg::Pnt3f& point, const DragTrack& before) const
{
    DragTrack next = before;
    const osg::Pnt3f place = mapped(drag.inverseDragFrame, point);
    if (movesPivot()) {
        next.turned = computeRotation(drag.dragStartLocal, place, drag.action.axis());
        return { { Kind::Angle, next.turned * kDegPerRad }, next };
    }
    const double step = 2.0 * turnStepDeg() * kDegreeFactor;
    double angle = computeRotation(before.last, place, drag.action.axis());
    const bool isGathered = snapRule == SnapRule::Gathered && !snapSettings.isAbsolute;
    if (isGathered) {
        angle = snapped(angle, step);
        if (angle == 0.0 && isSnapping()) {
            // Deliberate: the last point stays, so that small motions add up to half a step.
            return DragStep(DragStep::Outcome::Waiting, before);
        }
    }
    next.last = place;
    next.turned += angle;
    // A sum of steps is off by its rounding, and would be back at the start as well.
    const double direct = computeRotation(drag.dragStartLocal, place, drag.action.axis());
    const double off = std::remainder(next.turned - direct, 360.0 / kDegPerRad);
    next.turned -= std::abs(off) < kSumRounding ? off : 0.0;
    const double zero = snapSettings.isAbsolute ? turnAtStart(drag.starts.front()) : 0.0;
    const double total =
        isGathered || step == 0.0 ? next.turned : snapped(zero + next.turned, step) - zero;
    return { { Kind::Angle, total * kDegPerRad }, next };
}

/// New value of a target: one of the five transformations. @param turn  by a ring, for all
osg::Vec3f TransformGizmo::valueOf(std::size_t target, const DragParameters& parameters,
                                   const HalfTurn& turn)
{
    const TransformStart& start = drag.starts[target];
    if (drag.action.isTurn()) {
        turned[target] = drag.action.kind == Kind::Angle
            ? turnedAngles(start, turn, turned[target])
            : turnedFreely(start, turnOf(parameters), turned[target]);
        return toDegrees(turned[target]);
    }
    if (drag.action.kind == Kind::Factor && !movesPivot()) {
        return scaleOf(start, parameters);
    }
    const osg::Vec3f offset = isLocal() ? parameters.vec3() : rotated(drag.axes, parameters.vec3());
    return moved(start, movesPivot() ? start.pivot : start.translation, offset, isLocal());
}

osg::Vec3f TransformGizmo::scaleOf(const TransformStart& start,
                                   const DragParameters& parameters) const
{
    const double step =
        isSnapping() && !parameters.isExact ? nbTransformModel::the()->getScalePrecision() : 0.0;
    return scaledBy(start, drag.action.axes, parameters.first(), step, snapRule);
}

/// World translation of a target that is turned or scaled about the gizmo's centre. A snapped scale
/// takes it as far as its own size has changed.
osg::Vec3f TransformGizmo::orbitOf(std::size_t target, const DragParameters& parameters)
{
    const TransformStart& start = drag.starts[target];
    if (drag.action.isTurn()) {
        return turnedTranslation(drag, start, turnOf(parameters));
    }
    const osg::UInt32 axis = firstAxis(drag.action.axes);
    const float scale = valueOf(target, parameters, HalfTurn(0.0))[axis];
    return scaledTranslation(drag, start,
                             start.scale[axis] != 0.0F ? scale / start.scale[axis] : 1.0F);
}

void TransformGizmo::apply(const DragParameters& parameters)
{
    nbTransformModel* const model = nbTransformModel::the();
    const std::vector<osg::NodePtr> nodes = targets.edited();
    const auto count = static_cast<osg::UInt32>(nodes.size());
    const HalfTurn turn(turnOf(parameters).x());
    const auto valueFor = [&](osg::UInt32 i, const osg::Vec3f& value) {
        return nbTransformModel::Value({ nodes[i], static_cast<osg::Int32>(i) }, value);
    };
    const auto values = [&](osg::UInt32 i) {
        return drag.starts[i].isLocked ? nbTransformModel::Value()
                                       : valueFor(i, valueOf(i, parameters, turn));
    };
    const nbScopedUndo scope;
    if (stance.pivot != GizmoPivot::Own && !movesPivot() && drag.action.kind != Kind::Offset) {
        model->setTranslation(count, true, [&](osg::UInt32 i) {
            return drag.starts[i].isLocked ? nbTransformModel::Value()
                                           : valueFor(i, orbitOf(i, parameters));
        });
    }
    if (drag.action.isTurn()) {
        movesPivot() ? model->setRotationPivotOrientation(count, values)
                     : model->setRotation(count, values);
    } else if (shownMode() == Mode::RotatePivot) {
        model->setRotationPivot(count, !isLocal(), values);
    } else if (shownMode() == Mode::ScalePivot) {
        model->setScalePivot(count, !isLocal(), values);
    } else if (drag.action.kind == Kind::Factor) {
        model->setScale(count, values);
    } else {
        model->setTranslation(count, !isLocal(), values);
    }
}

void TransformGizmo::restore()
{
    const nbScopedUndo scope;
    targets.restore();
}

void TransformGizmo::announce()
{
    nbMessage changed;
    nbController::call("nbTransform::changedTransformation", changed, 0);
    nbMessage updated;
    nbController::call("nbTransform::updateTransformation", updated, 0);
    nbController::setModified(1);
}

DragParameters TransformGizmo::becomes(const DragParameters& parameters) const
{
    if (drag.action.isOfView) {
        return {};
    }
    switch (parameters.kind) {
    case Kind::Offset:
        return { Kind::Offset, startPlace(drag, isLocal(), movesPivot()) + parameters.vec3() };
    case Kind::Angle:
        return { Kind::Angle,
                 turnAtStart(drag.starts.front()) * kDegPerRad + parameters.values[0] };
    case Kind::Factor:
        return { Kind::Factor, scaleOf(drag.starts.front(), parameters) };
    default:
        return {};
    }
}

std::optional<QString> TransformGizmo::describe() const
{
    if (movesPivot() && drag.action.isTurn()) {
        return std::nullopt;  // Deliberate: the text of before stays.
    }
    return descriptionEnabled
        ? targets.describe(drag.action, shownMode(), !isLocal(), toDegrees(turned.front()))
        : QString();
}

}  // namespace nbec::manipulator::transform
