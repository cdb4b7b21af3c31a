// SPDX-License-Identifier: MIT
#include "manipulator/transform/TransformHandles.h"

#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/transform/TransformDrag.h"

#include <utility>

namespace nbec::manipulator::transform {

namespace {

using Mode = ManipulatorMode;
using Active = ActiveMode;
using Kind = DragParameters::Kind;

/// Order of the materials of a kind; grey exists for lines only. After all of them the disc's.
enum Color : std::size_t
{
    Red,
    Green,
    Blue,
    Yellow,
    Purple,
    Orange,
    Grey
};

constexpr std::size_t kSolidCount = Grey;
constexpr std::size_t kClear = kSolidCount + Grey + 1;
constexpr std::size_t kFaint = kClear + 1;

/// The turn that takes +y onto an axis.
constexpr std::array<Turn, 3> kOntoAxis = { Turn::OntoX, Turn::None, Turn::OntoZ };

constexpr HandleModes kWithTranslation =
    modes(Mode::Universal, Mode::Translate, Mode::RotatePivot, Mode::ScalePivot, Mode::Clipping,
          Mode::TranslateRotate, Mode::TranslateRotateYZ, Mode::TranslateRotateScale);
constexpr HandleModes kWithRotation =
    modes(Mode::Universal, Mode::Rotate, Mode::RotatePivot, Mode::Clipping, Mode::TranslateRotate,
          Mode::TranslateRotateYZ, Mode::TranslateRotateScale);
constexpr HandleModes kWithRotationX = kWithRotation & ~modes(Mode::TranslateRotateYZ);
constexpr HandleModes kWithFreeRotation = kWithRotation & ~modes(Mode::RotatePivot);
constexpr HandleModes kWithScale = modes(Mode::Universal, Mode::Scale, Mode::TranslateRotateScale);
constexpr HandleModes kWithUniformScale = modes(Mode::Universal, Mode::Scale);

HandlePart solid(HandleShape shape, std::size_t color)
{
    return { shape, { color, Orange, color } };
}

HandlePart line(HandleShape shape, std::size_t color)
{
    return { shape, { kSolidCount + color, kSolidCount + Orange, kSolidCount + color } };
}

HandleRow row(const char* name, Active handle, const HandleAction& action,
              std::vector<HandlePart> parts, HandleModes visibleIn, HandleHolder holder, Turn turn)
{
    const HandleFamily family = action.kind == Kind::Offset ? Translation
        : action.kind == Kind::Factor                       ? Scaling
                                                            : Rotation;
    HandleRow made {
        name, static_cast<int>(handle), family, std::move(parts), visibleIn, holder, {}, turn
    };
    made.action = action;
    return made;
}

HandleRow arrow(const char* name, Active handle, std::size_t axis)
{
    HandlePart head = solid(HandleShape::ArrowHead, axis);
    head.holder = HandleHolder::Component;
    head.place = { 0.0F, 1.0F, 0.0F };
    HandleRow placed = row(name, handle, { Kind::Offset, axisBit(axis) },
                           { line(HandleShape::ArrowShaft, axis), head }, kWithTranslation,
                           HandleHolder::Component, kOntoAxis[axis]);
    placed.place[axis] = 1.0F;
    placed.letter = "XYZ"[axis];
    placed.tip = kArrowTip;
    return placed;
}

HandleRow scaleHandle(const char* name, Active handle, std::size_t axis)
{
    HandleRow placed =
        row(name, handle, { Kind::Factor, axisBit(axis) },
            { line(HandleShape::ScaleShaft, axis), solid(HandleShape::ScaleCube, axis) },
            kWithScale, HandleHolder::Euler, kOntoAxis[axis]);
    placed.letter = "XYZ"[axis];
    placed.tip = 1.75F;
    return placed;
}

HandleRow ring(const char* name, Active handle, std::size_t axis, HandleModes visibleIn)
{
    HandlePart axisLine = line(HandleShape::RingAxis, axis);
    axisLine.isOfDrag = true;
    return row(name, handle, { Kind::Angle, axisBit(axis) },
               { line(HandleShape::Ring, axis), axisLine }, visibleIn, HandleHolder::Euler,
               kOntoAxis[axis]);
}

/// Of the squares that scale, so that the cube in the middle can be grabbed.
constexpr float kBesideCube = 0.3F;

/// A square that moves in its plane, or scales it. @param normal  axis at right angles
HandleRow planeHandle(const char* name, Active handle, Kind kind, std::size_t normal)
{
    // By the axis at right angles. Deliberate: the colours (patch, bar, bar) do not follow one
    // rule: xz has two red bars, yz two blue ones.
    constexpr Turn kTurns[] = { Turn::AboutY, Turn::OntoZ, Turn::None };
    constexpr Color kColors[][3] = { { Green, Blue, Blue },
                                     { Blue, Red, Red },
                                     { Green, Red, Green } };
    const Color(&colors)[3] = kColors[normal];
    const bool scales = kind == Kind::Factor;
    HandleRow placed =
        row(name, handle, { kind, kAllAxes & ~axisBit(normal) },
            { solid(HandleShape::PlanePatch, colors[0]), solid(HandleShape::PlaneBarX, colors[1]),
              solid(HandleShape::PlaneBarY, colors[2]) },
            scales ? modes(Mode::Scale) : kWithTranslation,
            scales ? HandleHolder::Euler : HandleHolder::Component, kTurns[normal]);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        placed.place[axis] = scales && axis != normal ? kBesideCube : 0.0F;
    }
    return placed;
}

HandlePart scaled(HandlePart part, float x, float y, float z)
{
    part.holder = HandleHolder::Component;
    part.scale = { x, y, z };
    return part;
}

/// Those in the frame of the screen: the middle, which in mode Universal is that of the cube; the
/// outer ring; and a flat sphere.
std::vector<HandleRow> screenHandles()
{
    constexpr unsigned kAcross = axisBit(0) | axisBit(1);
    constexpr float kSide = 0.35F;
    constexpr float kLarger = 1.2F;
    constexpr float kBall = kTrackballRadius / 0.125F;
    const HandlePart fill { HandleShape::Square, { kFaint, kFaint, kFaint } };
    const HandlePart ball { HandleShape::CentreSphere, { kClear, kFaint, kClear } };
    return { row("vaShape", Active::TranslateView, { Kind::Offset, kAcross, true },
                 { scaled(line(HandleShape::SquareOutline, Yellow), kSide, kSide, 1.0F),
                   scaled(fill, kSide, kSide, 1.0F) },
                 kWithTranslation & ~modes(Mode::Universal), HandleHolder::Euler, Turn::None),
             row("rvShape", Active::RotateView, { Kind::Angle, axisBit(2), true },
                 { scaled(line(HandleShape::Ring, Yellow), kLarger, kLarger, kLarger) },
                 kWithFreeRotation, HandleHolder::Euler, Turn::OntoZ),
             row("rtShape", Active::RotateFree, { Kind::Turns, kAcross, true },
                 { scaled(ball, kBall, kBall, 0.1F) }, kWithFreeRotation, HandleHolder::Euler,
                 Turn::None) };
}

HandleRow marker(HandleShape shape, std::size_t color, HandleModes visibleIn)
{
    return { nullptr, 0, NoFamily, { solid(shape, color) }, visibleIn, HandleHolder::None };
}

}  // namespace

HandleTable makeTable(bool hasFurther)
{
    HandleTable table;
    table.rows = {
        arrow("xaShape", Active::TranslateX, 0),
        arrow("yaShape", Active::TranslateY, 1),
        arrow("zaShape", Active::TranslateZ, 2),
        scaleHandle("xsShape", Active::ScaleX, 0),
        scaleHandle("ysShape", Active::ScaleY, 1),
        scaleHandle("zsShape", Active::ScaleZ, 2),
        row("grid", Active::ScaleUniform, { Kind::Factor, kAllAxes },
            { solid(HandleShape::Cube, Yellow) }, kWithUniformScale, HandleHolder::Euler,
            Turn::None),
        ring("rxShape", Active::RotateX, 0, kWithRotationX),
        ring("ryShape", Active::RotateY, 1, kWithRotation),
        ring("rzShape", Active::RotateZ, 2, kWithRotation),
        planeHandle("xyaShape", Active::TranslateXY, Kind::Offset, 2),
        planeHandle("xzaShape", Active::TranslateXZ, Kind::Offset, 1),
        planeHandle("yzaShape", Active::TranslateYZ, Kind::Offset, 0),
        marker(HandleShape::CentreSphere, Yellow, modes(Mode::RotatePivot)),
        marker(HandleShape::Cube, Purple, modes(Mode::ScalePivot)),
    };
    if (hasFurther) {
        const std::vector<HandleRow> screen = screenHandles();
        table.rows.insert(table.rows.end(), screen.begin(), screen.end());
        table.rows.insert(table.rows.end(),
                          { planeHandle("xysShape", Active::ScaleXY, Kind::Factor, 2),
                            planeHandle("xzsShape", Active::ScaleXZ, Kind::Factor, 1),
                            planeHandle("yzsShape", Active::ScaleYZ, Kind::Factor, 0) });
    }
    // In the order of the modes' values.
    constexpr unsigned kBoth = modes(Translation, Rotation);
    constexpr unsigned kAll = modes(Translation, Rotation, Scaling);
    table.restored = {
        kAll, modes(Translation), modes(Scaling), modes(Rotation), kBoth, kBoth, kAll, kBoth, kBoth,
        kAll
    };
    return table;
}

const std::size_t kYellowLine = kSolidCount + Yellow;
const std::size_t kOrangeLine = kSolidCount + Orange;

HandleSet::Materials makeMaterials()
{
    const osg::Color3f colors[] = { { 1.0F, 0.0F, 0.0F },   { 0.0F, 1.0F, 0.0F },
                                    { 0.0F, 0.0F, 1.0F },   { 1.0F, 1.0F, 0.0F },
                                    { 0.6F, 0.35F, 0.65F }, { 1.0F, 0.5F, 0.0F },
                                    { 0.1F, 0.1F, 0.1F } };
    const LineChunks chunks = makeLineChunks();
    HandleSet::Materials materials;
    for (std::size_t i = 0; i < kSolidCount; ++i) {
        materials.push_back(makeHandleMaterial(colors[i], handleSortKey::kSolid, nullptr));
    }
    for (std::size_t i = 0; i <= Grey; ++i) {
        // Deliberate: the highlight's line material has the solid ones' sort key, unlike the other
        // line materials.
        const int sortKey = i == Orange ? handleSortKey::kSolid : handleSortKey::kLine;
        materials.push_back(makeHandleMaterial(colors[i], sortKey, &chunks));
    }
    for (const float transparency : { 1.0F, 0.8F }) {
        materials.push_back(
            makeHandleMaterial(colors[Yellow], handleSortKey::kLine, nullptr, transparency));
    }
    return materials;
}

}  // namespace nbec::manipulator::transform
