// SPDX-License-Identifier: MIT
#include "manipulator/transform/TransformGizmo.h"

#include "manipulator/course/ValueText.h"
#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/ContainerReference.h"
#include "manipulator/handles/HandleGroup.h"
#include "manipulator/handles/HandleNodes.h"
#include "manipulator/scene/TargetFrame.h"
#include "manipulator/transform/TransformHandles.h"

#include <nbKernel/nbController.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbTransform/nbTransformModel.h>
#include <nbUtils/nbLog.h>
#include <nbUtils/nbMessage.h>

#include <unordered_set>
#include <utility>

namespace nbec::manipulator::transform {

namespace {

using Mode = ManipulatorMode;
using Active = ActiveMode;
using NodeIds = std::unordered_set<osg::UInt32>;

constexpr osg::Int32 kTransformPermission = 19;
constexpr const char* kLockedWarning = "Selected node cannot be transformed.";
constexpr const char* kOutsideWarning =
    "UniversalTransformManipulator2: the node is not moved, it hangs in no scene";
/// Half the length of a mark's lines, in gizmo units.
constexpr float kMarkReach = 0.15F;
/// Deliberate: the rotation precision is turned into radians with this many digits.
constexpr double kDegreeFactor = 3.1415927 / 360.0;

bool hasSelectedAncestor(const osg::NodePtr& node, const NodeIds& selected)
{
    for (osg::NodePtr above = node->getParent(); above != osg::NullFC; above = above->getParent()) {
        if (selected.count(above.getFieldContainerId()) > 0) {
            return true;
        }
    }
    return false;
}

osg::Vec3f toDegrees(const nbEulerAngles& anglesRad)
{
    return nbEulerUtils::toVec3f(nbEulerUtils::toDegrees(anglesRad));
}

/// Text of the values that a handle edits in a mode. Deliberate: the universal mode shows none,
/// whatever the handle, rings show theirs in mode rotate only, scale handles in mode scale only.
/// @param anglesDeg  of the present rotation, as the drag has come to them
QString textOf(const osg::NodePtr& node, Active handle, Mode mode, bool worldSpace,
               const osg::Vec3f& anglesDeg)
{
    if (isRing(handle)) {
        return mode == Mode::Rotate
            ? describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Rotation ("), anglesDeg)
            : QString();
    }
    if (isScale(handle)) {
        return mode == Mode::Scale
            ? describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Scale ("),
                             nbNodeUtils::getTransformNodeScale(node))
            : QString();
    }
    switch (mode) {
    case Mode::Translate:
    case Mode::Clipping:
    case Mode::TranslateRotate:
    case Mode::TranslateRotateYZ:
    case Mode::TranslateRotateScale:
        return describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Translation ("),
                              nbTransformModel::getTranslation(node, worldSpace));
    case Mode::RotatePivot:
        return describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Rotate Pivot ("),
                              nbTransformModel::getRotationPivot(node, worldSpace));
    case Mode::ScalePivot:
        return describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Scale Pivot ("),
                              nbTransformModel::getScalePivot(node, worldSpace));
    default:
        return QString();
    }
}

}  // namespace

TransformGizmo::TransformGizmo(const TransformSettings& shared, const float& size)
    : Gizmo(CourseRules(), handleTable(), makeMaterials(), static_cast<int>(Mode::Translate), size)
    , settings(&shared)
    , multiselection(makeGroupNode())
    , additionalGeometry(makeGroupNode())
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

// == Targets

void TransformGizmo::setNodes(const osg::NodePtr& node, const std::vector<osg::NodePtr>& further)
{
    prepareAnew();  // a drag goes on from here with the new nodes
    watch.forget();
    marks.show(false);
    isOutsideTold = false;
    targetIds = { containerId(node) };
    if (node == osg::NullFC) {
        return;
    }
    NodeIds selected = { node.getFieldContainerId() };
    for (const osg::NodePtr& each : further) {
        selected.insert(containerId(each));
    }
    NodeIds taken = { node.getFieldContainerId() };
    for (const osg::NodePtr& each : further) {
        if (each != osg::NullFC && !nbNodeUtils::hasParent(node, each) &&
            !hasSelectedAncestor(each, selected) &&
            taken.insert(each.getFieldContainerId()).second) {
            targetIds.push_back(each.getFieldContainerId());
        }
    }
    if (targetIds.size() > 1) {
        marks.make(multiselection.get(), targetIds.size() - 1, handles.getMaterial(kYellowLine));
    }
}

osg::NodePtr TransformGizmo::getNode() const
{
    return targetIds.empty() ? osg::NodePtr() : resolveContainer<osg::NodePtr>(targetIds.front());
}

bool TransformGizmo::hasTarget() const
{
    return getNode() != osg::NullFC;
}

bool TransformGizmo::isLocked(std::size_t index) const
{
    const osg::NodePtr target = resolveContainer<osg::NodePtr>(targetIds[index]);
    return target != osg::NullFC && !nbNodePermission::allows(target, kTransformPermission);
}

/// Makes a target a transform, unless it is locked. @return null for one that no longer exists or
/// cannot be one
osg::NodePtr TransformGizmo::getTransform(std::size_t index) const
{
    const osg::NodePtr target = resolveContainer<osg::NodePtr>(targetIds[index]);
    if (target == osg::NullFC) {
        return target;
    }
    const osg::NodePtr edited = index == 0 ? editedNode(target) : target;
    return isLocked(index) ? edited : makeTransform(edited);
}

std::vector<osg::NodePtr> TransformGizmo::resolveTargets() const
{
    std::vector<osg::NodePtr> nodes;
    nodes.reserve(targetIds.size());
    for (const osg::UInt32 id : targetIds) {
        nodes.push_back(resolveContainer<osg::NodePtr>(id));
    }
    nodes.front() = nodes.front() != osg::NullFC ? editedNode(nodes.front()) : nodes.front();
    return nodes;
}

bool TransformGizmo::centerPivot()
{
    const osg::NodePtr node = hasTarget() ? getTransform(0) : osg::NodePtr();
    if (node == osg::NullFC) {
        return false;
    }
    setBothPivots(node, objectCenter(node, false));
    placeIn(View());
    announce();
    return true;
}

// == Placement

bool TransformGizmo::isAtScalePivot() const
{
    return shownMode() == Mode::Scale || shownMode() == Mode::ScalePivot;
}

osg::Pnt3f TransformGizmo::anchorWorld(const osg::NodePtr& node) const
{
    const osg::Transform3DPtr transform = osg::Transform3DPtr::dcast(node->getCore());
    return transform != osg::NullFC ? pivotWorld(node, transform, isAtScalePivot())
                                    : objectCenter(node, true);
}

/// Where the gizmo stands. @param node  the first
osg::Pnt3f TransformGizmo::centerWorld(const osg::NodePtr& node) const
{
    const osg::Pnt3f own = anchorWorld(node);
    if (movesPivot() || pivot == GizmoPivot::Own || pivot == GizmoPivot::First) {
        return own;
    }
    if (hasBegun()) {
        return isTranslation(handle()) ? drag.center + (own - drag.starts.front().anchor)
                                       : drag.center;
    }
    if (pivot == GizmoPivot::Given) {
        return givenPivot;
    }
    osg::Vec3f sum;
    float count = 0.0F;
    for (const osg::NodePtr& each : resolveTargets()) {
        if (each != osg::NullFC) {
            sum += anchorWorld(each).subZero();
            count += 1.0F;
        }
    }
    return osg::Pnt3f(sum * (1.0F / count));
}

/// The axes along which a handle is drawn and works. @param handle  None for the gizmo as a whole
osg::Quaternion TransformGizmo::axesOf(Active handle, const osg::NodePtr& node) const
{
    if (isScale(handle) || (handle == Active::None && shownMode() == Mode::Scale)) {
        return worldRotation(node);  // nothing can be scaled along other axes
    }
    if (!isLocal()) {
        switch (axes) {
        case GizmoAxes::Parent:
            return osg::Quaternion(orthonormalised(parentToWorld(node)));
        case GizmoAxes::View:
            return hasBegun() ? facingAtStart : View().facing();
        case GizmoAxes::Given:
            return givenAxes;
        default:
            return osg::Quaternion();
        }
    }
    const osg::Transform3DPtr transform = osg::Transform3DPtr::dcast(node->getCore());
    if (transform == osg::NullFC) {
        return worldRotation(node);
    }
    return isRing(handle) && transform->getRotationMode() == osg::Transform3D::AxisAlignedMode
        ? osg::Quaternion(orthonormalised(parentToWorld(node)))
        : pivotAxesInWorld(node, transform);
}

void TransformGizmo::place(const View& view)
{
    const osg::NodePtr node = editedNode(getNode());
    const osg::Pnt3f anchor = centerWorld(node);
    const float size = view.scaleAt(anchor, getSize(), ViewDiagonal::FrustumSides);
    watch.remember(node->getToWorld());
    const osg::Quaternion worldFromGizmo = axesOf(Active::None, node);
    placeTransform(handles.getRootTransform(), anchor.subZero(), worldFromGizmo,
                   osg::Vec3f(size, size, size));
    placeFamilies(worldFromGizmo.inverse(), node);
    if (targetIds.size() > 1) {
        placeMarks(size);
    }
    markTarget(size);
}

/// Turns the handles whose axes are others than those of the gizmo as a whole.
void TransformGizmo::placeFamilies(const osg::Quaternion& gizmoFromWorld, const osg::NodePtr& node)
{
    std::optional<osg::Quaternion> scaleAxes;
    std::optional<osg::Quaternion> ringAxes;
    const std::vector<HandleRow>& rows = handleTable().rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto each = static_cast<Active>(rows[i].handle);
        if ((isScale(each) || isRing(each)) && isInModes(getMode(), rows[i].visibleIn)) {
            std::optional<osg::Quaternion>& family = isRing(each) ? ringAxes : scaleAxes;
            if (!family) {
                family = axesOf(each, node);
            }
            osg::Quaternion turn = gizmoFromWorld;
            turn.mult(*family);
            turn.mult(quaternionOf(rows[i].turn));
            placeTransform(osg::Transform3DPtr::dcast(handles.getNode(i)->getCore()), osg::Vec3f(),
                           turn, osg::Vec3f(1.0F, 1.0F, 1.0F));
        }
    }
}

void TransformGizmo::placeMarks(float size)
{
    PivotMarks::Places places(targetIds.size() - 1);
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (const auto node = resolveContainer<osg::NodePtr>(targetIds[i + 1]);
            node != osg::NullFC) {
            places[i] = anchorWorld(node);
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

/// Deliberate: the camera is not looked at, for which the host places all gizmos.
bool TransformGizmo::isDisplaced(const View& /*view*/) const
{
    const osg::NodePtr node = editedNode(getNode());
    const osg::Transform3DPtr placed = handles.getRootTransform();
    // Pivots move without the node.
    return watch.isElsewhere(node->getToWorld()) ||
        (placed->getTranslation() - centerWorld(node).subZero()).length() > 0.0F ||
        placed->getRotationQuaternion() != axesOf(Active::None, node);
}

// == Drags

bool TransformGizmo::canStep(const View& view)
{
    const osg::NodePtr selected = getNode();
    if (selected == osg::NullFC) {
        return false;
    }
    if (selected->getParent() == osg::NullFC) {
        if (!std::exchange(isOutsideTold, true)) {
            nbLog::warning(kOutsideWarning);
        }
        return false;
    }
    if (targetIds.size() == 1 && isLocked(0)) {
        nbLog::warning(kLockedWarning);
        return false;
    }
    return view.exists() && getTransform(0) != osg::NullFC;
}

bool TransformGizmo::prepare(const View& view)
{
    facingAtStart = View().facing();
    GrabbedGizmo held;
    held.handle = handle();
    held.mode = shownMode();
    held.isLocal = isLocal();
    held.grabbedPoint = grabbedPoint;
    const osg::Matrix placed = handles.getRoot()->getToWorld();
    held.unit = column(placed, 0).length();
    held.axes = axesOf(handle(), getTransform(0));
    held.axes.getValue(held.frame);
    held.frame.setTranslate(column(placed, 3));
    drag = prepareManipulator(getTransform(0), held, view, track);
    startStates.clear();
    for (const osg::NodePtr& node : resolveTargets()) {
        const auto core = node != osg::NullFC ? osg::Transform3DPtr::dcast(node->getCore())
                                              : osg::Transform3DPtr();
        startStates.push_back(core != osg::NullFC ? nbTransformState::of(*core)
                                                  : nbTransformState());
    }
    turned.clear();
    bool isAnyLocked = false;
    for (std::size_t i = 0; i < targetIds.size(); ++i) {
        if (i > 0) {
            drag.starts.push_back(captureStart(getTransform(i), held));
        }
        turned.push_back(drag.starts[i].anglesRad);
        drag.starts[i].isLocked = isLocked(i);
        isAnyLocked = isAnyLocked || drag.starts[i].isLocked;
    }
    if (isAnyLocked) {
        nbLog::warning(kLockedWarning);
    }
    if (snapSettings.geometry != 0 && isTranslation(handle())) {
        targets.begin(movesPivot() ? std::vector<osg::NodePtr>() : resolveTargets());
    }
    return true;
}

void TransformGizmo::finish()
{
    targets.end();
    track.target.reset();
    markTarget(0.0F);
}

bool TransformGizmo::movesPivot() const
{
    return shownMode() == Mode::RotatePivot || shownMode() == Mode::ScalePivot;
}

DragStep TransformGizmo::parametersAt(const View& view, const DragTrack& before) const
{
    DragTrack next = before;
    if (findTarget(view, next)) {
        return { { DragParameters::Kind::Offset, offsetTo(drag, next.target->point, isLocal()) },
                 next };
    }
    const std::optional<osg::Line> ray = view.pointerRay();
    const std::optional<osg::Pnt3f> point =
        isRing(handle()) ? drag.ring.follow(ray, next) : followPlane(drag.plane, ray, next);
    if (!point) {
        return DragStep();
    }
    if (isRing(handle())) {
        return turnAt(*point, next);
    }
    if (isScale(handle()) && !movesPivot()) {
        return { { DragParameters::Kind::Factor, factorAt(drag, *point, view.upAxis()) }, next };
    }
    return { { DragParameters::Kind::Offset, snappedOffset(offsetAt(drag, *point, isLocal())) },
             next };
}

/// Looks for a place in the scene that the drag snaps to. @return whether there is one
bool TransformGizmo::findTarget(const View& view, DragTrack& next) const
{
    next.target = isSnapping() && isTranslation(handle())
        ? targets.find(view.getPointer(), snapSettings.geometry, snapSettings.reachPx, next.target)
        : std::nullopt;
    return next.target.has_value();
}

osg::Vec3f TransformGizmo::snappedOffset(const osg::Vec3f& offset) const
{
    const double step = nbTransformModel::the()->getTranslationPrecision();
    if (!isSnapping() || movesPivot()) {  // Deliberate: no step holds pivots.
        return offset;
    }
    return snapSettings.isAbsolute ? withSnappedPlace(drag, offset, step, isLocal())
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
        next.turned = computeRotation(drag.dragStartLocal, place, axisOf(handle()));
        return { { DragParameters::Kind::Angle, next.turned * kDegPerRad }, next };
    }
    const double precision = isSnapping() ? nbTransformModel::the()->getRotationPrecision() : 0.0;
    const double step = 2.0 * precision * kDegreeFactor;
    double angle = computeRotation(before.last, place, axisOf(handle()));
    const bool isGathered = snapRule == SnapRule::Gathered && !snapSettings.isAbsolute;
    if (isGathered) {
        angle = snapped(angle, step);
        if (angle == 0.0 && isSnapping()) {
            // Deliberate: the last point stays, so that small motions add up until they pass half a
            // step.
            return DragStep(DragStep::Outcome::Waiting, before);
        }
    }
    next.last = place;
    next.turned += angle;
    const double zero = snapSettings.isAbsolute ? turnAtStart(drag.starts.front()) : 0.0;
    const double total =
        isGathered || step == 0.0 ? next.turned : snapped(zero + next.turned, step) - zero;
    return { { DragParameters::Kind::Angle, total * kDegPerRad }, next };
}

/// New value of a target: one of the five transformations. @param turn  by a ring, for all
osg::Vec3f TransformGizmo::valueOf(std::size_t target, const DragParameters& parameters,
                                   const HalfTurn& turn)
{
    const TransformStart& start = drag.starts[target];
    if (isRing(handle())) {
        turned[target] = turnedAngles(start, turn, turned[target]);
        return toDegrees(turned[target]);
    }
    const osg::Vec3f offset = isLocal() ? parameters.vec3() : rotated(drag.axes, parameters.vec3());
    if (movesPivot()) {
        return movedPivot(start, offset, isLocal());
    }
    if (isScale(handle())) {
        const double step = isSnapping() && !parameters.isExact
            ? nbTransformModel::the()->getScalePrecision()
            : 0.0;
        return scaledBy(start, handle(), parameters.first(), step, snapRule);
    }
    return movedTranslation(start, offset, isLocal());
}

/// World translation of a target that is turned or scaled about the gizmo's centre. A snapped scale
/// takes it as far as its own size has changed.
osg::Vec3f TransformGizmo::orbitOf(std::size_t target, const DragParameters& parameters)
{
    const TransformStart& start = drag.starts[target];
    if (isRing(handle())) {
        return orbitedTranslation(drag, start, parameters.values[0] / kDegPerRad, 1.0F);
    }
    const osg::UInt32 axis = handle() == Active::ScaleUniform ? 0 : axisOf(handle());
    const float scale = valueOf(target, parameters, HalfTurn(0.0))[axis];
    return orbitedTranslation(drag, start, 0.0,
                              start.scale[axis] != 0.0F ? scale / start.scale[axis] : 1.0F);
}

void TransformGizmo::apply(const DragParameters& parameters)
{
    nbTransformModel* const model = nbTransformModel::the();
    const std::vector<osg::NodePtr> nodes = resolveTargets();
    const auto count = static_cast<osg::UInt32>(nodes.size());
    const HalfTurn turn(isRing(handle()) ? parameters.values[0] / kDegPerRad : 0.0);
    const auto values = [&](osg::UInt32 i) {
        return drag.starts[i].isLocked
            ? nbTransformModel::Value()
            : nbTransformModel::Value({ nodes[i], static_cast<osg::Int32>(i) },
                                      valueOf(i, parameters, turn));
    };
    const bool worldSpace = !isLocal();
    const nbScopedUndo scope;
    if (pivot != GizmoPivot::Own && !movesPivot() && !isTranslation(handle())) {
        model->setTranslation(count, true, [&](osg::UInt32 i) {
            return drag.starts[i].isLocked
                ? nbTransformModel::Value()
                : nbTransformModel::Value({ nodes[i], static_cast<osg::Int32>(i) },
                                          orbitOf(i, parameters));
        });
    }
    if (isRing(handle())) {
        movesPivot() ? model->setRotationPivotOrientation(count, values)
                     : model->setRotation(count, values);
    } else if (shownMode() == Mode::RotatePivot) {
        model->setRotationPivot(count, worldSpace, values);
    } else if (shownMode() == Mode::ScalePivot) {
        model->setScalePivot(count, worldSpace, values);
    } else if (isScale(handle())) {
        model->setScale(count, values);
    } else {
        model->setTranslation(count, worldSpace, values);
    }
}

void TransformGizmo::restore()
{
    const nbScopedUndo scope;
    const std::vector<osg::NodePtr> nodes = resolveTargets();
    for (std::size_t i = 0; i < nodes.size() && i < startStates.size(); ++i) {
        const auto core = nodes[i] != osg::NullFC ? osg::Transform3DPtr::dcast(nodes[i]->getCore())
                                                  : osg::Transform3DPtr();
        if (core != osg::NullFC) {
            startStates[i].applyTo(core);
        }
    }
}

void TransformGizmo::announce()
{
    nbMessage changed;
    nbController::call("nbTransform::changedTransformation", changed, 0);
    nbMessage updated;
    nbController::call("nbTransform::updateTransformation", updated, 0);
    nbController::setModified(1);
}

// == On-screen text

std::optional<QString> TransformGizmo::describe() const
{
    if (movesPivot() && isRing(handle())) {
        return std::nullopt;  // Deliberate: the text of before stays.
    }
    const osg::NodePtr node = getNode();
    return node != osg::NullFC && descriptionEnabled
        ? textOf(editedNode(node), handle(), shownMode(), !isLocal(), toDegrees(turned.front()))
        : QString();
}

ValueText* TransformGizmo::getText() const
{
    static ValueText notifier("transformInfo");
    return &notifier;
}

}  // namespace nbec::manipulator::transform
