// SPDX-License-Identifier: MIT
#include "manipulator/match/PerspectiveMatchVisualisation.h"

#include "manipulator/handles/HandleGroup.h"
#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/handles/HandleNodes.h"
#include "manipulator/nbManipulatorMaterials.h"

#include <nbMagnifier/nbMagnifierRenderer.h>
#include <nbOpenSGUberCamera/nbCameraUtils.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::match {

namespace {

/// Reference size before a camera is known, device pixels.
constexpr float kStartReferencePx = 1080.0F;
constexpr std::size_t kRingSegments = 32;
/// Farthest place of the magnifier: beyond every view, and what an int can hold.
constexpr float kFarthestPx = 1e6F;

/// Logical pixels; the highlight is wider, so that orange tells from red on any photograph.
constexpr float kHighlightWidthPx = 3.0F;
/// Lines of an axis that does not count.
constexpr float kUnusedWidthPx = 1.0F;
constexpr float kUnusedGrey = 0.6F;
constexpr float kUnusedGreyPart = 0.5F;

struct ColorRow
{
    float red, green, blue;
};

/// Of the axes x, y and z. Lighter than pure, so that blue stands out from dark photographs.
constexpr std::array<ColorRow, kMatchAxisCount> kAxisColors {
    { { 1.0F, 0.2F, 0.2F }, { 0.1F, 0.75F, 0.15F }, { 0.25F, 0.5F, 1.0F } }
};
constexpr ColorRow kHighlightColor { 1.0F, 0.6F, 0.0F };

osg::Color4f opaque(const ColorRow& row)
{
    return osg::Color4f(row.red, row.green, row.blue, 1.0F);
}

ColorRow faint(const ColorRow& row)
{
    const float own = 1.0F - kUnusedGreyPart;
    const float grey = kUnusedGreyPart * kUnusedGrey;
    return { own * row.red + grey, own * row.green + grey, own * row.blue + grey };
}

/// A circle of radius 1 around the origin in the xy plane, as pairs of ends.
MatchGuides::Segments unitCircle()
{
    constexpr double kFullTurn = 6.28318530717958647692;
    const auto corner = [](std::size_t i) {
        const double angle = kFullTurn * static_cast<double>(i % kRingSegments) / kRingSegments;
        return osg::Pnt3f(static_cast<float>(std::cos(angle)), static_cast<float>(std::sin(angle)),
                          0.0F);
    };
    MatchGuides::Segments segments;
    for (std::size_t i = 0; i < kRingSegments; ++i) {
        segments.push_back(corner(i));
        segments.push_back(corner(i + 1));
    }
    return segments;
}

void setSegments(const osg::GeometryPtr& geometry, const MatchGuides::Segments& segments)
{
    const osg::GeoPositionsPtr positions = geometry->getPositions();
    const osg::GeoPLengthsPtr lengths = geometry->getLengths();
    const nbEdit edit(geometry,
                      osg::Geometry::PositionsFieldMask | osg::Geometry::LengthsFieldMask);
    const nbEdit positionsEdit(positions, osg::FieldBits::AllFields);
    const auto count = static_cast<osg::UInt32>(segments.size());
    if (lengths->getValue(0) != count) {
        const nbEdit lengthsEdit(lengths, osg::FieldBits::AllFields);
        lengths->setValue(count, 0);
        positions->resize(count);
    }
    for (osg::UInt32 i = 0; i < count; ++i) {
        positions->setValue(segments[i], i);
    }
}

osg::GeometryPtr geometryOf(const osg::NodePtr& node)
{
    return osg::GeometryPtr::dcast(node->getCore());
}

osg::Pnt3f inPlane(const osg::Pnt2f& point)
{
    return osg::Pnt3f(point.x(), point.y(), 0.0F);
}

}  // namespace

// == Building

PerspectiveMatchVisualisation::PerspectiveMatchVisualisation()
    : root(makeHandleRoot())
    , highlightPen(makePen(opaque(kHighlightColor), kHighlightWidthPx, handleSortKey::kHandlePass))
{
    for (std::size_t axis = 0; axis < kMatchAxisCount; ++axis) {
        axisPens[axis] = makePen(opaque(kAxisColors[axis]), kLineWidthPx, handleSortKey::kSolid);
        guideNodes[axis] = makeNode(makeLineGeometry({}));
        setGeometryMaterial(guideNodes[axis], axisPens[axis].material.get());
        addChild(root.get(), guideNodes[axis]);
    }
    horizonNode = makeNode(makeLineGeometry({}));
    setGeometryMaterial(horizonNode, highlightPen.material.get());
    addChild(root.get(), horizonNode);
    const osg::RefPtr<osg::GeometryPtr> ring(makeLineGeometry(unitCircle()));
    for (LineNodes& nodes : lineNodes) {
        buildLine(nodes, ring.get());
    }
    applyPens();
    view.referencePx = kStartReferencePx;
    for (std::size_t i = 0; i < kMatchLineCount; ++i) {
        placeLine(i);
    }
    updateGuides();
    showNode(root.get(), false);
}

PerspectiveMatchVisualisation::Pen
PerspectiveMatchVisualisation::makePen(const osg::Color4f& color, float widthPx, int sortKey)
{
    Pen pen;
    // It comes with a count, which the pen's own replaces.
    osg::ChunkMaterialPtr made = nbManipulatorMaterials::createProjectionMaterial(color, sortKey);
    pen.material = made;
    osg::subRefCP(made);
    pen.shader = osg::SHLChunkPtr::dcast(pen.material->find(osg::SHLChunk::getClassType()));
    pen.line = makeLineChunk(widthPx);
    const nbEdit edit(pen.material.get(), osg::ChunkMaterial::ChunksFieldMask);
    pen.material->addChunk(pen.line);
    return pen;
}

void PerspectiveMatchVisualisation::buildLine(LineNodes& nodes, const osg::GeometryPtr& ring) const
{
    nodes.body = makeNode(makeLineGeometry({}));
    addChild(root.get(), nodes.body);
    for (std::size_t end = 0; end < nodes.rings.size(); ++end) {
        nodes.rings[end] = makeSharingNode(ring);
        const osg::NodePtr place = makePlacedNode(osg::Vec3f(), osg::Quaternion());
        nodes.places[end] = osg::ComponentTransformPtr::dcast(place->getCore());
        addChild(place, nodes.rings[end]);
        addChild(root.get(), place);
    }
}

// == What is shown

void PerspectiveMatchVisualisation::show(bool visible)
{
    shown = visible;
    showNode(root.get(), visible);
}

void PerspectiveMatchVisualisation::setPixelRatio(float ratio)
{
    MatchView changed = view;
    changed.pixelRatio = ratio;
    setView(changed);
}

void PerspectiveMatchVisualisation::setCamera(const osg::UberCameraPtr& camera,
                                              const osg::ViewportPtr& viewport)
{
    MatchView changed = view;
    if (viewport != osg::NullFC) {
        changed.widthPx = viewport->getPixelWidth();
        changed.heightPx = viewport->getPixelHeight();
    }
    if (camera == osg::NullFC) {
        changed.referencePx = kStartReferencePx;
    } else {
        upAxis = camera->isZUp() ? 2 : 1;
        const bool isVertical =
            nbCameraUtils::getVerticalSizing(camera, changed.widthPx, changed.heightPx);
        const int referencePx = isVertical ? changed.heightPx : changed.widthPx;
        if (referencePx > 0) {
            changed.referencePx = static_cast<float>(referencePx);
        }
    }
    setView(changed);
}

void PerspectiveMatchVisualisation::setView(const MatchView& newView)
{
    if (newView == view) {
        return;
    }
    view = newView;
    const osg::Matrix clipFromLine = clipFromLineUnits(view);
    for (const Pen* pen : { &axisPens[0], &axisPens[1], &axisPens[2], &highlightPen }) {
        const nbEdit edit(pen->shader, osg::FieldBits::AllFields);
        pen->shader->setUniformParameter("viewProjectionMatrix", clipFromLine);
    }
    for (std::size_t i = 0; i < kMatchLineCount; ++i) {
        placeLine(i);
    }
    updateGuides();
}

void PerspectiveMatchVisualisation::updateLine(PerspectiveMatchLine line, const osg::Line2D& value,
                                               nbCameraTypes::VanishingLinesType type)
{
    const std::size_t index = matchLineIndex(line);
    const std::size_t axis = matchAxisOfLine(index);
    const bool isUsed = nbCameraTypes::usesAxis(type, static_cast<int>(axis));
    const bool changesUse = match.isAxisUsed[axis] != isUsed;
    const bool changesPlace = match.lines[index] != value;
    if (changesUse) {
        match.isAxisUsed[axis] = isUsed;
        styleAxis(axis);
    }
    if (changesPlace) {
        match.lines[index] = value;
        placeLine(index);
    }
    if (changesUse || changesPlace) {
        updateGuides();
    }
}

void PerspectiveMatchVisualisation::placeLine(std::size_t index)
{
    const LineNodes& nodes = lineNodes[index];
    const osg::Line2D& line = match.lines[index];
    const bool visible = view.hasArea() && isMatchLineShown(line);
    showNode(nodes.body, visible);
    for (const osg::NodePtr& ring : nodes.rings) {
        showNode(ring, visible);
    }
    if (!visible) {
        return;
    }
    setSegments(geometryOf(nodes.body), { inPlane(line.getFirst()), inPlane(line.getSecond()) });
    const float radius = kEndRadiusPx * view.pixelRatio / view.referencePx;
    for (std::size_t end = 0; end < nodes.places.size(); ++end) {
        const osg::Pnt2f& point = end == 0 ? line.getFirst() : line.getSecond();
        const nbEdit edit(nodes.places[end],
                          osg::ComponentTransform::TranslationFieldMask |
                              osg::ComponentTransform::ScaleFieldMask);
        nodes.places[end]->setTranslation(inPlane(point).subZero());
        nodes.places[end]->setScale(osg::Vec3f(radius, radius, 1.0F));
    }
}

void PerspectiveMatchVisualisation::styleAxis(std::size_t axis)
{
    const Pen& pen = axisPens[axis];
    const bool isUsed = match.isAxisUsed[axis];
    const ColorRow color = isUsed ? kAxisColors[axis] : faint(kAxisColors[axis]);
    const nbEdit shaderEdit(pen.shader, osg::FieldBits::AllFields);
    pen.shader->setUniformParameter("color", osg::Vec4f(color.red, color.green, color.blue, 1.0F));
    const nbEdit lineEdit(pen.line, osg::LineChunk::WidthFieldMask);
    pen.line->setWidth(isUsed ? kLineWidthPx : kUnusedWidthPx);
}

void PerspectiveMatchVisualisation::applyPens()
{
    const MatchPart& bright = dragged.isSet() ? dragged : highlighted;
    for (std::size_t i = 0; i < kMatchLineCount; ++i) {
        const bool isLine = bright.isSet() && matchLineIndex(bright.line) == i;
        const bool isBody = isLine && bright.part == kLineBody;
        const auto& axisPen = axisPens[matchAxisOfLine(i)].material;
        const auto pick = [&](bool isBright) {
            return osg::MaterialPtr(isBright ? highlightPen.material.get() : axisPen.get());
        };
        setGeometryMaterial(lineNodes[i].body, pick(isBody));
        setGeometryMaterial(lineNodes[i].rings[0],
                            pick(isBody || (isLine && bright.part == kFirstEnd)));
        setGeometryMaterial(lineNodes[i].rings[1],
                            pick(isBody || (isLine && bright.part == kSecondEnd)));
    }
}

void PerspectiveMatchVisualisation::updateGuides()
{
    const MatchGuides guides =
        dragged.isSet() ? makeMatchGuides(match, view, upAxis) : MatchGuides();
    const auto apply = [](const osg::NodePtr& node, const MatchGuides::Segments& segments) {
        showNode(node, !segments.empty());
        if (!segments.empty()) {
            setSegments(geometryOf(node), segments);
        }
    };
    for (std::size_t axis = 0; axis < kMatchAxisCount; ++axis) {
        apply(guideNodes[axis], guides.axes[axis]);
    }
    apply(horizonNode, guides.horizon);
}

// == Parts

osg::NodePtr PerspectiveMatchVisualisation::pick(const osg::Pnt2f& pointerPx) const
{
    constexpr float kPixelCentre = 0.5F;
    const osg::Vec2f toCentre(kPixelCentre, kPixelCentre);
    const MatchPart part =
        shown ? partUnderPointer(match, view, pointerPx + toCentre) : MatchPart();
    if (!part.isSet()) {
        return osg::NodePtr();
    }
    const LineNodes& nodes = lineNodes[matchLineIndex(part.line)];
    return part.part == kLineBody ? nodes.body : nodes.rings[part.part == kFirstEnd ? 0 : 1];
}

bool PerspectiveMatchVisualisation::partOf(const osg::NodePtr& node, MatchPart& part) const
{
    if (node == osg::NullFC) {
        return false;
    }
    for (std::size_t i = 0; i < kMatchLineCount; ++i) {
        const LineNodes& nodes = lineNodes[i];
        const osg::UInt32 found = node == nodes.body ? kLineBody
            : node == nodes.rings[0]                 ? kFirstEnd
            : node == nodes.rings[1]                 ? kSecondEnd
                                                     : kNoPart;
        if (found != kNoPart) {
            part = MatchPart { static_cast<PerspectiveMatchLine>(i + 1), found };
            return true;
        }
    }
    return false;
}

void PerspectiveMatchVisualisation::highlight(const MatchPart& part)
{
    highlighted = part;
    applyPens();
}

void PerspectiveMatchVisualisation::beginDrag(const MatchPart& part)
{
    dragged = part;
    applyPens();
    updateGuides();
}

void PerspectiveMatchVisualisation::endDrag()
{
    beginDrag(MatchPart());
}

// == Magnifier and units

void PerspectiveMatchVisualisation::showMagnifier(bool visible)
{
    nbMagnifierRenderer::setVisible(visible);
}

bool PerspectiveMatchVisualisation::isMagnifierShown() const
{
    return nbMagnifierRenderer::isVisible();
}

void PerspectiveMatchVisualisation::placeMagnifier(const osg::Pnt2f& point) const
{
    if (!std::isfinite(point.x()) || !std::isfinite(point.y())) {
        return;
    }
    const auto pixel = [this](float coordinate) {
        const float px = std::floor(coordinate * view.referencePx);
        return static_cast<int>(std::clamp(px, -kFarthestPx, kFarthestPx));
    };
    nbMagnifierRenderer::setCursorPosition(pixel(point.x()), view.heightPx - 1 - pixel(point.y()));
}

void PerspectiveMatchVisualisation::setMagnifierScale(float factor) const
{
    nbMagnifierRenderer::setMagnificationScale(factor);
}

osg::Vec2f PerspectiveMatchVisualisation::toLineUnits(const osg::Vec2f& distancePx) const
{
    return view.referencePx > 0.0F
        ? osg::Vec2f(distancePx.x() / view.referencePx, distancePx.y() / view.referencePx)
        : distancePx;
}

}  // namespace nbec::manipulator::match
