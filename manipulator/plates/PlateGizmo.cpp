// SPDX-License-Identifier: MIT
#include "manipulator/plates/PlateGizmo.h"

#include "manipulator/course/ValueText.h"
#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/HandleNodes.h"
#include "manipulator/plates/PlateTable.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbGuard.h>
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

constexpr CourseRules kRules = {
    /*isPreparedAtStart*/ true, /*isHoverKept*/ false,
    /*isGrabbedLit*/ true,      /*isEndedByDeactivation*/ true,
    /*isPreviewPaused*/ false,  /*isHiddenWithoutTarget*/ true
};

// == The plane of the screen

/// Part of the plane's distance by which a layer lies nearer to the eye. Rounding of coordinates is
/// far less; what lies r pixels off the view's centre is displaced by 1e-5 r pixels.
constexpr double kScreenLayer = 1e-5;
/// Part of the depth range that the plane keeps away from its ends.
constexpr double kDepthMargin = 1e-3;

double planeDistance(const osg::UberCameraPtr& camera)
{
    const double nearest = camera->getNear();
    const double farthest = std::max<double>(camera->getFar(), nearest);
    const double margin = kDepthMargin * (farthest - nearest);
    return std::clamp<double>(camera->getFrom().dist(camera->getAt()), nearest + margin,
                              farthest - margin);
}

/// World from the pixels of a view, for handles that lie flat on the screen: x to the right and y
/// down in device pixels from the view's top left corner, z in layers towards the eye, which order
/// what overlaps. The plane stands at right angles to the view axis, as far away as the point that
/// the camera looks at, or the nearest distance inside of the depth range.
/// @return 4x4, column vectors, affine; nothing for a view without area
std::optional<osg::Matrix> worldFromPixels(const View& view)
{
    const osg::UberCameraPtr camera =
        view.exists() ? view.getWidget()->getUberCamera() : osg::UberCameraPtr();
    if (camera == osg::NullFC || view.getWidth() <= 0 || view.getHeight() <= 0) {
        return std::nullopt;
    }
    const auto width = static_cast<osg::UInt32>(view.getWidth());
    const auto height = static_cast<osg::UInt32>(view.getHeight());
    osg::Matrix clipFromView;
    camera->getProjection(clipFromView, width, height);
    osg::Matrix viewFromWorld;
    camera->getViewing(viewFromWorld, width, height);
    const double distance = planeDistance(camera);
    // At this distance the view spans -right .. right and -top .. top; clip w is 1 in an
    // orthographic view.
    const double w = clipFromView[3][3] - distance * clipFromView[2][3];
    const double right = w / clipFromView[0][0];
    const double top = w / clipFromView[1][1];
    osg::Matrix viewFromPx;
    viewFromPx[0][0] = static_cast<float>(2.0 * right / width);
    viewFromPx[1][1] = static_cast<float>(-2.0 * top / height);
    viewFromPx[2][2] = static_cast<float>(distance * kScreenLayer);
    viewFromPx.setTranslate(static_cast<float>(-right), static_cast<float>(top),
                            static_cast<float>(-distance));
    osg::Matrix worldFromPx;
    viewFromWorld.inverse(worldFromPx);
    worldFromPx.mult(viewFromPx);
    return worldFromPx;
}

}  // namespace

PlateGizmo::PlateGizmo(const float& size)
    : Gizmo(kRules, makeTable(), makeMaterials(), 0, size)
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
    showBoxes();
}

void PlateGizmo::setResize(PlateResize function)
{
    resize = std::move(function);
    showBoxes();
}

/// A frame around several plates has sides that are not theirs.
void PlateGizmo::showBoxes()
{
    const int wanted = resize && getNodes().size() == 1 ? CornersAndSides : Corners;
    if (wanted != getMode()) {
        activateMode(wanted);
    } else {
        placeIn(View());
    }
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

/// What the other plates that are seen offer to snap to, in the view of the drag.
PlateNeighbours PlateGizmo::findNeighbours() const
{
    PlateNeighbours result;
    for (const auto& entry : nbSceneplateList::collectShown(nbScenegraph::getSceneplateRoot())) {
        const osg::UInt32 id = containerId(entry.node);
        if (std::find(nodeIds.begin(), nodeIds.end(), id) != nodeIds.end()) {
            continue;
        }
        const auto corners =
            nbSceneplateLayout::corners(entry.plate, drag.view.widthPx, drag.view.heightPx);
        for (const osg::UInt32 axis : { 0U, 1U }) {
            const auto [low, high] = std::minmax(
                { corners[0][axis], corners[1][axis], corners[2][axis], corners[3][axis] });
            result.edges[axis].insert(result.edges[axis].end(), { low, high });
            result.centres[axis].push_back(0.5F * (low + high));
        }
    }
    return result;
}

// == Placement

float PlateGizmo::unitPx() const
{
    return nbOSGWidget::getPixelRatio(-1) * getSize() / kDefaultManipulatorSize;
}

/// Whether a drag's pixels are those of a view.
bool PlateGizmo::isDragged(const View& view) const
{
    return isGrabbed() && view.getWidth() == drag.view.widthPx &&
        view.getHeight() == drag.view.heightPx;
}

void PlateGizmo::place(const View& view)
{
    const PlateView plane { view.getWidth(), view.getHeight(), unitPx() };
    const PlateFrame frame = isDragged(view)
        ? changedFrame(drag.start, drag.change)
        : nbSceneplateLayout::frame(getPlates(), plane.widthPx, plane.heightPx);
    const std::optional<osg::Matrix> worldFromPx = worldFromPixels(view);
    const bool isPlaced = worldFromPx &&
        std::isfinite(frame.centre.x() + frame.centre.y() + frame.size.x() + frame.size.y() +
                      frame.rotation);
    if (isPlaced) {
        const PlateStance stance = isGrabbed() ? drag.stance : chooseStance(frame, plane);
        setMatrix(handles.getRoot(), *worldFromPx);
        placeHandles(layOutHandles(frame, stance, plane));
        placeGuides(plane, isDragged(view) ? drag.guides : PlateGuides());
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

void PlateGizmo::placeHandles(const PlateHandles& layout) const
{
    const osg::Vec2f unitSize(layout.unitPx, layout.unitPx);
    for (std::size_t i = 0; i < kPlateBoxCount; ++i) {
        put(i, layout.boxes[i], layout.frame.rotation, unitSize * kPlateBoxSize, kHandleLayer);
    }
    put(ArmRow, layout.knob, layout.armRotation, unitSize, kHandleLayer);
    put(BodyRow, layout.frame.centre, layout.frame.rotation, layout.frame.size, kFrameLayer);
}

void PlateGizmo::placeGuides(const PlateView& view, const PlateGuides& guides) const
{
    constexpr float kRight = 90.0F;
    const float size[] = { static_cast<float>(view.widthPx), static_cast<float>(view.heightPx) };
    for (const std::size_t axis : { 0U, 1U }) {
        const std::optional<float> line = guides[axis];
        showNode(handles.getNode(VerticalRow + axis), line.has_value());
        if (line) {
            osg::Pnt2f middle(size[0] / 2, size[1] / 2);
            middle[axis] = std::clamp(*line, kGuideInset, std::max(size[axis] - kGuideInset, 1.0F));
            put(VerticalRow + axis, middle, axis == 0 ? 0.0F : kRight,
                osg::Vec2f(1.0F, size[1 - axis] / kShaftLength), kGuideLayer);
        }
    }
}

osg::Pnt3f PlateGizmo::centreOfDrag() const
{
    return osg::Pnt3f(column(handles.getNode(BodyRow)->getToWorld(), 3));
}

// == Drags

bool PlateGizmo::canStep(const View& view)
{
    return isDragged(view) && !drag.isBroken && view.exists() && hasTarget();
}

bool PlateGizmo::prepare(const View& view)
{
    if (!view.exists()) {
        return false;
    }
    drag = Drag();
    drag.view = { view.getWidth(), view.getHeight(), unitPx() };
    drag.start = nbSceneplateLayout::frame(getPlates(), drag.view.widthPx, drag.view.heightPx);
    drag.stance = chooseStance(drag.start, drag.view);
    drag.pressedPx = view.getPointer();
    if (snapsToPlates) {
        drag.view.neighbours = findNeighbours();
    }
    previewPause.begin();
    return true;
}

std::size_t PlateGizmo::box() const
{
    const int first = handle() < Active::SizeLeft
        ? static_cast<int>(Active::ScaleLowerLeft)
        : static_cast<int>(Active::SizeLeft) - static_cast<int>(kPlateCornerCount);
    return static_cast<std::size_t>(getArmed() - first);
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
        return { { Kind::Factor, boxFactor(drag.start, box(), precisionActive, distancePx) },
                 next };
    }
}

PlateChange PlateGizmo::changeOf(const DragParameters& parameters, PlateGuides& guides) const
{
    PlateGuides* const snapped = parameters.isExact ? nullptr : &guides;
    switch (parameters.kind) {
    case Kind::Pixels: {
        const osg::Vec2f distance = parameters.vec2();
        return moveFrame(drag.start, osg::Vec2f(distance.x(), -distance.y()), drag.view,
                         isSnapping() ? snapped : nullptr);
    }
    case Kind::Angle:
        return turnFrame(drag.start, parameters.values[0], isSnapping() && snapped != nullptr);
    default:
        return scaleFrame(drag.start, box(), precisionActive, parameters.values[0], drag.view,
                          snappingEnabled ? snapped : nullptr);
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
    send(change);
}

void PlateGizmo::send(const PlateChange& change) const
{
    const osg::Vec2f offset = nbSceneplateLayout::toOffset(change.offsetPx, drag.view.heightPx);
    if (handle() >= Active::SizeLeft) {
        const PlateResize call = resize;  // which may set another one
        nbGuarded("nbSceneplateManipulator: the function that sizes a plate",
                  [&] { call(change.sizeFactors, offset); });
        return;
    }
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
                              { drag.change.scaleFactor * drag.change.sizeFactors.x() *
                                drag.change.sizeFactors.y() });
    }
}

}  // namespace nbec::manipulator::plates
