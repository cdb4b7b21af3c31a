// SPDX-License-Identifier: MIT
#include "manipulator/texture/PlanarHandles.h"

#include "manipulator/handles/HandleMaterials.h"

namespace nbec::manipulator::texture {

namespace {

using Active = PlanarActiveMode;
using Mode = PlanarManipulatorMode;

enum Color : std::size_t
{
    XAxis,
    YAxis,
    XLight,
    YLight,
    ZLight,
    ZAxis,
    Accent,
    Highlight,
    Yellow
};

constexpr float kTrace = kTraceOfTransparency;
constexpr int kAxisKey = handleSortKey::kSolid;
constexpr int kLightKey = handleSortKey::kLine;

/// In the order of Color.
constexpr std::array<HandleMaterialRow, Yellow + 1> kMaterials = {
    { { 1.0F, 0.0F, 0.0F, kTrace, kAxisKey },
      { 0.0F, 1.0F, 0.0F, kTrace, kAxisKey },
      { 1.0F, 0.5F, 0.5F, kTrace, kLightKey },
      { 0.5F, 1.0F, 0.5F, kTrace, kLightKey },
      { 0.5F, 0.5F, 1.0F, kTrace, kLightKey },
      { 0.0F, 0.0F, 1.0F, kTrace, kAxisKey },
      { 0.953F, 0.525F, 0.184F, 0.0F, kAxisKey },
      { 1.0F, 0.5F, 0.0F, 0.0F, kAxisKey },
      { 1.0F, 1.0F, 0.0F, kTrace, kAxisKey } }
};

enum Family : int
{
    Translation,
    Rotation,
    Scaling
};

constexpr std::array<HandleModes, 3> kVisibleIn = { modes(Mode::Universal, Mode::Translate),
                                                    modes(Mode::Universal, Mode::Rotate),
                                                    modes(Mode::Universal, Mode::Scale) };

HandlePart part(HandleShape shape, Color color)
{
    return { shape, { color, Highlight, color } };
}

HandleRow handle(const char* name, Active active, Family family, std::vector<HandlePart> parts)
{
    HandleRow row = { name, static_cast<int>(active), family, std::move(parts),
                      kVisibleIn[family] };
    row.leaves = HandleLeaves::Family;
    return row;
}

HandleRow arrow(const char* name, Active active, Color color, const std::array<float, 3>& place,
                Turn turn)
{
    HandleRow row = handle(
        name, active, Translation,
        { part(HandleShape::SolidArrowShaft, color), part(HandleShape::SolidArrowHead, color) });
    row.place = place;
    row.turn = turn;
    return row;
}

HandleRow scaleAxis(const char* name, Active active, Color color, HandleShape shaft,
                    HandleShape box)
{
    return handle(name, active, Scaling, { part(shaft, color), part(box, color) });
}

/// A tab at an edge, a corner, the centre or the end of the Z extent.
HandleRow tab(const char* name, Active active, HandleShape shape, Color color)
{
    return handle(name, active, Scaling, { part(shape, color) });
}

/// Deliberate: the arrow and the scale axis of z point to -z, where the projection looks, unlike
/// those of x and y. A drag of the x arrow or the plane handle hides nothing.
HandleTable makeTable()
{
    HandleTable table;
    table.rows = {
        arrow("yaShape", Active::TranslateY, YAxis, { 0.0F, 1.0F, 0.0F }, Turn::None),
        arrow("xaShape", Active::TranslateX, XAxis, { 1.0F, 0.0F, 0.0F }, Turn::OntoX),
        arrow("zaShape", Active::TranslateZ, ZAxis, { 0.0F, 0.0F, -1.0F }, Turn::OntoMinusZ),
        handle("xyaShape", Active::TranslateXY, Translation,
               { part(HandleShape::SolidPatch, ZAxis), part(HandleShape::SolidBarX, XAxis),
                 part(HandleShape::SolidBarY, YAxis) }),
        scaleAxis("zsShape", Active::ScaleZ, ZLight, HandleShape::SolidScaleShaftMinusZ,
                  HandleShape::ScaleTabMinusZ),
        scaleAxis("ysShape", Active::ScaleY, YLight, HandleShape::SolidScaleShaftY,
                  HandleShape::ScaleTabY),
        scaleAxis("xsShape", Active::ScaleX, XLight, HandleShape::SolidScaleShaftX,
                  HandleShape::ScaleTabX),
        tab("grid", Active::ScaleUniform, HandleShape::BigCube, Yellow),
        handle("rotateShape", Active::Rotate, Rotation,
               { part(HandleShape::SolidRing, ZAxis), part(HandleShape::RingGrip, Accent) }),
        tab("scaleXYLLShape", Active::ScaleLowerLeft, HandleShape::SquareTab, Yellow),
        tab("scaleXYULShape", Active::ScaleUpperLeft, HandleShape::SquareTab, Yellow),
        tab("scaleXYLRShape", Active::ScaleLowerRight, HandleShape::SquareTab, Yellow),
        tab("scaleXYURShape", Active::ScaleUpperRight, HandleShape::SquareTab, Yellow),
        tab("scaleXLShape", Active::ScaleLeft, HandleShape::UprightTab, XLight),
        tab("scaleXRShape", Active::ScaleRight, HandleShape::UprightTab, XLight),
        tab("scaleYLShape", Active::ScaleLower, HandleShape::LyingTab, YLight),
        tab("scaleYUShape", Active::ScaleUpper, HandleShape::LyingTab, YLight),
        tab("scaleZPlaneShape", Active::ScaleZPlane, HandleShape::SquareTab, ZLight),
    };
    for (HandleRow& row : table.rows) {
        const auto active = static_cast<Active>(row.handle);
        if (active == Active::TranslateX || active == Active::TranslateXY) {
            row.leaves = HandleLeaves::Everything;
        }
    }
    return table;
}

}  // namespace

const HandleTable& planarHandleTable()
{
    static const HandleTable table = makeTable();
    return table;
}

HandleSet::Materials makePlanarMaterials()
{
    return makeHandleMaterials(kMaterials);
}

PlanarSide planarSideOf(PlanarActiveMode handle)
{
    switch (handle) {
    case Active::ScaleLowerLeft:
        return { -1, -1, 0 };
    case Active::ScaleUpperLeft:
        return { -1, 1, 0 };
    case Active::ScaleLowerRight:
        return { 1, -1, 0 };
    case Active::ScaleUpperRight:
        return { 1, 1, 0 };
    case Active::ScaleLeft:
        return { -1, 0, 0 };
    case Active::ScaleRight:
        return { 1, 0, 0 };
    case Active::ScaleLower:
        return { 0, -1, 0 };
    case Active::ScaleUpper:
        return { 0, 1, 0 };
    case Active::ScaleZPlane:
        return { 0, 0, -1 };
    default:
        return { 0, 0, 0 };
    }
}

}  // namespace nbec::manipulator::texture
