// SPDX-License-Identifier: MIT
#include "manipulator/texture/PlanarHandles.h"

#include "manipulator/texture/TextureHandles.h"

namespace nbec::manipulator::texture {

namespace {

using Active = PlanarActiveMode;
using Kind = DragParameters::Kind;
using Mode = PlanarManipulatorMode;

constexpr std::size_t kAccent = OwnMaterial;

constexpr std::array<HandleModes, 3> kVisibleIn = { modes(Mode::Universal, Mode::Translate),
                                                    modes(Mode::Universal, Mode::Rotate),
                                                    modes(Mode::Universal, Mode::Scale) };

HandleRow scaleAxis(const char* name, Active active, std::size_t axis, HandleShape shaft,
                    HandleShape box)
{
    const std::size_t color = LightRedMaterial + axis;
    return handleRow(name, number(active), Scaling, { Kind::Factor, axisBit(axis) },
                     { handlePart(shaft, color), handlePart(box, color) });
}

/// A tab at an edge, a corner or the end of the Z extent. @param side  see planarSideOf()
HandleRow tab(const char* name, Active active, HandleShape shape, std::size_t color,
              const std::array<float, 3>& side)
{
    HandleAction action { Kind::HalfSizes };
    for (std::size_t i = 0; i < side.size(); ++i) {
        action.axes |= side[i] != 0.0F ? axisBit(i) : 0;
    }
    HandleRow row = handleRow(name, number(active), Scaling, action, { handlePart(shape, color) });
    row.place = side;
    return row;
}

}  // namespace

/// Deliberate: the arrow and the scale axis of z point to -z, where the projection looks, unlike
/// those of x and y. A drag of the x arrow or the plane handle hides nothing.
HandleTable makePlanarTable()
{
    HandleTable table;
    table.rows = {
        solidArrow("yaShape", number(Active::TranslateY), Translation, GreenMaterial,
                   { 0.0F, 1.0F, 0.0F }, Turn::None),
        solidArrow("xaShape", number(Active::TranslateX), Translation, RedMaterial,
                   { 1.0F, 0.0F, 0.0F }, Turn::OntoX),
        solidArrow("zaShape", number(Active::TranslateZ), Translation, BlueMaterial,
                   { 0.0F, 0.0F, -1.0F }, Turn::OntoMinusZ),
        solidSquare("xyaShape", number(Active::TranslateXY), Translation, BlueMaterial),
        scaleAxis("zsShape", Active::ScaleZ, 2, HandleShape::SolidScaleShaftMinusZ,
                  HandleShape::ScaleTabMinusZ),
        scaleAxis("ysShape", Active::ScaleY, 1, HandleShape::SolidScaleShaftY,
                  HandleShape::ScaleTabY),
        scaleAxis("xsShape", Active::ScaleX, 0, HandleShape::SolidScaleShaftX,
                  HandleShape::ScaleTabX),
        handleRow("grid", number(Active::ScaleUniform), Scaling, { Kind::Factor, kAllAxes },
                  { handlePart(HandleShape::BigCube, YellowMaterial) }),
        handleRow("rotateShape", number(Active::Rotate), Rotation, { Kind::Angle, axisBit(2) },
                  { handlePart(HandleShape::SolidRing, BlueMaterial),
                    handlePart(HandleShape::RingGrip, kAccent) }),
        tab("scaleXYLLShape", Active::ScaleLowerLeft, HandleShape::SquareTab, YellowMaterial,
            { -1.0F, -1.0F, 0.0F }),
        tab("scaleXYULShape", Active::ScaleUpperLeft, HandleShape::SquareTab, YellowMaterial,
            { -1.0F, 1.0F, 0.0F }),
        tab("scaleXYLRShape", Active::ScaleLowerRight, HandleShape::SquareTab, YellowMaterial,
            { 1.0F, -1.0F, 0.0F }),
        tab("scaleXYURShape", Active::ScaleUpperRight, HandleShape::SquareTab, YellowMaterial,
            { 1.0F, 1.0F, 0.0F }),
        tab("scaleXLShape", Active::ScaleLeft, HandleShape::UprightTab, LightRedMaterial,
            { -1.0F, 0.0F, 0.0F }),
        tab("scaleXRShape", Active::ScaleRight, HandleShape::UprightTab, LightRedMaterial,
            { 1.0F, 0.0F, 0.0F }),
        tab("scaleYLShape", Active::ScaleLower, HandleShape::LyingTab, LightGreenMaterial,
            { 0.0F, -1.0F, 0.0F }),
        tab("scaleYUShape", Active::ScaleUpper, HandleShape::LyingTab, LightGreenMaterial,
            { 0.0F, 1.0F, 0.0F }),
        tab("scaleZPlaneShape", Active::ScaleZPlane, HandleShape::SquareTab, LightBlueMaterial,
            { 0.0F, 0.0F, -1.0F }),
    };
    for (HandleRow& row : table.rows) {
        const auto active = static_cast<Active>(row.handle);
        const bool isFree = active == Active::TranslateX || active == Active::TranslateXY;
        row.leaves = isFree ? HandleLeaves::Everything : HandleLeaves::Family;
        row.visibleIn = kVisibleIn[static_cast<std::size_t>(row.family)];
    }
    return table;
}

HandleSet::Materials makePlanarMaterials()
{
    constexpr float kTrace = kTraceOfTransparency;
    return makeTextureMaterials({ { 1.0F, 1.0F, 0.0F, kTrace, handleSortKey::kSolid },
                                  { 1.0F, 0.5F, 0.0F, 0.0F, handleSortKey::kSolid },
                                  { 0.953F, 0.525F, 0.184F, 0.0F, handleSortKey::kSolid } });
}

osg::Vec3f planarSideOf(const HandleRow& row)
{
    return row.action.kind == Kind::HalfSizes ? osg::Vec3f(row.place[0], row.place[1], row.place[2])
                                              : osg::Vec3f();
}

}  // namespace nbec::manipulator::texture
