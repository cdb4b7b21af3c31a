// SPDX-License-Identifier: MIT
#include "manipulator/texture/UVGizmo.h"

#include "manipulator/handles/HandleGroup.h"
#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/handles/HandleNodes.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGUberMaterial/nbStateChunkBase.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbMessage.h>

#include <utility>

namespace nbec::manipulator::texture {

namespace {

using Mode = UVMode;
using Handle = UVHandle;
using Kind = DragParameters::Kind;

constexpr int kTranslateGroup = 0;
constexpr int kRotateGroup = 1;
constexpr int kScaleGroup = 2;
constexpr float kTrace = kTraceOfTransparency;
constexpr int kSolid = handleSortKey::kSolid;
constexpr int kLight = handleSortKey::kLine;
constexpr float kOrthographicRootScale = 1.25F;
/// With these the handles are as large as a triplanar gizmo's: 20.16 = 672 * 0.03, 25 = 20 * 1.25.
constexpr double kDistancePerScale = 20.16;
constexpr float kDiagonalsPerScale = 25.0F;
constexpr float kOffsetPerPixel = 1.0F / 512.0F;
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
    { { 1.0F, 0.0F, 0.0F, kTrace, kSolid },
      { 0.0F, 1.0F, 0.0F, kTrace, kSolid },
      { 1.0F, 0.5F, 0.5F, kTrace, kLight },
      { 0.5F, 1.0F, 0.5F, kTrace, kLight },
      { 0.0F, 0.0F, 1.0F, kTrace, kSolid },
      { 1.0F, 0.5F, 0.0F, kTrace, kSolid },
      { 1.0F, 1.0F, 0.5F, kTrace, kLight },
      { 1.0F, 1.0F, 0.0F, kTrace, kLight } }
};

/// A part whose shape lies where it belongs.
HandlePart part(HandleShape shape, UVMaterial idle, UVMaterial special)
{
    return { shape, { idle, Orange, special } };
}

HandlePart part(HandleShape shape, UVMaterial color)
{
    return part(shape, color, color);
}

HandleRow row(const char* name, Handle handle, int group, std::vector<HandlePart> parts,
              const std::array<float, 3>& place = {}, Turn turn = Turn::None)
{
    HandleRow made = { name, static_cast<int>(handle), group, std::move(parts) };
    made.place = place;
    made.turn = turn;
    return made;
}

/// A handle that scales one component; the box that scales both takes its highlight along.
HandleRow scaleRow(const char* name, Handle handle, std::vector<HandlePart> parts)
{
    HandleRow made = row(name, handle, kScaleGroup, std::move(parts));
    made.litWith = static_cast<int>(Handle::ScaleUniform);
    return made;
}

HandleTable makeTable()
{
    HandleRow grid = row("grid", Handle::ScaleUniform, kScaleGroup,
                         { part(HandleShape::ScaleTabXY, LightYellow, Yellow) });
    grid.visibleIn = kAllModes & ~modes(Mode::Rotate);
    HandleTable table;
    table.rows = {
        row("xaShape", Handle::TranslateU, kTranslateGroup,
            { part(HandleShape::SolidArrowShaft, Red), part(HandleShape::SolidArrowHead, Red) },
            { 1.0F, 0.0F, 0.0F }, Turn::OntoX),
        row("yaShape", Handle::TranslateV, kTranslateGroup,
            { part(HandleShape::SolidArrowShaft, Green), part(HandleShape::SolidArrowHead, Green) },
            { 0.0F, 1.0F, 0.0F }),
        row("xyaShape", Handle::TranslateUV, kTranslateGroup,
            { part(HandleShape::SolidPatch, Yellow), part(HandleShape::SolidBarX, Red),
              part(HandleShape::SolidBarY, Green) }),
        scaleRow("xsShape", Handle::ScaleU,
                 { part(HandleShape::SolidScaleShaftX, LightRed, Red),
                   part(HandleShape::ScaleTabX, LightRed, Red) }),
        scaleRow("ysShape", Handle::ScaleV,
                 { part(HandleShape::SolidScaleShaftY, LightGreen, Green),
                   part(HandleShape::ScaleTabY, LightGreen, Green) }),
        grid,
        row("rotateShape", Handle::Rotate, kRotateGroup, { part(HandleShape::SolidRing, Blue) }),
    };
    table.groups = { modes(Mode::Universal, Mode::Translate),
                     modes(Mode::Universal, Mode::Rotate, Mode::RotateScale),
                     modes(Mode::Universal, Mode::Scale, Mode::RotateScale) };
    table.specialIn = modes(Mode::Scale);
    return table;
}

const HandleTable& handleTable()
{
    static const HandleTable table = makeTable();
    return table;
}

}  // namespace

UVGizmo::UVGizmo(const float& size)
    : AnchoredGizmo(handleTable(), makeHandleMaterials(kMaterials),
                    static_cast<int>(Mode::Universal), size)
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

void UVGizmo::placeHandles(const View& view, const osg::Matrix& /*worldFromAnchor*/)
{
    const osg::Vec3f place = anchor.getWorldPosition().subZero();
    const std::optional<float> diagonal = view.orthographicDiagonal();
    const float rootScale = diagonal ? kOrthographicRootScale : view.getFov() * getSize();
    const double distance = anchor.getWorldPosition().dist(view.getEye());
    const float viewScale = diagonal ? *diagonal / kDiagonalsPerScale
                                     : static_cast<float>(distance / kDistancePerScale);
    placeTransform(handles.getRootTransform(), place, osg::Quaternion::identity(),
                   osg::Vec3f(rootScale, rootScale, rootScale));
    const osg::Transform3DPtr facing = osg::Transform3DPtr::dcast(root->getCore());
    {
        const nbEdit edit(
            facing, osg::Transform3D::RotatePivotFieldMask | osg::Transform3D::ScalePivotFieldMask);
        facing->setRotatePivot(place);
        facing->setScalePivot(place);
    }
    placeTransform(facing, osg::Vec3f(), view.facing(),
                   osg::Vec3f(viewScale, viewScale, viewScale));
}

// == Drags

bool UVGizmo::capture(const View& view)
{
    if (view.getWidget()->getCamera() == osg::NullFC ||
        view.getWidget()->getViewport() == osg::NullFC) {
        return false;
    }
    readValues();
    dragStartPixel = view.pointerFromBelow();
    anchorPixel = view.project(anchor.getWorldPosition());
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
}

ScreenScaling UVGizmo::axes() const
{
    return handle() == Handle::ScaleU ? ScreenScaling::U
        : handle() == Handle::ScaleV  ? ScreenScaling::V
                                      : ScreenScaling::Both;
}

DragStep UVGizmo::parametersAt(const View& view, const DragTrack& before) const
{
    DragTrack next = before;
    const osg::Vec2f from = dragStartPixel - anchorPixel;
    const osg::Vec2f to = view.pointerFromBelow() - anchorPixel;
    if (handle() == Handle::Rotate) {
        next.turned = turnOnScreen(from, to).value_or(static_cast<float>(before.turned));
        return { { Kind::Angle, next.turned }, next };
    }
    if (handle() >= Handle::ScaleU) {
        return { { Kind::Factor, pictureFactor(from, to, axes()) }, next };
    }
    osg::Vec2f motion = view.pointerFromBelow() - dragStartPixel;
    if (handle() != Handle::TranslateUV) {
        motion[handle() == Handle::TranslateU ? 1 : 0] = 0.0F;
    }
    return { { Kind::Offset, motion * kOffsetPerPixel }, next };
}

void UVGizmo::apply(const DragParameters& parameters)
{
    nbMessage message;
    if (parameters.kind == Kind::Angle) {
        // Deliberate: a counter-clockwise turn of the pointer subtracts.
        message.set("rotate", startRotate - parameters.first(), true);
    } else if (parameters.kind == Kind::Factor) {
        message.set("scale", scaledPicture(startScale, parameters.first(), axes(), keepAspectRatio),
                    true);
    } else {
        message.set("offset", startOffset + parameters.vec2(), true);
    }
    send(kChangedSuffix, message);
}

}  // namespace nbec::manipulator::texture
