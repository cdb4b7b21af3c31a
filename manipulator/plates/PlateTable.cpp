// SPDX-License-Identifier: MIT
#include "manipulator/plates/PlateTable.h"

#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/plates/PlateModes.h"

namespace nbec::manipulator::plates {

namespace {

using Active = ActiveMode;
using Kind = DragParameters::Kind;

/// Drawn before the handles that it surrounds.
constexpr int kShadowSortKey = 64014;
/// Of a handle's dark edge, from the handle.
constexpr float kShadowLayer = -0.5F;
/// By how much the dark edge is wider than what it surrounds, on each side.
constexpr float kShadowWidth = 1.0F;
constexpr float kShadowLineWidth = 4.0F;

constexpr float kSphereRadius = 0.125F;  ///< of the shape

/// Order of the materials of a kind: solid ones, then those for lines.
enum Color : std::size_t
{
    Yellow,
    Blue,
    Orange,
    Purple,
    Shadow,  ///< around the others, so that they are seen on every plate
    ColorCount
};

/// Place of the material of what is hit, but not seen; after all others.
constexpr std::size_t kClear = 2 * ColorCount;

constexpr float kColors[ColorCount][3] = { { 1.0F, 1.0F, 0.0F },
                                           { 0.0F, 0.0F, 1.0F },
                                           { 1.0F, 0.5F, 0.0F },
                                           { 0.6F, 0.35F, 0.65F },
                                           { 0.1F, 0.1F, 0.1F } };

constexpr std::size_t line(Color color)
{
    return ColorCount + color;
}

HandlePart placed(HandleShape shape, const HandleColors& colors, const std::array<float, 3>& scale,
                  float y = 0.0F, float layer = 0.0F)
{
    HandlePart part { shape, colors, HandleHolder::Component, { 0.0F, y, layer } };
    part.scale = scale;
    return part;
}

/// The dark edge around a part, which never changes.
HandlePart shadow(HandleShape shape, std::size_t color, const std::array<float, 3>& scale,
                  float y = 0.0F)
{
    return placed(shape, { color, color, color }, scale, y, kShadowLayer);
}

HandleRow handleRow(const char* name, Active handle, const HandleAction& action,
                    const std::vector<HandlePart>& parts)
{
    HandleRow row { name, static_cast<int>(handle), -1, parts, kAllModes, HandleHolder::Matrix };
    row.action = action;
    return row;
}

HandleRow box(const char* name, Active handle, unsigned axes = kAllAxes)
{
    constexpr float kScale = 1.0F + 2.0F * kShadowWidth / kPlateBoxSize;
    return handleRow(name, handle, { Kind::Factor, axes },
                     { { HandleShape::Square, { Yellow, Orange, Yellow } },
                       shadow(HandleShape::Square, Shadow, { kScale, kScale, 1.0F }) });
}

HandleRow sideBox(const char* name, Active handle, std::size_t axis)
{
    HandleRow row = box(name, handle, axisBit(axis));
    row.visibleIn = modes(CornersAndSides);
    return row;
}

/// Scale of the sphere that makes a knob. It is flat, one layer thick to each side.
constexpr std::array<float, 3> knobScale(float radius)
{
    return { radius / kSphereRadius, radius / kSphereRadius, 1.0F / kSphereRadius };
}

/// The knob is where the arm is placed; the shaft goes down to the frame.
HandleRow arm()
{
    constexpr float kLength = kPlateArmLength - kPlateKnobRadius;
    constexpr float kShaftCentre = -kPlateKnobRadius - kLength / 2;
    constexpr std::array<float, 3> kShaftScale = { 1.0F, kLength / kShaftLength, 1.0F };
    return handleRow(
        "rotateShape", Active::Rotate, { Kind::Angle, axisBit(2) },
        { placed(HandleShape::CentreSphere, { Blue, Orange, Blue }, knobScale(kPlateKnobRadius)),
          placed(HandleShape::ArrowShaft, { line(Blue), line(Orange), line(Blue) }, kShaftScale,
                 kShaftCentre),
          shadow(HandleShape::CentreSphere, Shadow, knobScale(kPlateKnobRadius + kShadowWidth)),
          shadow(HandleShape::ArrowShaft, line(Shadow), kShaftScale, kShaftCentre) });
}

HandleRow body()
{
    HandleRow row =
        handleRow("grid", Active::Move, { Kind::Pixels, axisBit(0) | axisBit(1) },
                  { { HandleShape::SquareOutline, { line(Yellow), line(Orange), line(Yellow) } },
                    shadow(HandleShape::SquareOutline, line(Shadow), { 1.0F, 1.0F, 1.0F }),
                    { HandleShape::Square, { kClear, kClear, kClear } } });
    row.staysInDrags = true;
    return row;
}

/// Shown by placeGuides() alone.
HandleRow guide()
{
    constexpr std::size_t kColor = line(Purple);
    HandleRow row = handleRow(nullptr, Active::None, {},
                              { { HandleShape::ArrowShaft, { kColor, kColor, kColor } } });
    row.visibleIn = 0;
    return row;
}

}  // namespace

HandleTable makeTable()
{
    HandleTable table;
    table.rows = { box("scaleXYLLShape", Active::ScaleLowerLeft),
                   box("scaleXYULShape", Active::ScaleUpperLeft),
                   box("scaleXYLRShape", Active::ScaleLowerRight),
                   box("scaleXYURShape", Active::ScaleUpperRight),
                   sideBox("scaleXLShape", Active::SizeLeft, 0),
                   sideBox("scaleYUShape", Active::SizeUpper, 1),
                   sideBox("scaleYLShape", Active::SizeLower, 1),
                   sideBox("scaleXRShape", Active::SizeRight, 0),
                   arm(),
                   body(),
                   guide(),
                   guide() };
    table.root = HandleHolder::Matrix;
    return table;
}

HandleSet::Materials makeMaterials()
{
    const LineChunks chunks = makeLineChunks();
    LineChunks shadowChunks = makeLineChunks();
    shadowChunks.line = makeLineChunk(kShadowLineWidth);
    HandleSet::Materials materials;
    for (const bool isLine : { false, true }) {
        for (std::size_t i = 0; i < ColorCount; ++i) {
            const LineChunks& pen = i == Shadow ? shadowChunks : chunks;
            const int sortKey = i == Shadow ? kShadowSortKey
                : isLine                    ? handleSortKey::kLine
                                            : handleSortKey::kSolid;
            materials.push_back(
                makeHandleMaterial(osg::Color3f(kColors[i][0], kColors[i][1], kColors[i][2]),
                                   sortKey, isLine ? &pen : nullptr));
        }
    }
    materials.push_back(makeHandleMaterial(osg::Color3f(), kShadowSortKey, nullptr, 1.0F));
    return materials;
}

}  // namespace nbec::manipulator::plates
