// SPDX-License-Identifier: MIT
#include "manipulator/texture/TriplanarGizmo.h"

#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/HandleNodes.h"
#include "manipulator/texture/TextureHandles.h"

#include <nbUtils/nbMessage.h>

#include <cmath>

namespace nbec::manipulator::texture {

namespace {

using Mode = TriplanarMode;
using Handle = TriplanarHandle;
using Kind = DragParameters::Kind;

constexpr float kHandleEnd = 2.5F;
constexpr float kUnitsPerOffset = 100.0F;
constexpr const char* kChangedSuffix = "::changedTriplanarManipulator";
constexpr std::array<const char*, 3> kOffsetNames = { "XOffset", "YOffset", "ZOffset" };
constexpr std::array<const char*, 3> kScaleNames = { "XScale", "YScale", "ZScale" };

HandleRow uniformScale()
{
    HandleRow row =
        handleRow("grid", number(Handle::ScaleUniform), -1, { Kind::Factor, kAllAxes },
                  { handlePart(HandleShape::Cube, YellowMaterial, HandleHolder::Euler) });
    row.visibleIn = kAllModes & ~modes(Mode::Rotate);
    row.holder = HandleHolder::Euler;
    return row;
}

HandleRow scaleHandle(const char* name, Handle handle, std::size_t axis)
{
    constexpr std::array<Turn, 3> kTurns = { Turn::OntoMinusX, Turn::None, Turn::OntoZ };
    std::array<float, 3> middle = { 0.0F, 0.0F, 0.0F };
    std::array<float, 3> end = middle;
    middle[axis] = kHandleEnd / 2;
    end[axis] = kHandleEnd;
    HandlePart box =
        handlePart(HandleShape::Cube, LightRedMaterial + axis, HandleHolder::Euler, end);
    box.colors.special = axis;
    HandleRow row = handleRow(name, number(handle), Scaling, { Kind::Factor, axisBit(axis) },
                              { handlePart(HandleShape::LongScaleShaft, RedLineMaterial + axis,
                                           HandleHolder::Euler, middle, kTurns[axis]),
                                box });
    row.holder = HandleHolder::Euler;
    row.litWith = number(Handle::ScaleUniform);
    return row;
}

HandleRow ringRow(const char* name, Handle handle, std::size_t axis)
{
    constexpr std::array<Turn, 3> kTurns = { Turn::ZOntoX, Turn::OntoZ, Turn::None };
    HandleRow row = handleRow(name, number(handle), Rotation, { Kind::Angle, axisBit(axis) },
                              { handlePart(HandleShape::SolidBigRing, axis) });
    row.turn = kTurns[axis];
    return row;
}

HandleTable makeTable()
{
    HandleTable table;
    table.rows = {
        axisArrow("xaShape", number(Handle::TranslateX), Translation, 0),
        axisArrow("yaShape", number(Handle::TranslateY), Translation, 1),
        axisArrow("zaShape", number(Handle::TranslateZ), Translation, 2),
        uniformScale(),
        scaleHandle("xsShape", Handle::ScaleX, 0),
        scaleHandle("ysShape", Handle::ScaleY, 1),
        scaleHandle("zsShape", Handle::ScaleZ, 2),
        ringRow("rxShape", Handle::RotateX, 0),
        ringRow("ryShape", Handle::RotateY, 1),
        ringRow("rzShape", Handle::RotateZ, 2),
    };
    table.groups = { modes(Mode::Universal, Mode::Initial), kAllModes,
                     kAllModes & ~modes(Mode::Rotate) };
    table.specialIn = modes(Mode::RotateScale);
    return table;
}

/// The reciprocals of a pair.
osg::Vec2f reciprocals(const osg::Vec2f& pair)
{
    return osg::Vec2f(1.0F / pair.x(), 1.0F / pair.y());
}

/// The axes of a space, of the world's unit length, at its origin.
osg::Matrix unitAxes(const osg::Matrix& worldFromSpace)
{
    return unitFrame(worldFromSpace, osg::Pnt3f(column(worldFromSpace, 3)));
}

/// A place in a space whose axes have the world's unit length.
osg::Vec3f inUnits(const osg::Matrix& worldFromSpace, const osg::Pnt3f& world)
{
    return mapped(inverted(unitAxes(worldFromSpace)), world).subZero();
}

}  // namespace

TriplanarGizmo::TriplanarGizmo(const float& size)
    : AnchoredGizmo(makeTable(), makeAxisMaterials(false), number(Mode::Initial), size)
{
    root = makeHandleRootOver(handles.getRoot());
    offsetAxes = kAllAxes;
}

void TriplanarGizmo::showActive()
{
    if (getMode() == number(Mode::Initial)) {
        handles.showRoot(true);
    } else {
        AnchoredGizmo::showActive();
    }
}

void TriplanarGizmo::placeHandles(const View& view, const osg::Matrix& worldFromAnchor)
{
    const osg::Pnt3f& place = getAnchorPosition();
    const float size = view.scaleAt(place, getSize(), ViewDiagonal::NearPlane);
    placeTransform(handles.getRootTransform(), place.subZero(), osg::Quaternion::identity(),
                   osg::Vec3f(size, size, size));
    const osg::Quaternion axes(orthonormalised(worldFromAnchor));
    for (std::size_t group = 0; group < handles.getTable().groups.size(); ++group) {
        placeTransform(handles.getGroupTransform(group), osg::Vec3f(), axes,
                       osg::Vec3f(1.0F, 1.0F, 1.0F));
    }
}

// == Start of a drag

bool TriplanarGizmo::capture(const View& view)
{
    const osg::NodePtr node = getAnchorNode();
    if (node == osg::NullFC) {
        return false;
    }
    const osg::Matrix worldFromAnchor = node->getToWorld();
    followAnchor(worldFromAnchor);
    readValues();
    choosePlane(view, unitFrame(worldFromAnchor, getAnchorPosition()));
    path.follow(view.pointerRay(), track);
    startTurn = triplanarTurn(startRotation);
    pivot.reset();
    if (holdsPicture()) {
        capturePicture(view);
    } else if (pivotsAtHandles) {
        pivot = inUnits(worldFromAnchor, getAnchorPosition()) +
            triplanarOffset(startOffsets, 3) * kUnitsPerOffset;
    }
    return true;
}

void TriplanarGizmo::capturePicture(const View& view)
{
    const osg::Matrix axes = unitAxes(grabbed->worldFromSurface);
    osg::Vec3f normal;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        normal[i] = column(axes, i).dot(grabbed->normal);
    }
    normal = rotated(startTurn.inverse(), normal);
    main = 0;
    for (osg::UInt32 i = 1; i < 3; ++i) {
        main = std::abs(normal[i]) > std::abs(normal[main]) ? i : main;
    }
    pivot = inUnits(grabbed->worldFromSurface, grabbed->world) +
        triplanarOffset(startOffsets, main) * kUnitsPerOffset;
    osg::Vec3f about;
    about[main] = 1.0F;
    about = rotated(startTurn, about);
    axes.multMatrixVec(about);
    turnSense = about.dot(view.sightAt(grabbed->world)) * axes.det3() < 0.0F ? 1.0F : -1.0F;
}

/// Across the plane of the projection that was grabbed the offset stays as it is.
osg::Vec3f TriplanarGizmo::pictureOffset(const SurfacePlace& from, const SurfacePlace& to) const
{
    osg::Vec3f inFrame = rotated(startTurn.inverse(),
                                 inUnits(to.worldFromSurface, to.world) -
                                     inUnits(from.worldFromSurface, from.world));
    inFrame[main] = 0.0F;
    return rotated(startTurn, inFrame);
}

void TriplanarGizmo::readValues()
{
    const std::string& name = component.getName();
    const bool isRead = component.readGUI([&](const nbStateChunkBase& gui) {
        startRotation = gui.getTriplanarRotation(name);
        for (osg::UInt32 i = 0; i < 3; ++i) {
            startOffsets[i] = gui.getTriplanarOffset(name, i);
            startScales[i] = reciprocals(gui.getTriplanarRepeat(name, i));
        }
    });
    if (isRead) {
        return;
    }
    startRotation = osg::Vec3f();
    startOffsets = TriplanarPairs();
    startScales.fill(osg::Vec2f(1.0F, 1.0F));
    const osg::ColorComponentSettingsPtr settings = component.getSettings();
    if (settings != osg::NullFC &&
        settings->getTextureProjectionType() == osg::ColorComponentSettings::TriplanarProjection) {
        startRotation = settings->getTriplanarRotation();
        for (osg::UInt32 i = 0; i < 3; ++i) {
            startOffsets[i] =
                osg::Vec2f(settings->getTriplanarOffsetU()[i], settings->getTriplanarOffsetV()[i]);
            startScales[i] = reciprocals(
                osg::Vec2f(settings->getTriplanarRepeatU()[i], settings->getTriplanarRepeatV()[i]));
        }
    }
}

void TriplanarGizmo::choosePlane(const View& view, const osg::Matrix& worldFromFrame)
{
    const osg::Pnt3f& center = getAnchorPosition();
    frameFromWorld = inverted(worldFromFrame);
    if (axis() == kNoAxis) {
        path = RingDrag::flat(view.sight(), center);
        return;
    }
    const osg::Vec3f along = column(worldFromFrame, axis());
    if (armedAction().kind == Kind::Angle) {
        path = RingDrag::begin(center, along, grabbedPoint, view.getSight());
        path.isWire = path.isWire && areRingsTilted;
    } else {
        path = RingDrag::flat(axisPlaneNormal(along, view.sight()), center);
    }
}

// == Steps

DragStep TriplanarGizmo::parametersAt(const View& view, const DragTrack& before) const
{
    if (holdsPicture()) {
        return pictureStep(view, before);
    }
    DragTrack next = before;
    const std::optional<osg::Pnt3f> hit = path.follow(view.pointerRay(), next);
    if (!hit) {
        return DragStep();
    }
    const osg::Pnt3f from = mapped(frameFromWorld, *next.start);
    const osg::Pnt3f to = mapped(frameFromWorld, *hit);
    const Kind kind = armedAction().kind;
    if (kind == Kind::Angle) {
        next.turned = turnAbout(from.subZero(), to.subZero(), axis()).value_or(before.turned);
        return { { Kind::Angle, next.turned }, next };
    }
    if (axis() == kNoAxis) {
        const osg::UInt32 up = view.upAxis();
        return { { Kind::Factor, uniformScaleFactor(to[up], from[up]) }, next };
    }
    return kind == Kind::Factor
        ? DragStep({ kind, axisScaleFactor(to[axis()], from[axis()]) }, next)
        : DragStep({ kind, masked(to - from, axisBit(axis())) }, next);
}

void TriplanarGizmo::apply(const DragParameters& parameters)
{
    nbMessage message;
    const float value = parameters.first();
    osg::Vec3f shift;
    if (parameters.kind == Kind::Offset) {
        shift = parameters.vec3();
    } else {
        osg::Quaternion turn = startTurn;
        osg::Vec3f growth(1.0F, 1.0F, 1.0F);
        if (parameters.kind == Kind::Angle) {
            turn = setTurn(message, parameters.values[0]);
        } else {
            const TriplanarPairs scales = scaledAlong(startScales, axis(), value);
            for (osg::UInt32 i = 0; i < 3; ++i) {
                growth[i] = axis() > 2 || i == axis() ? value : 1.0F;
                if (i != axis()) {
                    message.set(kScaleNames[i], scales[i], true);
                }
            }
        }
        // Taken back, offsets are to be the same to the bit.
        const bool isOther = value != (parameters.kind == Kind::Angle ? 0.0F : 1.0F);
        shift = pivot && isOther ? shiftKeeping(*pivot, startTurn, turn, growth) : osg::Vec3f();
    }
    if (parameters.kind == Kind::Offset || pivot) {
        TriplanarPairs offsets = startOffsets;
        for (osg::UInt32 i = 0; i < 3; ++i) {
            offsets = shiftedOffsets(offsets, i, shift[i]);
        }
        for (osg::UInt32 i = 0; i < 3; ++i) {
            if (parameters.kind != Kind::Offset || i != axis()) {
                message.set(kOffsetNames[i], offsets[i], true);
            }
        }
    }
    component.send(kChangedSuffix, message);
}

/// Has a message turn the frame, about the armed ring or across the picture that was grabbed.
osg::Quaternion TriplanarGizmo::setTurn(nbMessage& message, double turnDeg) const
{
    osg::Vec3f rotation = startRotation;
    if (!holdsPicture()) {
        rotation = turnedTriplanar(startRotation, axis(), turnDeg);
    } else if (turnDeg != 0.0) {
        osg::Vec3f about;
        about[main] = 1.0F;
        osg::Quaternion turn = startTurn;
        turn.mult(osg::Quaternion(about, static_cast<float>(turnDeg / kDegPerRad)));
        rotation = triplanarRotation(turn);
    }
    message.set("rotate", rotation, true);
    return triplanarTurn(rotation);
}

}  // namespace nbec::manipulator::texture
