// SPDX-License-Identifier: MIT
#include "manipulator/texture/PlanarHandles.h"

#include "manipulator/texture/TextureHandles.h"

namespace nbec::manipulator::texture {

namespace {

using Active = PlanarActiveMode;
using Mode = PlanarManipulatorMode;

constexpr std::size_t kAccent = OwnMaterial;

enum Family : int
{
    Translation,
    Rotation,
    Scaling
};

constexpr std::array<HandleModes, 3> kVisibleIn = { modes(Mode::Universal, Mode::Translate),
                                                    modes(Mode::Universal, Mode::Rotate),
                                                    modes(Mode::Universal, Mode::Scale) };

HandleRow arrow(const char* name, Active active, std::size_t color,
                const std::array<float, 3>& place, Turn turn)
{
    return solidArrow(name, number(active), Translation, color, place, turn);
}

HandleRow scaleAxis(const char* name, Active active, std::size_t color, HandleShape shaft,
                    HandleShape box)
{
    return handleRow(name, number(active), Scaling,
                     { handlePart(shaft, color), handlePart(box, color) });
}

/// A tab at an edge, a corner, the centre or the end of the Z extent.
HandleRow tab(const char* name, Active active, HandleShape shape, std::size_t color)
{
    return handleRow(name, number(active), Scaling, { handlePart(shape, color) });
}

HandleAction actionOf(Active handle)
{
    using Kind = DragParameters::Kind;
    constexpr unsigned kInPlane = 3;
    if (handle == Active::Rotate) {
        return { Kind::Angle, axisBit(2) };
    }
    if (handle < Active::ScaleX) {
        return { Kind::Offset,
                 handle == Active::TranslateXY
                     ? kInPlane
                     : axisBit(number(handle) - number(Active::TranslateX)) };
    }
    if (handle < Active::ScaleLowerLeft) {
        return { Kind::Factor,
                 handle == Active::ScaleUniform
                     ? kAllAxes
                     : axisBit(number(handle) - number(Active::ScaleX)) };
    }
    const PlanarSide side = planarSideOf(handle);
    HandleAction action { Kind::HalfSizes };
    for (std::size_t i = 0; i < side.size(); ++i) {
        action.axes |= side[i] != 0 ? axisBit(i) : 0;
    }
    return action;
}

/// Deliberate: the arrow and the scale axis of z point to -z, where the projection looks, unlike
/// those of x and y. A drag of the x arrow or the plane handle hides nothing.
HandleTable makeTable()
{
    HandleTable table;
    table.rows = {
        arrow("yaShape", Active::TranslateY, GreenMaterial, { 0.0F, 1.0F, 0.0F }, Turn::None),
        arrow("xaShape", Active::TranslateX, RedMaterial, { 1.0F, 0.0F, 0.0F }, Turn::OntoX),
        arrow("zaShape", Active::TranslateZ, BlueMaterial, { 0.0F, 0.0F, -1.0F }, Turn::OntoMinusZ),
        solidSquare("xyaShape", number(Active::TranslateXY), Translation, BlueMaterial),
        scaleAxis("zsShape", Active::ScaleZ, LightBlueMaterial, HandleShape::SolidScaleShaftMinusZ,
                  HandleShape::ScaleTabMinusZ),
        scaleAxis("ysShape", Active::ScaleY, LightGreenMaterial, HandleShape::SolidScaleShaftY,
                  HandleShape::ScaleTabY),
        scaleAxis("xsShape", Active::ScaleX, LightRedMaterial, HandleShape::SolidScaleShaftX,
                  HandleShape::ScaleTabX),
        tab("grid", Active::ScaleUniform, HandleShape::BigCube, YellowMaterial),
        handleRow("rotateShape", number(Active::Rotate), Rotation,
                  { handlePart(HandleShape::SolidRing, BlueMaterial),
                    handlePart(HandleShape::RingGrip, kAccent) }),
        tab("scaleXYLLShape", Active::ScaleLowerLeft, HandleShape::SquareTab, YellowMaterial),
        tab("scaleXYULShape", Active::ScaleUpperLeft, HandleShape::SquareTab, YellowMaterial),
        tab("scaleXYLRShape", Active::ScaleLowerRight, HandleShape::SquareTab, YellowMaterial),
        tab("scaleXYURShape", Active::ScaleUpperRight, HandleShape::SquareTab, YellowMaterial),
        tab("scaleXLShape", Active::ScaleLeft, HandleShape::UprightTab, LightRedMaterial),
        tab("scaleXRShape", Active::ScaleRight, HandleShape::UprightTab, LightRedMaterial),
        tab("scaleYLShape", Active::ScaleLower, HandleShape::LyingTab, LightGreenMaterial),
        tab("scaleYUShape", Active::ScaleUpper, HandleShape::LyingTab, LightGreenMaterial),
        tab("scaleZPlaneShape", Active::ScaleZPlane, HandleShape::SquareTab, LightBlueMaterial),
    };
    for (HandleRow& row : table.rows) {
        const auto active = static_cast<Active>(row.handle);
        const bool isFree = active == Active::TranslateX || active == Active::TranslateXY;
        row.leaves = isFree ? HandleLeaves::Everything : HandleLeaves::Family;
        row.action = actionOf(active);
        row.visibleIn = kVisibleIn[static_cast<std::size_t>(row.family)];
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
    constexpr float kTrace = kTraceOfTransparency;
    return makeTextureMaterials({ { 1.0F, 1.0F, 0.0F, kTrace, handleSortKey::kSolid },
                                  { 1.0F, 0.5F, 0.0F, 0.0F, handleSortKey::kSolid },
                                  { 0.953F, 0.525F, 0.184F, 0.0F, handleSortKey::kSolid } });
}

std::optional<osg::UInt32> planarAxisOf(PlanarActiveMode handle)
{
    for (const Active first : { Active::TranslateX, Active::ScaleX }) {
        const int axis = number(handle) - number(first);
        if (axis >= 0 && axis < 3) {
            return static_cast<osg::UInt32>(axis);
        }
    }
    return std::nullopt;
}

PlanarSide planarSideOf(PlanarActiveMode handle)
{
    // From ScaleLowerLeft on.
    constexpr std::array<PlanarSide, 9> kSides = { { { -1, -1, 0 },
                                                     { -1, 1, 0 },
                                                     { 1, -1, 0 },
                                                     { 1, 1, 0 },
                                                     { -1, 0, 0 },
                                                     { 1, 0, 0 },
                                                     { 0, -1, 0 },
                                                     { 0, 1, 0 },
                                                     { 0, 0, -1 } } };
    return handle < Active::ScaleLowerLeft
        ? PlanarSide()
        : kSides[static_cast<std::size_t>(number(handle) - number(Active::ScaleLowerLeft))];
}

}  // namespace nbec::manipulator::texture
