// SPDX-License-Identifier: MIT
#include "manipulator/texture/UVGizmo.h"

#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/HandleNodes.h"
#include "manipulator/texture/TextureHandles.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbMessage.h>

namespace nbec::manipulator::texture {

namespace {

using Mode = UVMode;
using Handle = UVHandle;
using Kind = DragParameters::Kind;

constexpr std::size_t kLightYellow = OwnMaterial;
constexpr float kOrthographicRootScale = 1.25F;
/// With these the handles are as large as a triplanar gizmo's: 20.16 = 672 * 0.03, 25 = 20 * 1.25.
constexpr double kDistancePerScale = 20.16;
constexpr float kDiagonalsPerScale = 25.0F;
constexpr float kOffsetPerPixel = 1.0F / 512.0F;
constexpr const char* kChangedSuffix = "::changedUVManipulator";

/// A part that has another colour while only handles that scale are shown.
HandlePart switching(HandleShape shape, std::size_t idle, std::size_t special)
{
    return { shape, { idle, HighlightMaterial, special } };
}

/// A handle that scales one component; the box that scales both takes its highlight along.
/// @param axis  0 or 1
HandleRow scaleRow(const char* name, Handle handle, HandleShape shaft, HandleShape tab,
                   std::size_t axis)
{
    HandleRow row = handleRow(name, number(handle), Scaling, { Kind::Factor, axisBit(axis) },
                              { switching(shaft, LightRedMaterial + axis, axis),
                                switching(tab, LightRedMaterial + axis, axis) });
    row.litWith = number(Handle::ScaleUniform);
    return row;
}

HandleTable makeTable()
{
    HandleRow grid =
        handleRow("grid", number(Handle::ScaleUniform), Scaling, { Kind::Factor, kAllAxes },
                  { switching(HandleShape::ScaleTabXY, kLightYellow, YellowMaterial) });
    grid.visibleIn = kAllModes & ~modes(Mode::Rotate);
    HandleTable table;
    table.rows = {
        solidArrow("xaShape", number(Handle::TranslateU), Translation, RedMaterial,
                   { 1.0F, 0.0F, 0.0F }, Turn::OntoX),
        solidArrow("yaShape", number(Handle::TranslateV), Translation, GreenMaterial,
                   { 0.0F, 1.0F, 0.0F }, Turn::None),
        solidSquare("xyaShape", number(Handle::TranslateUV), Translation, YellowMaterial),
        scaleRow("xsShape", Handle::ScaleU, HandleShape::SolidScaleShaftX, HandleShape::ScaleTabX,
                 0),
        scaleRow("ysShape", Handle::ScaleV, HandleShape::SolidScaleShaftY, HandleShape::ScaleTabY,
                 1),
        grid,
        handleRow("rotateShape", number(Handle::Rotate), Rotation, { Kind::Angle, axisBit(2) },
                  { handlePart(HandleShape::SolidRing, BlueMaterial) }),
    };
    table.rows[0].letter = 'U';
    table.rows[1].letter = 'V';
    table.groups = { modes(Mode::Universal, Mode::Translate),
                     modes(Mode::Universal, Mode::Rotate, Mode::RotateScale),
                     modes(Mode::Universal, Mode::Scale, Mode::RotateScale) };
    table.specialIn = modes(Mode::Scale);
    return table;
}

HandleSet::Materials makeMaterials()
{
    constexpr float kTrace = kTraceOfTransparency;
    return makeTextureMaterials({ { 1.0F, 1.0F, 0.0F, kTrace, handleSortKey::kLine },
                                  { 1.0F, 0.5F, 0.0F, kTrace, handleSortKey::kSolid },
                                  { 1.0F, 1.0F, 0.5F, kTrace, handleSortKey::kLine } });
}

}  // namespace

UVGizmo::UVGizmo(const float& size)
    : AnchoredGizmo(makeTable(), makeMaterials(), number(Mode::Universal), size)
{
    root = makeHandleRoot(makeTransform3DNode(osg::Vec3f()));
    addChild(root.get(), handles.getRoot());
}

void UVGizmo::placeHandles(const View& view, const osg::Matrix& /*worldFromAnchor*/)
{
    const osg::Vec3f place = getAnchorPosition().subZero();
    const std::optional<float> diagonal = view.orthographicDiagonal();
    const bool isInPixels = getSizePolicy().arrowPx > 0.0F;
    const float rootScale = isInPixels ? 1.0F
        : diagonal                     ? kOrthographicRootScale
                                       : view.getFov() * getSize();
    const double distance = osg::Vec3d(getAnchorPosition() - view.getEye()).length();
    const float viewScale = isInPixels
        ? view.scaleAt(getAnchorPosition(), getSize(), ViewDiagonal::NearPlane)
        : diagonal ? *diagonal / kDiagonalsPerScale
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
    anchorPixel = view.project(getAnchorPosition());
    constexpr float kHalf = 0.5F;  // to the middle of a pixel
    const osg::Pnt2f anchorPx(anchorPixel.x() - kHalf,
                              static_cast<float>(view.getHeight()) - anchorPixel.y() - kHalf);
    const std::optional<SurfacePlace> held = holdsPicture() ? grabbed
        : pivotsAtHandles                                   ? surfaceAt(anchorPx)
                                                            : std::nullopt;
    pivot = held ? held->texCoord : std::nullopt;
    return true;
}

osg::Vec3f UVGizmo::pictureOffset(const SurfacePlace& from, const SurfacePlace& to) const
{
    const osg::Vec2f way =
        to.texCoord && from.texCoord ? *to.texCoord - *from.texCoord : osg::Vec2f();
    return osg::Vec3f(way.x(), way.y(), 0.0F);
}

void UVGizmo::readValues()
{
    const osg::UberMaterialPtr material = component.getUberMaterial();
    const osg::ColorComponentSettingsPtr settings = component.getSettings();
    const std::string& name = component.getName();
    osg::Vec2f repeat(1.0F, 1.0F);
    const auto fromGUI = [&](const nbStateChunkBase& gui) {
        repeat = gui.getRepeat(name);
        start = { gui.getOffset(name), start.scale, gui.getRotate(name) };
    };
    start = UVPlacing();
    if (settings != osg::NullFC) {
        start.rotateDeg = settings->getRotate();
        start.offset = settings->getOffset();
        repeat = settings->getRepeat();
    } else if (!component.readGUI(fromGUI) && material != osg::NullFC) {
        repeat = material->getRepeat(name);
    }
    start.scale = osg::Vec2f(1.0F / repeat.x(), 1.0F / repeat.y());
}

DragStep UVGizmo::parametersAt(const View& view, const DragTrack& before) const
{
    if (holdsPicture()) {
        return pictureStep(view, before);
    }
    DragTrack next = before;
    const HandleAction action = armedAction();
    const osg::Vec2f from = dragStartPixel - anchorPixel;
    const osg::Vec2f to = view.pointerFromBelow() - anchorPixel;
    if (action.kind == Kind::Angle) {
        next.turned = turnOnScreen(from, to).value_or(static_cast<float>(before.turned));
        return { { Kind::Angle, next.turned }, next };
    }
    if (action.kind == Kind::Factor) {
        return { { Kind::Factor, pictureFactor(from, to, action.axis()) }, next };
    }
    const osg::Vec2f way = view.pointerFromBelow() - dragStartPixel;
    const osg::Vec3f motion = masked(osg::Vec3f(way.x(), way.y(), 0.0F), action.axes);
    return { { Kind::Offset, motion * kOffsetPerPixel }, next };
}

void UVGizmo::apply(const DragParameters& parameters)
{
    nbMessage message;
    UVPlacing after = start;
    if (parameters.kind == Kind::Angle) {
        // Deliberate: a counter-clockwise turn of the pointer subtracts.
        after.rotateDeg -= parameters.first();
        message.set("rotate", after.rotateDeg, true);
    } else if (parameters.kind == Kind::Factor) {
        after.scale =
            scaledPicture(start.scale, parameters.first(), armedAction().axis(), keepAspectRatio);
        message.set("scale", after.scale, true);
    } else {
        message.set("offset", start.offset + parameters.vec2(), true);
    }
    if (pivot && parameters.kind != Kind::Offset) {
        // Taken back, it is to be the same to the bit.
        const bool isOther = after.rotateDeg != start.rotateDeg || after.scale != start.scale;
        message.set("offset", isOther ? offsetKeeping(*pivot, start, after) : start.offset, true);
    }
    component.send(kChangedSuffix, message);
}

}  // namespace nbec::manipulator::texture
