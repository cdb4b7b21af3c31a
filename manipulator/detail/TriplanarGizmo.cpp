// SPDX-License-Identifier: MIT
#include "manipulator/detail/TriplanarGizmo.h"

#include "manipulator/detail/AxisHandles.h"
#include "manipulator/detail/DragGeometry.h"
#include "manipulator/detail/HandleGroup.h"
#include "manipulator/detail/HandleNodes.h"
#include "manipulator/detail/ScreenScale.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGUberMaterial/nbStateChunkBase.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbMessage.h>

namespace nbec::manipulator::detail {

namespace {

using Mode = TriplanarGizmo::Mode;
using Active = TriplanarGizmo::Active;

constexpr int kDepthPassSortKey = 64014;
constexpr int kTranslateGroup = 0;
constexpr int kRotateGroup = 1;
constexpr int kScaleGroup = 2;
constexpr float kHandleEnd = 2.5F;
constexpr const char* kChangedSuffix = "::changedTriplanarManipulator";
constexpr std::array<const char*, 3> kOffsetNames = { "XOffset", "YOffset", "ZOffset" };
constexpr std::array<const char*, 3> kScaleNames = { "XScale", "YScale", "ZScale" };

constexpr int number(Active active)
{
    return static_cast<int>(active);
}

HandleRow scaleHandle(const char* name, Active active, std::size_t axis)
{
    constexpr std::array<Turn, 3> kTurns = { Turn::OntoMinusX, Turn::None, Turn::OntoZ };
    std::array<float, 3> end = { 0.0F, 0.0F, 0.0F };
    std::array<float, 3> middle = end;
    end[axis] = kHandleEnd;
    middle[axis] = kHandleEnd / 2;
    const HandlePart shaft = { HandleShape::LongScaleShaft,
                               RedLineMaterial + axis,
                               RedLineMaterial + axis,
                               Holder::Euler,
                               middle,
                               kTurns[axis] };
    const HandlePart box = { HandleShape::Cube, LightRedMaterial + axis, axis, Holder::Euler, end,
                             Turn::None };
    return { name,          number(active),
             kScaleGroup,   number(Active::ScaleUniform),
             Holder::Euler, {},
             Turn::None,    2,
             { shaft, box } };
}

HandleRow ring(const char* name, Active active, std::size_t axis)
{
    constexpr std::array<Turn, 3> kTurns = { Turn::ZOntoX, Turn::OntoZ, Turn::None };
    return { name,
             number(active),
             kRotateGroup,
             0,
             Holder::Component,
             {},
             kTurns[axis],
             1,
             { { { HandleShape::SolidBigRing, axis, axis } } } };
}

HandleTable makeTable()
{
    const HandlePart uniformBox = {
        HandleShape::Cube, YellowMaterial, YellowMaterial, Holder::Euler, {}, Turn::None
    };
    return { { axisArrow("xaShape", number(Active::TranslateX), kTranslateGroup, 0),
               axisArrow("yaShape", number(Active::TranslateY), kTranslateGroup, 1),
               axisArrow("zaShape", number(Active::TranslateZ), kTranslateGroup, 2),
               { "grid",
                 number(Active::ScaleUniform),
                 -1,
                 0,
                 Holder::Euler,
                 {},
                 Turn::None,
                 1,
                 { uniformBox } },
               scaleHandle("xsShape", Active::ScaleX, 0),
               scaleHandle("ysShape", Active::ScaleY, 1),
               scaleHandle("zsShape", Active::ScaleZ, 2),
               ring("rxShape", Active::RotateX, 0),
               ring("ryShape", Active::RotateY, 1),
               ring("rzShape", Active::RotateZ, 2) },
             { { static_cast<int>(Mode::Universal), { false, false, false }, 0, false },
               { static_cast<int>(Mode::Rotate),
                 { true, false, true },
                 number(Active::ScaleUniform),
                 false },
               { static_cast<int>(Mode::RotateScale), { true, false, false }, 0, true } },
             HighlightMaterial };
}

const HandleTable& handleTable()
{
    static const HandleTable table = makeTable();
    return table;
}

/// The reciprocals of a pair.
osg::Vec2f reciprocals(const osg::Vec2f& pair)
{
    return osg::Vec2f(1.0F / pair.x(), 1.0F / pair.y());
}

osg::Vec3f direction(const osg::Pnt3f& place)
{
    return place.subZero();
}

}  // namespace

TriplanarGizmo::TriplanarGizmo()
    : AnchoredGizmo(handleTable(), makeAxisMaterials(false), static_cast<int>(Mode::Initial))
{
    root = makeHandleRootOver(handles.getRoot(), kDepthPassSortKey);
}

std::unique_ptr<AnchoredGizmo> TriplanarGizmo::clone() const
{
    return std::make_unique<TriplanarGizmo>(*this);
}

void TriplanarGizmo::placeHandles(const osg::Matrix& worldFromAnchor)
{
    const osg::Pnt3f& place = anchor.getWorldPosition();
    const float size =
        ScreenScale(TriplanarTextureManipulator::getManipulatorSize(), ViewDiagonal::NearPlane)
            .at(place);
    placeTransform(handles.getRootTransform(), place.subZero(), osg::Quaternion::identity(),
                   osg::Vec3f(size, size, size));
    const osg::Quaternion axes(orthonormalised(worldFromAnchor));
    for (std::size_t group = 0; group < kHandleGroupCount; ++group) {
        placeTransform(handles.getGroupTransform(group), osg::Vec3f(), axes,
                       osg::Vec3f(1.0F, 1.0F, 1.0F));
    }
}

bool TriplanarGizmo::isRing() const
{
    return activeMode >= number(Active::RotateX) && activeMode <= number(Active::RotateZ);
}

osg::UInt32 TriplanarGizmo::axis() const
{
    return activeMode == number(Active::ScaleUniform)
        ? 3
        : static_cast<osg::UInt32>(activeMode - 1) % 3;
}

// == Start of a drag

bool TriplanarGizmo::prepare(const nbOSGWidget& widget)
{
    const osg::NodePtr node = anchor.getNode();
    if (node == osg::NullFC) {
        return false;
    }
    const osg::Matrix worldFromAnchor = node->getToWorld();
    anchor.follow(worldFromAnchor);
    frameMatrix = unitFrame(worldFromAnchor, anchor.getWorldPosition());
    inverseFrameMatrix = inverted(frameMatrix);
    readValues();
    updatePlane(widget);
    return true;
}

void TriplanarGizmo::readValues()
{
    startRotation = osg::Vec3f();
    offsets = TriplanarPairs();
    scales.fill(osg::Vec2f(1.0F, 1.0F));
    const osg::ColorComponentSettingsPtr settings = component.getSettings();
    const nbStateChunkBase* const gui = component.getGUI();
    const std::string& name = component.getName();
    if (gui != nullptr && gui->hasComponent(name)) {
        startRotation = gui->getTriplanarRotation(name);
        for (osg::UInt32 i = 0; i < 3; ++i) {
            offsets[i] = gui->getTriplanarOffset(name, i);
        }
        for (osg::UInt32 i = 0; i < 3; ++i) {
            scales[i] = reciprocals(gui->getTriplanarRepeat(name, i));
        }
    } else if (settings != osg::NullFC &&
               settings->getTextureProjectionType() ==
                   osg::ColorComponentSettings::TriplanarProjection) {
        startRotation = settings->getTriplanarRotation();
        for (osg::UInt32 i = 0; i < 3; ++i) {
            offsets[i] =
                osg::Vec2f(settings->getTriplanarOffsetU()[i], settings->getTriplanarOffsetV()[i]);
            scales[i] = reciprocals(
                osg::Vec2f(settings->getTriplanarRepeatU()[i], settings->getTriplanarRepeatV()[i]));
        }
    }
    newRotation = startRotation;
}

void TriplanarGizmo::updatePlane(const nbOSGWidget& widget)
{
    if (isRing() && areRingsTilted) {
        const RingFrame tilted = tiltedRing();
        inverseFrameMatrix = inverted(ringMatrix(tilted, axis()));
        dragPlane.begin(tilted.normal, tilted.center, widget);
        return;
    }
    osg::Vec3f normal = cameraDirection();
    if (axis() < 3) {
        const osg::Vec3f axisDirection = column(frameMatrix, axis());
        normal = isRing() ? axisDirection : axisPlaneNormal(axisDirection, normal);
    }
    dragPlane.begin(normal, anchor.getWorldPosition(), widget);
}

RingFrame TriplanarGizmo::tiltedRing() const
{
    // About the axis of a mirrored frame a positive turn goes by the left hand.
    const float side = frameMatrix.det3() < 0.0F ? -1.0F : 1.0F;
    return ringDragFrame(anchor.getWorldPosition(), column(frameMatrix, axis()) * side,
                         grabbedPoint, viewDirection(grabbedPoint));
}

// == Steps

void TriplanarGizmo::step(const nbOSGWidget& widget)
{
    osg::Pnt3f hit;
    if (!dragPlane.follow(widget, hit)) {
        return;
    }
    dragStartLocal = mapped(inverseFrameMatrix, dragPlane.getStart());
    const osg::Pnt3f place = mapped(inverseFrameMatrix, hit);
    if (activeMode >= number(Active::ScaleX)) {
        scale(place);
    } else if (isRing()) {
        rotate(place);
    } else {
        translate(place);
    }
}

void TriplanarGizmo::translate(const osg::Pnt3f& place)
{
    const TriplanarPairs moved =
        shiftedOffsets(offsets, axis(), place[axis()] - dragStartLocal[axis()]);
    nbMessage message;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        if (i != axis()) {
            message.set(kOffsetNames[i], moved[i], true);
        }
    }
    sendChange(message);
}

void TriplanarGizmo::rotate(const osg::Pnt3f& place)
{
    newRotation = turnedTriplanar(startRotation, newRotation, direction(dragStartLocal),
                                  direction(place), axis());
    nbMessage message;
    message.set("rotate", newRotation, true);
    sendChange(message);
}

void TriplanarGizmo::scale(const osg::Pnt3f& place)
{
    const bool isUniform = axis() > 2;
    const osg::UInt32 up = nbOSGWidget::isCameraZUp() ? 2 : 1;
    const TriplanarPairs scaled = isUniform
        ? scaledUniformly(scales, uniformScaleFactor(place[up], dragStartLocal[up]))
        : scaledAlong(scales, axis(), axisScaleFactor(place[axis()], dragStartLocal[axis()]));
    nbMessage message;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        if (i != axis()) {
            message.set(kScaleNames[i], scaled[i], true);
        }
    }
    sendChange(message);
}

void TriplanarGizmo::sendChange(nbMessage& message)
{
    AnchoredGizmo::sendChange(kChangedSuffix, message);
    nbController::setModified(true);
}

}  // namespace nbec::manipulator::detail
