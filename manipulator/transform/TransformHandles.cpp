// SPDX-License-Identifier: MIT
#include "manipulator/transform/TransformHandles.h"

#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/transform/TransformModes.h"

namespace nbec::manipulator::transform {

namespace {

using Mode = ManipulatorMode;
using Active = ActiveMode;

/// Order of the materials of a kind; grey exists for lines only.
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

struct ColorRow
{
    float red, green, blue;
};

constexpr std::array<ColorRow, Grey + 1> kColors = { { { 1.0F, 0.0F, 0.0F },
                                                       { 0.0F, 1.0F, 0.0F },
                                                       { 0.0F, 0.0F, 1.0F },
                                                       { 1.0F, 1.0F, 0.0F },
                                                       { 0.6F, 0.35F, 0.65F },
                                                       { 1.0F, 0.5F, 0.0F },
                                                       { 0.1F, 0.1F, 0.1F } } };

constexpr HandleModes kWithTranslation =
    modes(Mode::Universal, Mode::Translate, Mode::RotatePivot, Mode::ScalePivot, Mode::Clipping,
          Mode::TranslateRotate, Mode::TranslateRotateYZ, Mode::TranslateRotateScale);
constexpr HandleModes kWithRotation =
    modes(Mode::Universal, Mode::Rotate, Mode::RotatePivot, Mode::Clipping, Mode::TranslateRotate,
          Mode::TranslateRotateYZ, Mode::TranslateRotateScale);
constexpr HandleModes kWithRotationX = kWithRotation & ~modes(Mode::TranslateRotateYZ);
constexpr HandleModes kWithScale = modes(Mode::Universal, Mode::Scale, Mode::TranslateRotateScale);
constexpr HandleModes kWithUniformScale = modes(Mode::Universal, Mode::Scale);

enum Family : int
{
    NoFamily = -1,
    Translation,
    Rotation,
    Scaling
};

/// Which families each mode puts back to idle colours, in the order of the modes' values.
const std::vector<unsigned>& restoredFamilies()
{
    static const std::vector<unsigned> rows = {
        modes(Translation, Rotation, Scaling),  // universal
        modes(Translation),  // translate
        modes(Scaling),  // scale
        modes(Rotation),  // rotate
        modes(Translation, Rotation),  // rotate pivot
        modes(Translation, Rotation),  // scale pivot
        modes(Translation, Rotation, Scaling),  // clipping
        modes(Translation, Rotation),  // translate and rotate
        modes(Translation, Rotation),  // translate and rotate, y and z
        modes(Translation, Rotation, Scaling)  // translate, rotate and scale
    };
    return rows;
}

HandlePart solid(HandleShape shape, std::size_t color)
{
    return { shape, { color, Orange, color } };
}

HandlePart line(HandleShape shape, std::size_t color)
{
    return { shape, { kSolidCount + color, kSolidCount + Orange, kSolidCount + color } };
}

HandleRow arrow(const char* name, Active handle, std::size_t axis)
{
    constexpr std::array<Turn, 3> kTurns = { Turn::OntoX, Turn::None, Turn::OntoZ };
    HandlePart head = solid(HandleShape::ArrowHead, axis);
    head.holder = HandleHolder::Component;
    head.place = { 0.0F, 1.0F, 0.0F };
    HandleRow row = { name,
                      static_cast<int>(handle),
                      Translation,
                      { line(HandleShape::ArrowShaft, axis), head },
                      kWithTranslation };
    row.place[axis] = 1.0F;
    row.turn = kTurns[axis];
    return row;
}

/// The turn that takes +y onto an axis, by angles.
void turnOnto(HandleRow& row, std::size_t axis)
{
    constexpr std::array<Turn, 3> kTurns = { Turn::OntoX, Turn::None, Turn::OntoZ };
    row.holder = HandleHolder::Euler;
    row.turn = kTurns[axis];
}

HandleRow scaleHandle(const char* name, Active handle, std::size_t axis)
{
    HandleRow row = { name,
                      static_cast<int>(handle),
                      Scaling,
                      { line(HandleShape::ScaleShaft, axis), solid(HandleShape::ScaleCube, axis) },
                      kWithScale };
    turnOnto(row, axis);
    return row;
}

HandleRow uniformScale()
{
    HandleRow row = { "grid",
                      static_cast<int>(Active::ScaleUniform),
                      Scaling,
                      { solid(HandleShape::Cube, Yellow) },
                      kWithUniformScale };
    row.holder = HandleHolder::Euler;
    return row;
}

HandleRow ring(const char* name, Active handle, std::size_t axis, HandleModes visibleIn)
{
    HandlePart axisLine = line(HandleShape::RingAxis, axis);
    axisLine.isOfDrag = true;
    HandleRow row = { name,
                      static_cast<int>(handle),
                      Rotation,
                      { line(HandleShape::Ring, axis), axisLine },
                      visibleIn };
    turnOnto(row, axis);
    return row;
}

/// @param turn  takes the xy plane onto the handle's
HandleRow planeHandle(const char* name, Active handle, Turn turn,
                      const std::array<std::size_t, 3>& colors)
{
    HandleRow row = { name,
                      static_cast<int>(handle),
                      Translation,
                      { solid(HandleShape::PlanePatch, colors[0]),
                        solid(HandleShape::PlaneBarX, colors[1]),
                        solid(HandleShape::PlaneBarY, colors[2]) },
                      kWithTranslation };
    row.turn = turn;
    return row;
}

HandleRow marker(HandleShape shape, std::size_t color, HandleModes visibleIn)
{
    return { nullptr, 0, NoFamily, { solid(shape, color) }, visibleIn, HandleHolder::None };
}

/// Deliberate: the plane handles' colours (patch, bar, bar) do not follow one rule: xz has two red
/// bars, yz two blue ones.
HandleTable makeTable()
{
    HandleTable table;
    table.rows = {
        arrow("xaShape", Active::TranslateX, 0),
        arrow("yaShape", Active::TranslateY, 1),
        arrow("zaShape", Active::TranslateZ, 2),
        scaleHandle("xsShape", Active::ScaleX, 0),
        scaleHandle("ysShape", Active::ScaleY, 1),
        scaleHandle("zsShape", Active::ScaleZ, 2),
        uniformScale(),
        ring("rxShape", Active::RotateX, 0, kWithRotationX),
        ring("ryShape", Active::RotateY, 1, kWithRotation),
        ring("rzShape", Active::RotateZ, 2, kWithRotation),
        planeHandle("xyaShape", Active::TranslateXY, Turn::None, { Green, Red, Green }),
        planeHandle("xzaShape", Active::TranslateXZ, Turn::OntoZ, { Blue, Red, Red }),
        planeHandle("yzaShape", Active::TranslateYZ, Turn::AboutY, { Green, Blue, Blue }),
        marker(HandleShape::CentreSphere, Yellow, modes(Mode::RotatePivot)),
        marker(HandleShape::Cube, Purple, modes(Mode::ScalePivot)),
    };
    table.restored = restoredFamilies();
    return table;
}

}  // namespace

const std::size_t kYellowLine = kSolidCount + Yellow;

const HandleTable& handleTable()
{
    static const HandleTable table = makeTable();
    return table;
}

HandleSet::Materials makeMaterials()
{
    const LineChunks chunks = makeLineChunks();
    HandleSet::Materials materials;
    const auto colorOf = [](std::size_t i) {
        return osg::Color3f(kColors[i].red, kColors[i].green, kColors[i].blue);
    };
    for (std::size_t i = 0; i < kSolidCount; ++i) {
        materials.push_back(makeHandleMaterial(colorOf(i), handleSortKey::kSolid, nullptr));
    }
    for (std::size_t i = 0; i < kColors.size(); ++i) {
        // Deliberate: the highlight's line material has the solid ones' sort key, unlike the other
        // line materials.
        const int sortKey = i == Orange ? handleSortKey::kSolid : handleSortKey::kLine;
        materials.push_back(makeHandleMaterial(colorOf(i), sortKey, &chunks));
    }
    return materials;
}

}  // namespace nbec::manipulator::transform
