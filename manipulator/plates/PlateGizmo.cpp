// SPDX-License-Identifier: MIT
#include "manipulator/plates/PlateGizmo.h"

#include "manipulator/course/ValueText.h"
#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/ContainerReference.h"
#include "manipulator/handles/HandleGroup.h"
#include "manipulator/plates/PlateTable.h"
#include "manipulator/plates/ScreenPlane.h"

#include <nbKernel/nbController.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbMessage.h>

#include <QtGui/QVector2D>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::plates {

namespace {

using Active = ActiveMode;
using Kind = DragParameters::Kind;

// Layers of the plane, in which the higher one lies nearer.
constexpr float kFrameLayer = 0.0F;
constexpr float kGuideLayer = 1.0F;
constexpr float kHandleLayer = 2.0F;
/// A guide on the view's edge is drawn this far inside, so that all of its width is seen.
constexpr float kGuideInset = 1.0F;

CourseRules courseRules()
{
    CourseRules rules;
    rules.isPreparedAtStart = true;
    rules.isHiddenWithoutTarget = true;
    return rules;
}

// == Places and plates

bool isFinite(const PlateFrame& frame)
{
    return std::isfinite(frame.centre.x()) && std::isfinite(frame.centre.y()) &&
        std::isfinite(frame.size.x()) && std::isfinite(frame.size.y()) &&
        std::isfinite(frame.rotation);
}

}  // namespace

PlateGizmo::PlateGizmo(const float& size)
    : Gizmo(courseRules(), handleTable(), makeMaterials(), 0, size)
{
    nbNodeUtils::setIsAuxiliaryNode(handles.getRoot(), true);
    root = makeHandleRootOfPasses(handles.getRoot());
    handles.showRoot(false);
}

// == Plates

void PlateGizmo::setNodes(const std::vector<osg::NodePtr>& nodes)
{
    std::vector<osg::UInt32> ids;
    for (const osg::NodePtr& node : nodes) {
        const osg::UInt32 id = containerId(node);
        if (nbSceneplateList::plateOf(node) != osg::NullFC &&
            std::find(ids.begin(), ids.end(), id) == ids.end()) {
            ids.push_back(id);
        }
    }
    drag.isBroken = drag.isBroken || ids != nodeIds;
    nodeIds = std::move(ids);
    placeIn(View());
}

std::vector<osg::NodePtr> PlateGizmo::getNodes() const
{
    std::vector<osg::NodePtr> nodes;
    for (const osg::UInt32 id : nodeIds) {
        const auto node = resolveContainer<osg::NodePtr>(id);
        if (nbSceneplateList::plateOf(node) != osg::NullFC) {
            nodes.push_back(node);
        }
    }
    return nodes;
}

std::vector<osg::SceneplatePtr> PlateGizmo::getPlates() const
{
    std::vector<osg::SceneplatePtr> found;
    for (const osg::NodePtr& node : getNodes()) {
        found.push_back(nbSceneplateList::plateOf(node));
    }
    return found;
}

// == Placement

void PlateGizmo::place(const View& view)
{
    const PlateView plane { view.getWidth(), view.getHeight(), unitPx() };
    const PlateFrame frame = isGrabbed()
        ? changedFrame(drag.start, drag.change)
        : nbSceneplateLayout::frame(getPlates(), plane.widthPx, plane.heightPx);
    const std::optional<osg::Matrix> worldFromPx = worldFromPixels(view);
    const bool isPlaced = worldFromPx && isFinite(frame);
    if (isPlaced) {
        // While it is held the arm does not change its side.
        const PlateArm side = isGrabbed() ? drag.arm : chooseArm(frame, plane);
        setMatrix(handles.getRoot(), *worldFromPx);
        placeHandles(layOutHandles(frame, side, plane), plane.unitPx);
        placeGuides(plane);
    }
    handles.showRoot(isPlaced);
}

/// Places a rectangle or handle in the plane of pixels: x and y along its own axes (y up on the
/// screen while it is not turned), z in layers.
void PlateGizmo::put(std::size_t row, const osg::Pnt2f& centrePx, float rotation,
                     const osg::Vec2f& size, float layer) const
{
    const auto cosine = static_cast<float>(std::cos(rotation / kDegPerRad));
    const auto sine = static_cast<float>(std::sin(rotation / kDegPerRad));
    osg::Matrix place;
    place[0] = osg::Vec4f(cosine * size.x(), -sine * size.x(), 0.0F, 0.0F);
    place[1] = osg::Vec4f(-sine * size.y(), -cosine * size.y(), 0.0F, 0.0F);
    place[3] = osg::Vec4f(centrePx.x(), centrePx.y(), layer, 1.0F);
    setMatrix(handles.getNode(row), place);
}

void PlateGizmo::placeHandles(const PlateHandles& layout, float unit) const
{
    const osg::Vec2f unitSize(unit, unit);
    for (std::size_t i = 0; i < kPlateCornerCount; ++i) {
        put(i, layout.corners[i], layout.frame.rotation, unitSize * kPlateBoxSize, kHandleLayer);
    }
    put(ArmRow, layout.knob, layout.armRotation, unitSize, kHandleLayer);
    put(BodyRow, layout.frame.centre, layout.frame.rotation, layout.frame.size, kFrameLayer);
}

void PlateGizmo::placeGuides(const PlateView& view)
{
    constexpr float kRight = 90.0F;
    const auto width = static_cast<float>(view.widthPx);
    const auto height = static_cast<float>(view.heightPx);
    const PlateGuides snapped = isGrabbed() ? drag.guides : PlateGuides();
    showNode(handles.getNode(VerticalRow), snapped.hasVertical);
    showNode(handles.getNode(HorizontalRow), snapped.hasHorizontal);
    if (snapped.hasVertical) {
        const float x = std::clamp(snapped.x, kGuideInset, std::max(width - kGuideInset, 1.0F));
        put(VerticalRow, osg::Pnt2f(x, height / 2), 0.0F, osg::Vec2f(1.0F, height / kShaftLength),
            kGuideLayer);
    }
    if (snapped.hasHorizontal) {
        const float y = std::clamp(snapped.y, kGuideInset, std::max(height - kGuideInset, 1.0F));
        put(HorizontalRow, osg::Pnt2f(width / 2, y), kRight, osg::Vec2f(1.0F, width / kShaftLength),
            kGuideLayer);
    }
}

// == Drags

bool PlateGizmo::canStep(const View& view)
{
    return isGrabbed() && !drag.isBroken && view.exists() && view.getWidth() == drag.widthPx &&
        view.getHeight() == drag.heightPx && hasTarget();
}

bool PlateGizmo::prepare(const View& view)
{
    if (!view.exists()) {
        return false;
    }
    drag = Drag();
    drag.widthPx = view.getWidth();
    drag.heightPx = view.getHeight();
    drag.start = nbSceneplateLayout::frame(getPlates(), drag.widthPx, drag.heightPx);
    drag.arm = chooseArm(drag.start, { drag.widthPx, drag.heightPx, unitPx() });
    drag.pressedPx = view.getPointer();
    previewPause.begin();
    return true;
}

DragStep PlateGizmo::parametersAt(const View& view, const DragTrack& before) const
{
    const osg::Vec2f distancePx = view.getPointer() - drag.pressedPx;
    DragTrack next = before;
    switch (handle()) {
    case Active::Move:
        return { { Kind::Pixels, osg::Vec2f(distancePx.x(), -distancePx.y()) }, next };
    case Active::Rotate:
        return turnBetween(drag.start.centre, drag.pressedPx, view.getPointer(), next.turned)
            ? DragStep({ Kind::Angle, next.turned }, next)
            : DragStep(DragStep::Outcome::Waiting, before);
    default:
        return { { Kind::Factor, cornerFactor(drag.start, corner(), precisionActive, distancePx) },
                 next };
    }
}

PlateChange PlateGizmo::changeOf(const DragParameters& parameters, PlateGuides& guides) const
{
    const PlateView view { drag.widthPx, drag.heightPx, unitPx() };
    switch (parameters.kind) {
    case Kind::Pixels: {
        const osg::Vec2f distance = parameters.vec2();
        return moveFrame(drag.start, osg::Vec2f(distance.x(), -distance.y()), view,
                         isSnapping() ? &guides : nullptr);
    }
    case Kind::Angle:
        return turnFrame(drag.start, parameters.values[0], isSnapping());
    default:
        return scaleFrame(drag.start, corner(), precisionActive, parameters.values[0], view,
                          snappingEnabled ? &guides : nullptr);
    }
}

void PlateGizmo::apply(const DragParameters& parameters)
{
    PlateGuides guides;
    const PlateChange change = changeOf(parameters, guides);
    drag.guides = guides;
    if (change == drag.change) {
        return;
    }
    drag.change = change;
    const osg::Vec2f offset = nbSceneplateLayout::toOffset(change.offsetPx, drag.heightPx);
    nbMessage message;
    message.set("scaleFactor", change.scaleFactor, true);
    message.set("offset", QVector2D(offset.x(), offset.y()), true);
    message.set("rotation", change.rotation, true);
    nbController::call("sceneplateChanged", message, 0);
}

// == On-screen text

std::optional<QString> PlateGizmo::describe() const
{
    if (!descriptionEnabled) {
        return QString();
    }
    switch (handle()) {
    case Active::Move:
        return describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Translation ("),
                              { drag.change.offsetPx.x(), -drag.change.offsetPx.y() });
    case Active::Rotate:
        return describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Rotation ("),
                              { drag.start.rotation + drag.change.rotation });
    default:
        return describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Scale ("),
                              { drag.change.scaleFactor });
    }
}

ValueText* PlateGizmo::getText() const
{
    static ValueText notifier("sceneplateInfo");
    return &notifier;
}

}  // namespace nbec::manipulator::plates
