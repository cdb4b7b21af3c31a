// SPDX-License-Identifier: MIT
#include "manipulator/transform/TransformHandles.h"

#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/transform/TransformModes.h"

#include <utility>

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

/// The turn that takes +y onto an axis.
constexpr std::array<Turn, 3> kOntoAxis = { Turn::OntoX, Turn::None, Turn::OntoZ };

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

HandlePart solid(HandleShape shape, std::size_t color)
{
    return { shape, { color, Orange, color } };
}

HandlePart line(HandleShape shape, std::size_t color)
{
    return { shape, { kSolidCount + color, kSolidCount + Orange, kSolidCount + color } };
}

HandleRow row(const char* name, Active handle, Family family, std::vector<HandlePart> parts,
              HandleModes visibleIn, HandleHolder holder, Turn turn)
{
    return {
        name, static_cast<int>(handle), family, std::move(parts), visibleIn, holder, {}, turn
    };
}

HandleRow arrow(const char* name, Active handle, std::size_t axis)
{
    HandlePart head = solid(HandleShape::ArrowHead, axis);
    head.holder = HandleHolder::Component;
    head.place = { 0.0F, 1.0F, 0.0F };
    HandleRow placed = row(name, handle, Translation, { line(HandleShape::ArrowShaft, axis), head },
                           kWithTranslation, HandleHolder::Component, kOntoAxis[axis]);
    placed.place[axis] = 1.0F;
    return placed;
}

HandleRow scaleHandle(const char* name, Active handle, std::size_t axis)
{
    return row(name, handle, Scaling,
               { line(HandleShape::ScaleShaft, axis), solid(HandleShape::ScaleCube, axis) },
               kWithScale, HandleHolder::Euler, kOntoAxis[axis]);
}

HandleRow ring(const char* name, Active handle, std::size_t axis, HandleModes visibleIn)
{
    HandlePart axisLine = line(HandleShape::RingAxis, axis);
    axisLine.isOfDrag = true;
    return row(name, handle, Rotation, { line(HandleShape::Ring, axis), axisLine }, visibleIn,
               HandleHolder::Euler, kOntoAxis[axis]);
}

/// @param turn  takes the xy plane onto the handle's
HandleRow planeHandle(const char* name, Active handle, Turn turn,
                      const std::array<std::size_t, 3>& colors)
{
    return row(name, handle, Translation,
               { solid(HandleShape::PlanePatch, colors[0]),
                 solid(HandleShape::PlaneBarX, colors[1]),
                 solid(HandleShape::PlaneBarY, colors[2]) },
               kWithTranslation, HandleHolder::Component, turn);
}

HandleAction actionOf(Active handle)
{
    using Kind = DragParameters::Kind;
    const std::size_t axis = axisOf(handle);
    const unsigned axes = axis != kNoAxis ? axisBit(axis) : kAllAxes;
    if (isTranslation(handle)) {
        const std::size_t normal = planeNormalAxis(handle);
        return { Kind::Offset, normal != kNoAxis ? axes & ~axisBit(normal) : axes };
    }
    return { isRing(handle) ? Kind::Angle : Kind::Factor, axes };
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
        row("grid", Active::ScaleUniform, Scaling, { solid(HandleShape::Cube, Yellow) },
            kWithUniformScale, HandleHolder::Euler, Turn::None),
        ring("rxShape", Active::RotateX, 0, kWithRotationX),
        ring("ryShape", Active::RotateY, 1, kWithRotation),
        ring("rzShape", Active::RotateZ, 2, kWithRotation),
        planeHandle("xyaShape", Active::TranslateXY, Turn::None, { Green, Red, Green }),
        planeHandle("xzaShape", Active::TranslateXZ, Turn::OntoZ, { Blue, Red, Red }),
        planeHandle("yzaShape", Active::TranslateYZ, Turn::AboutY, { Green, Blue, Blue }),
        marker(HandleShape::CentreSphere, Yellow, modes(Mode::RotatePivot)),
        marker(HandleShape::Cube, Purple, modes(Mode::ScalePivot)),
    };
    for (HandleRow& row : table.rows) {
        if (row.handle != 0) {
            row.action = actionOf(static_cast<Active>(row.handle));
        }
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

}  // namespace

const std::size_t kYellowLine = kSolidCount + Yellow;
const std::size_t kOrangeLine = kSolidCount + Orange;

const HandleTable& handleTable()
{
    static const HandleTable table = makeTable();
    return table;
}

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
    return materials;
}

}  // namespace nbec::manipulator::transform
