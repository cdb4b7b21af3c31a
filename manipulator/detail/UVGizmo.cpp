// SPDX-License-Identifier: MIT
#include "manipulator/detail/UVGizmo.h"

#include "manipulator/detail/EditBracket.h"
#include "manipulator/detail/HandleGroup.h"
#include "manipulator/detail/HandleMaterials.h"
#include "manipulator/detail/HandleNodes.h"
#include "manipulator/detail/ScreenScale.h"
#include "manipulator/detail/TextureDragMath.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGUberCamera/nbCameraNavigation.h>
#include <nbOpenSGUberMaterial/nbStateChunkBase.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbMessage.h>

namespace nbec::manipulator::detail {

namespace {

using Mode = UVGizmo::Mode;
using Active = UVGizmo::Active;

constexpr int kTranslateGroup = 0;
constexpr int kRotateGroup = 1;
constexpr int kScaleGroup = 2;
constexpr int kAxisSortKey = 64016;
constexpr int kLightSortKey = 64015;
/// Deliberate: a trace of transparency keeps the handles among the blended items, which are drawn
/// after the scene in the order of their sort keys, while they look opaque.
constexpr float kTrace = 0.001F;
constexpr float kOrthographicRootScale = 1.25F;
/// With these the handles are as large as a triplanar gizmo's: 20.16 = 672 * 0.03, 25 = 20 * 1.25.
constexpr double kDistancePerScale = 20.16;
constexpr float kDiagonalsPerScale = 25.0F;
constexpr const char* kChangedSuffix = "::changedUVManipulator";

enum UVMaterial : std::size_t
{
    Red,
    Green,
    LightRed,
    LightGreen,
    Blue,
    Orange,
    LightYellow,
    Yellow
};

/// In the order of UVMaterial.
constexpr std::array<HandleMaterialRow, Yellow + 1> kMaterials = {
    { { 1.0F, 0.0F, 0.0F, kTrace, kAxisSortKey },
      { 0.0F, 1.0F, 0.0F, kTrace, kAxisSortKey },
      { 1.0F, 0.5F, 0.5F, kTrace, kLightSortKey },
      { 0.5F, 1.0F, 0.5F, kTrace, kLightSortKey },
      { 0.0F, 0.0F, 1.0F, kTrace, kAxisSortKey },
      { 1.0F, 0.5F, 0.0F, kTrace, kAxisSortKey },
      { 1.0F, 1.0F, 0.5F, kTrace, kLightSortKey },
      { 1.0F, 1.0F, 0.0F, kTrace, kLightSortKey } }
};

constexpr int number(Active active)
{
    return static_cast<int>(active);
}

/// A part whose shape lies where it belongs.
constexpr HandlePart part(HandleShape shape, UVMaterial idle, UVMaterial special)
{
    return { shape, idle, special };
}

constexpr HandlePart part(HandleShape shape, UVMaterial color)
{
    return part(shape, color, color);
}

HandleRow handle(const char* name, Active active, int group,
                 std::initializer_list<HandlePart> parts, const std::array<float, 3>& place = {},
                 Turn turn = Turn::None)
{
    return makeHandleRow(name, number(active), group, parts, place, turn);
}

/// A handle that scales one component; the box that scales both takes its highlight along.
HandleRow scaleHandle(const char* name, Active active, std::initializer_list<HandlePart> parts)
{
    HandleRow row = handle(name, active, kScaleGroup, parts);
    row.highlightedWith = number(Active::ScaleUniform);
    return row;
}

std::vector<HandleRow> makeRows()
{
    return {
        handle("xaShape", Active::TranslateU, kTranslateGroup,
               { part(HandleShape::SolidArrowShaft, Red), part(HandleShape::SolidArrowHead, Red) },
               { 1.0F, 0.0F, 0.0F }, Turn::OntoX),
        handle(
            "yaShape", Active::TranslateV, kTranslateGroup,
            { part(HandleShape::SolidArrowShaft, Green), part(HandleShape::SolidArrowHead, Green) },
            { 0.0F, 1.0F, 0.0F }),
        handle("xyaShape", Active::TranslateUV, kTranslateGroup,
               { part(HandleShape::SolidPatch, Yellow), part(HandleShape::SolidBarX, Red),
                 part(HandleShape::SolidBarY, Green) }),
        scaleHandle("xsShape", Active::ScaleU,
                    { part(HandleShape::SolidScaleShaftX, LightRed, Red),
                      part(HandleShape::ScaleTabX, LightRed, Red) }),
        scaleHandle("ysShape", Active::ScaleV,
                    { part(HandleShape::SolidScaleShaftY, LightGreen, Green),
                      part(HandleShape::ScaleTabY, LightGreen, Green) }),
        handle("grid", Active::ScaleUniform, kScaleGroup,
               { part(HandleShape::ScaleTabXY, LightYellow, Yellow) }),
        handle("rotateShape", Active::Rotate, kRotateGroup, { part(HandleShape::SolidRing, Blue) }),
    };
}

const HandleTable& handleTable()
{
    static const HandleTable table = {
        makeRows(),
        { { static_cast<int>(Mode::Universal), { false, false, false }, 0, false },
          { static_cast<int>(Mode::Translate), { false, true, true }, 0, false },
          { static_cast<int>(Mode::Scale), { true, true, false }, 0, true },
          { static_cast<int>(Mode::Rotate),
            { true, false, true },
            number(Active::ScaleUniform),
            false },
          { static_cast<int>(Mode::RotateScale), { true, false, false }, 0, false } },
        Orange
    };
    return table;
}

/// Turn of the main view's camera; none without one.
osg::Quaternion cameraFacing()
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (widget == nullptr || widget->getUberCamera() == osg::NullFC) {
        return osg::Quaternion();
    }
    const nbCameraNavigation::Axes axes =
        nbCameraNavigation::axes(widget->getUberCamera()->getPose());
    osg::Matrix turn;
    turn[0] = osg::Vec4f(axes.right.x(), axes.right.y(), axes.right.z(), 0.0F);
    turn[1] = osg::Vec4f(axes.up.x(), axes.up.y(), axes.up.z(), 0.0F);
    turn[2] = osg::Vec4f(axes.back.x(), axes.back.y(), axes.back.z(), 0.0F);
    return osg::Quaternion(turn);
}

/// Pointer in viewport pixels. Deliberate: y counts from the bottom, the lowest row being 0.
osg::Vec2f pointerPx(const nbOSGWidget& widget)
{
    const osg::Pnt2f position = widget.getMousePosition();
    return osg::Vec2f(position.x(), static_cast<float>(widget.getHeight() - 1) - position.y());
}

/// Place of a world point in the view, y from the bottom.
osg::Vec2f projectedPx(const nbOSGWidget& widget, const osg::Pnt3f& world)
{
    osg::Matrix screenFromWorld;
    widget.getCamera()->getWorldToScreen(screenFromWorld, *widget.getViewport());
    osg::Pnt3f device;
    screenFromWorld.multFullMatrixPnt(world, device);
    return osg::Vec2f(static_cast<float>(widget.getWidth()) * (device.x() * 0.5F + 0.5F),
                      static_cast<float>(widget.getHeight()) * (device.y() * 0.5F + 0.5F));
}

}  // namespace

UVGizmo::UVGizmo()
    : AnchoredGizmo(handleTable(), makeHandleMaterials(kMaterials),
                    static_cast<int>(Mode::Universal))
{
    root = makeTransform3DNode(osg::Vec3f());
    nbNodeUtils::setName(root.get(), kHandleGroupName);
    markHandleRoot(root.get());
    addChild(root.get(), handles.getRoot());
}

std::unique_ptr<AnchoredGizmo> UVGizmo::clone() const
{
    return std::make_unique<UVGizmo>(*this);
}

// == Placement

bool UVGizmo::isElseChanged() const
{
    osg::Pnt3f from;
    osg::Pnt3f at;
    osg::Vec3f up;
    nbOSGWidget::getFromAtUp(-1, from, at, up);
    return at != seenAt || up != seenUp;
}

void UVGizmo::placeHandles(const osg::Matrix& /*worldFromAnchor*/)
{
    const osg::Vec3f place = anchor.getWorldPosition().subZero();
    const std::optional<float> diagonal = orthographicDiagonal();
    const float rootScale = diagonal.has_value()
        ? kOrthographicRootScale
        : nbOSGWidget::getFov(-1) * UVTextureManipulator::getManipulatorSize();
    const double distance = anchor.getWorldPosition().dist(nbOSGWidget::getFrom(-1));
    const float viewScale = diagonal.has_value() ? *diagonal / kDiagonalsPerScale
                                                 : static_cast<float>(distance / kDistancePerScale);
    placeTransform(handles.getRootTransform(), place, osg::Quaternion::identity(),
                   osg::Vec3f(rootScale, rootScale, rootScale));
    osg::Pnt3f from;
    nbOSGWidget::getFromAtUp(-1, from, seenAt, seenUp);
    const osg::Transform3DPtr view = osg::Transform3DPtr::dcast(root->getCore());
    {
        const EditBracket edit(
            view, osg::Transform3D::RotatePivotFieldMask | osg::Transform3D::ScalePivotFieldMask);
        view->setRotatePivot(place);
        view->setScalePivot(place);
    }
    placeTransform(view, osg::Vec3f(), cameraFacing(), osg::Vec3f(viewScale, viewScale, viewScale));
}

// == Drags

bool UVGizmo::prepare(const nbOSGWidget& widget)
{
    if (widget.getCamera() == osg::NullFC || widget.getViewport() == osg::NullFC) {
        return false;
    }
    readValues();
    dragStartPixel = pointerPx(widget);
    anchorPixel = projectedPx(widget, anchor.getWorldPosition());
    return true;
}

void UVGizmo::readValues()
{
    const osg::UberMaterialPtr material = component.getUberMaterial();
    const osg::ColorComponentSettingsPtr settings = component.getSettings();
    const nbStateChunkBase* const gui = component.getGUI();
    const std::string& name = component.getName();
    osg::Vec2f repeat(1.0F, 1.0F);
    startRotate = 0.0F;
    startOffset = osg::Vec2f();
    if (settings != osg::NullFC) {
        startRotate = settings->getRotate();
        startOffset = settings->getOffset();
        repeat = settings->getRepeat();
    } else if (gui != nullptr && gui->hasComponent(name)) {
        startRotate = gui->getRotate(name);
        startOffset = gui->getOffset(name);
        repeat = gui->getRepeat(name);
    } else if (material != osg::NullFC) {
        repeat = material->getRepeat(name);
    }
    startScale = osg::Vec2f(1.0F / repeat.x(), 1.0F / repeat.y());
    newRotate = startRotate;
}

void UVGizmo::step(const nbOSGWidget& widget)
{
    const osg::Vec2f pointer = pointerPx(widget);
    if (activeMode == number(Active::Rotate)) {
        rotate(pointer);
    } else if (activeMode <= number(Active::TranslateUV)) {
        translate(pointer);
    } else {
        scale(pointer);
    }
}

void UVGizmo::translate(const osg::Vec2f& pointer)
{
    osg::Vec2f motion = pointer - dragStartPixel;
    if (activeMode == number(Active::TranslateU)) {
        motion[1] = 0.0F;
    } else if (activeMode == number(Active::TranslateV)) {
        motion[0] = 0.0F;
    }
    nbMessage message;
    message.set("offset", movedOffset(startOffset, motion), true);
    sendChange(kChangedSuffix, message);
}

void UVGizmo::rotate(const osg::Vec2f& pointer)
{
    turnPicture(startRotate, dragStartPixel - anchorPixel, pointer - anchorPixel, newRotate);
    nbMessage message;
    message.set("rotate", newRotate, true);
    sendChange(kChangedSuffix, message);
}

void UVGizmo::scale(const osg::Vec2f& pointer)
{
    const ScreenScaling axes = activeMode == number(Active::ScaleU) ? ScreenScaling::U
        : activeMode == number(Active::ScaleV)                      ? ScreenScaling::V
                                                                    : ScreenScaling::Both;
    nbMessage message;
    message.set("scale",
                scaledPicture(startScale, dragStartPixel - anchorPixel, pointer - anchorPixel, axes,
                              keepAspectRatio),
                true);
    sendChange(kChangedSuffix, message);
}

}  // namespace nbec::manipulator::detail
