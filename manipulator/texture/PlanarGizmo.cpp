// SPDX-License-Identifier: MIT
#include "manipulator/texture/PlanarGizmo.h"

#include "manipulator/course/ValueText.h"
#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/HandleNodes.h"
#include "manipulator/scene/TargetFrame.h"
#include "manipulator/texture/PlanarHandles.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbMessage.h>

#include <OpenSG/OSGImage.h>

#include <cmath>

namespace nbec::manipulator::texture {

namespace {

using Active = PlanarActiveMode;
using Kind = DragParameters::Kind;

constexpr CourseRules kRules = { /*isPreparedAtStart*/ true, /*isHoverKept*/ false,
                                 /*isGrabbedLit*/ true, /*isEndedByDeactivation*/ true,
                                 /*isPreviewPaused*/ true };
constexpr float kShortestQuaternion = 1e-6F;
/// Below this size on screen nothing can be placed relative to the gizmo.
constexpr float kLeastSize = 1e-20F;
constexpr const char* kChangedSuffix = "::changedPlanarManipulator";

osg::Quaternion normalisedRotation(osg::Quaternion rotation)
{
    if (!(rotation.length() >= kShortestQuaternion)) {
        return osg::Quaternion();
    }
    rotation.normalize();
    return rotation;
}

osg::Vec3f objectPivot(const osg::NodePtr& node, bool scalePivot)
{
    if (!hasPivots(node)) {
        return objectCenter(node, false).subZero();
    }
    return scalePivot ? nbNodeUtils::getTransformNodeScalePivot(node)
                      : nbNodeUtils::getTransformNodeRotatePivot(node);
}

/// What the on-screen text says. Deliberate: the values are those of the object's transform, and
/// the z handles show none.
QString textOf(const osg::NodePtr& node, const HandleAction& action)
{
    if (action.kind != Kind::Angle && action.axis() == 2) {
        return QString();
    }
    switch (action.kind) {
    case Kind::Offset:
        return describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Translation ("),
                              nbNodeUtils::getTransformNodeTranslation(node));
    case Kind::Factor:
        return describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Scale ("),
                              nbNodeUtils::getTransformNodeScale(node));
    case Kind::Angle:
        return describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Rotation ("),
                              nbNodeUtils::getTransformNodeRotation(node));
    default:
        return QString();
    }
}

}  // namespace

PlanarGizmo::PlanarGizmo(bool withDepthPass, const float& size)
    : TextureGizmo(kRules, makePlanarTable(), makePlanarMaterials(),
                   static_cast<int>(PlanarManipulatorMode::Universal), size)
{
    const osg::NodePtr tree = handles.getRoot();
    nbNodeUtils::setIsAuxiliaryNode(tree, true);
    if (withDepthPass) {
        root = makeHandleRootOfPasses(tree);
    } else {
        root = makeHandleRoot();
        addChild(root.get(), tree);
    }
    handles.showRoot(false);
}

// == Object and projection

void PlanarGizmo::setComponent(const osg::MaterialPtr& material, const std::string& name,
                               nbStateChunkBase* gui)
{
    component.set(material, name, gui);
    placeIn(View());
}

void PlanarGizmo::setNode(const osg::NodePtr& node)
{
    nodeId = containerId(node);
    if (node == osg::NullFC) {
        endDrag();
        return;
    }
    prepareManipulator(node);
    if (isGrabbed()) {
        capture(View());
        beganAnew(View());
    }
}

void PlanarGizmo::prepareManipulator(const osg::NodePtr& node)
{
    if (node == osg::NullFC) {
        return;
    }
    readProjection(node);
    const osg::ColorComponentSettingsPtr material = component.getSettings();
    if (material != osg::NullFC && material->getPlanarProjection() != osg::NullFC) {
        keepAspectRatio =
            material->hasPlanarProjectionFlag(osg::ColorComponentSettings::KeepAspectRatio);
        const osg::ImagePtr image = component.getUberMaterial()->getImage(component.getName());
        if (image != osg::NullFC && image->getHeight() > 0) {
            aspectRatio =
                static_cast<float>(image->getWidth()) / static_cast<float>(image->getHeight());
        }
        askScaleValues();
    }
    previewPause.begin();
}

void PlanarGizmo::readProjection(const osg::NodePtr& node)
{
    frame.worldFromObject = node->getToWorld();
    if (settings.useObjectTranslation) {
        frame.translation = objectPivot(node, getArmed() >= static_cast<int>(Active::ScaleX));
    }
    if (settings.useObjectScale) {
        frame.scale = nbNodeUtils::getTransformNodeScale(node);
    }
    const osg::Transform3DPtr present = projection();
    if (present == osg::NullFC) {
        return;
    }
    frame.projectionScale = present->getScale();
    if (!settings.useObjectTranslation) {
        // The image of the origin: the translation, where no pivot of the projection moves it.
        frame.translation = column(present->getMatrix(), 3);
    }
    if (!settings.useObjectScale) {
        frame.scale = frame.projectionScale;
    }
    frame.rotation = present->getRotationAsQuaternion();
    frame.rotation.mult(present->getRotationOrientation());
    frame.rotation = normalisedRotation(frame.rotation);
}

void PlanarGizmo::askScaleValues()
{
    frame.extentPerScale = osg::Vec3f(1.0F, 1.0F, 1.0F);
    if (!settings.useTextureScale) {
        return;
    }
    nbMessage message;
    component.send("::getScaleValues", message);
    nbMessage::get(message, "initialTextureScale", settings.initialTextureScale);
    nbMessage::get(message, "projectionSize", settings.projectionSize);
    for (osg::UInt32 i = 0; i < 2; ++i) {
        const float perScale = 0.5F * settings.projectionSize[i] / frame.scale[i];
        if (std::isfinite(perScale) && perScale > 0.0F) {
            frame.extentPerScale[i] = perScale;
        }
    }
}

bool PlanarGizmo::centerPivot()
{
    const osg::NodePtr node = getNode();
    if (node == osg::NullFC || nbNodeUtils::convertToTransform3DNode(node) == osg::NullFC) {
        return false;
    }
    readProjection(node);
    setBothPivots(node, osg::Pnt3f(frame.translation));
    placeIn(View());
    nbController::setModified(1);
    return true;
}

// == Drags

bool PlanarGizmo::canStep(const View& /*view*/)
{
    const osg::NodePtr node = getNode();
    if (node == osg::NullFC || node->getParent() == osg::NullFC) {
        return false;
    }
    if (!isTargetReady && node != nbScenegraph::getRootNode()) {
        makeTransform(node);
        if (!hasPivots(node)) {
            setBothPivots(node, objectCenter(node, false));
        }
        isTargetReady = true;
    }
    return true;
}

bool PlanarGizmo::prepare(const View& /*view*/)
{
    prepareManipulator(getNode());
    capture(View());  // who was asked may have destroyed that of the event
    return true;
}

void PlanarGizmo::capture(const View& view)
{
    isTargetReady = false;
    const HandleRow* const handle = armedRow();
    if (handle == nullptr) {
        return;  // who was asked has ended the drag
    }
    drag = beginDrag(frame, *handle, view.sight());
    track = DragTrack();
    choosePath(view);
    path.follow(view.pointerRay(), track);
    if (holdsPicture()) {
        capturePicture(view);
    }
}

void PlanarGizmo::choosePath(const View& view)
{
    path = RingDrag::begin(osg::Pnt3f(column(drag.frame.worldFromAxes(), 3)),
                           drag.plane.getNormal(), grabbedPoint, view.getSight());
    path.isWire = path.isWire && drag.action.kind == Kind::Angle && areRingsTilted;
}

void PlanarGizmo::updateManipulatorPlane()
{
    const View view;
    drag.plane = dragPlaneOf(frame, armedAction(), view.sight());
    choosePath(view);
}

DragStep PlanarGizmo::parametersAt(const View& view, const DragTrack& before) const
{
    if (holdsPicture()) {
        return pictureStep(view, before);
    }
    DragTrack next = before;
    const std::optional<osg::Pnt3f> hit = path.follow(view.pointerRay(), next);
    if (!hit) {
        return DragStep();
    }
    const osg::Pnt3f& from = *next.start;
    if (drag.action.kind == Kind::Angle) {
        if (const std::optional<float> angleRad = angleBetween(drag, from, *hit)) {
            next.turned = static_cast<double>(*angleRad) * kDegPerRad;
        }
        return { { Kind::Angle, next.turned }, next };
    }
    if (drag.action.kind == Kind::Offset) {
        return { { Kind::Offset, offsetBetween(drag, from, *hit) }, next };
    }
    if (drag.action.kind == Kind::Factor) {
        return { { Kind::Factor, factorBetween(drag, from, *hit) }, next };
    }
    const osg::Pnt3f center(column(drag.frame.worldFromAxes(), 3));
    const Sights sights = { view.sightAt(center), view.sightAt(from), view.sightAt(*hit) };
    return { { Kind::HalfSizes, halfSizesBetween(drag, from, *hit, sights, keepAspectRatio) },
             next };
}

DragParameters PlanarGizmo::startParameters() const
{
    return drag.action.kind == Kind::HalfSizes
        ? DragParameters(Kind::HalfSizes, drag.frame.halfExtents())
        : Gizmo::startParameters();
}

void PlanarGizmo::apply(const DragParameters& parameters)
{
    nbMessage message;
    if (parameters.kind == Kind::Angle) {
        // Deliberate: the receiver's rotation runs opposite to the gizmo's.
        const auto angle = static_cast<float>(parameters.values[0] / kDegPerRad);
        message.set("rotate", -angle, true);
        if (holdsPicture()) {
            const osg::Quaternion turn(osg::Vec3f(0.0F, 0.0F, 1.0F), angle);
            setTranslationIn(message, pivot - rotated(turn, pivot));
        }
    } else if (parameters.kind == Kind::Offset) {
        setTranslationIn(message, parameters.vec3());
    } else if (parameters.kind == Kind::Factor) {
        if (drag.action.axis() == 2) {
            showZScaleValue(true);
            message.set("clamping", true, true);
        }
        message.set("scale", scaledProjection(drag, parameters.first(), keepAspectRatio), true);
        if (holdsPicture()) {
            setTranslationIn(message, pivot * (1.0F - parameters.first()));
        }
    } else {
        const bool isZPlane = drag.action.axis() == 2;
        message.set("clamping", isZPlane, true);
        message.set("scale", scaleOfHalfSizes(drag, parameters.vec3()), true);
        setTranslationIn(message, shiftOfHalfSizes(drag, parameters.vec3()));
        if (isZPlane) {
            showZScaleValue(true);
        }
    }
    component.send(kChangedSuffix, message);
}

void PlanarGizmo::setTranslationIn(nbMessage& message, const osg::Vec3f& shift) const
{
    const osg::Vec3f turned = rotated(drag.frame.rotation, shift);
    const osg::Vec3f& inPlane = settings.applyRotationToTranslation ? turned : shift;
    message.set("offset", osg::Vec2f(inPlane.x(), inPlane.y()), true);
    message.set("transVec", turned, true);
}

std::optional<QString> PlanarGizmo::describe() const
{
    const osg::NodePtr node = getNode();
    return node != osg::NullFC ? textOf(node, holdsPicture() ? HandleAction() : armedAction())
                               : QString();
}

// == Handles shown

void PlanarGizmo::highlightControlElement()
{
    setDefaultMaterials();
    highlightMode();
    showElements();
}

void PlanarGizmo::showElements()
{
    handles.setExcluded(static_cast<int>(Active::ScaleZ), !zScaleVisible);
    handles.setExcluded(static_cast<int>(Active::ScaleZPlane), !zScaleVisible || !zScaleValueShown);
    handles.show(getMode(), isGrabbed() ? getArmed() : 0);
}

void PlanarGizmo::setZScaleVisible(bool on)
{
    zScaleVisible = on;
    showElements();
}

void PlanarGizmo::showZScaleValue(bool on)
{
    zScaleValueShown = on;
    showElements();
}

void PlanarGizmo::showAll(bool on)
{
    handles.showAll(on);
    handles.showRoot(on);
}

// == Placement

void PlanarGizmo::place(const View& view)
{
    readProjection(getNode());
    const osg::Matrix worldFromAxes = frame.worldFromAxes();
    const osg::Pnt3f center(column(worldFromAxes, 3));
    const osg::Matrix axes = orthonormalised(worldFromAxes);
    const float size = view.scaleAt(center, getSize(), ViewDiagonal::NearPlane);
    // A mirrored object has mirrored handles: -z stays where the projection looks.
    const osg::Vec3f scales(size, size, worldFromAxes.det3() < 0.0F ? -size : size);
    placeTransform(handles.getRootTransform(), center.subZero(), osg::Quaternion(axes), scales);
    if (size > kLeastSize && std::isfinite(size)) {
        placeRows(worldFromAxes, axes, scales);
    }
}

/// Tabs go to the ends of the extents; what acts along an axis lies along the way of its motion,
/// which on an object with unequal scales or shear is at no right angle to the others.
/// @param axes  orthonormal, of the handles  @param scales  of the handles
void PlanarGizmo::placeRows(const osg::Matrix& worldFromAxes, const osg::Matrix& axes,
                            const osg::Vec3f& scales)
{
    const osg::Vec3f extents = frame.halfExtents();
    std::array<osg::Vec3f, 3> ways;  // of the axes, in the unit frame of the handles
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const osg::Vec3f world = column(worldFromAxes, i);
        for (osg::UInt32 axis = 0; axis < 3; ++axis) {
            ways[i][axis] = world.dot(column(axes, axis)) / scales[axis];
        }
    }
    const std::vector<HandleRow>& rows = handles.getTable().rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const HandleAction& action = rows[i].action;
        const osg::UInt32 axis = action.axis();
        if (action.kind == Kind::HalfSizes) {
            const osg::Vec3f side = planarSideOf(rows[i]);
            osg::Vec3f place;
            for (osg::UInt32 each = 0; each < 3; ++each) {
                place += ways[each] * (extents[each] * side[each]);
            }
            moveNode(handles.getNode(i), place);
        } else if (action.kind != Kind::Angle && axis != kNoAxis) {
            osg::Vec3f unit;
            unit[axis] = 1.0F;
            const osg::Vec3f& way = ways[axis];
            const osg::Quaternion turn =
                way.length() > 0.0F ? osg::Quaternion(unit, way) : osg::Quaternion();
            osg::Quaternion whole = turn;
            whole.mult(quaternionOf(rows[i].turn));
            moveNode(handles.getNode(i),
                     rotated(turn, { rows[i].place[0], rows[i].place[1], rows[i].place[2] }),
                     whole);
        }
    }
}

}  // namespace nbec::manipulator::texture
