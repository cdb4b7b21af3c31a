// SPDX-License-Identifier: MIT
#include "manipulator/match/PerspectiveMatchVisualisation.h"

#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/handles/HandleNodes.h"
#include "manipulator/handles/HandleShapes.h"
#include "manipulator/nbManipulatorMaterials.h"

#include <nbMagnifier/nbMagnifierRenderer.h>
#include <nbOpenSGUberCamera/nbCameraUtils.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbGeoFactory.h>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::match {

namespace {

/// Reference size before a camera is known, device pixels.
constexpr float kStartReferencePx = 1080.0F;
constexpr osg::UInt16 kRingSegments = 32;
/// Farthest place of the magnifier: beyond every view, and what an int can hold.
constexpr float kFarthestPx = 1e6F;

/// Logical pixels; the highlight is wider, so that orange tells from red on any photograph.
constexpr float kHighlightWidthPx = 3.0F;
/// Lines of an axis that does not count.
constexpr float kUnusedWidthPx = 1.0F;
constexpr float kUnusedGrey = 0.6F;
constexpr float kUnusedGreyPart = 0.5F;

struct PenRow
{
    float red, green, blue;
    float widthPx;
    int sortKey;
};

/// Of the axes x, y and z, lighter than pure, so that blue stands out from dark photographs; then
/// the highlight.
constexpr PenRow kPens[] = { { 1.0F, 0.2F, 0.2F, kLineWidthPx, handleSortKey::kSolid },
                             { 0.1F, 0.75F, 0.15F, kLineWidthPx, handleSortKey::kSolid },
                             { 0.25F, 0.5F, 1.0F, kLineWidthPx, handleSortKey::kSolid },
                             { 1.0F, 0.6F, 0.0F, kHighlightWidthPx, handleSortKey::kHandlePass } };
constexpr std::size_t kHighlightPen = kMatchAxisCount;

void setSegments(const osg::NodePtr& node, const MatchSegments& segments)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
    const osg::GeoPositionsPtr positions = geometry->getPositions();
    const osg::GeoPLengthsPtr lengths = geometry->getLengths();
    const nbEdit edit(geometry,
                      osg::Geometry::PositionsFieldMask | osg::Geometry::LengthsFieldMask);
    const nbEdit positionsEdit(positions, osg::FieldBits::AllFields);
    const nbEdit lengthsEdit(lengths, osg::FieldBits::AllFields);
    const auto count = static_cast<osg::UInt32>(segments.size());
    lengths->setValue(count, 0);
    positions->resize(count);
    for (osg::UInt32 i = 0; i < count; ++i) {
        positions->setValue(segments[i], i);
    }
}

osg::Pnt3f inPlane(const osg::Pnt2f& point)
{
    return osg::Pnt3f(point.x(), point.y(), 0.0F);
}

}  // namespace

// == Building

PerspectiveMatchVisualisation::PerspectiveMatchVisualisation()
    : root(makeHandleRoot())
{
    for (std::size_t i = 0; i < kPenCount; ++i) {
        const PenRow& row = kPens[i];
        // It comes with a count, which the pen's own replaces.
        osg::ChunkMaterialPtr made = nbManipulatorMaterials::createProjectionMaterial(
            osg::Color4f(row.red, row.green, row.blue, 1.0F), row.sortKey);
        Pen& pen = pens[i];
        pen.material = made;
        osg::subRefCP(made);
        pen.shader = osg::SHLChunkPtr::dcast(pen.material->find(osg::SHLChunk::getClassType()));
        pen.line = makeLineChunk(row.widthPx);
        const nbEdit edit(pen.material.get(), osg::ChunkMaterial::ChunksFieldMask);
        pen.material->addChunk(pen.line);
        guideNodes[i] = addLines();
        setGeometryMaterial(guideNodes[i], pen.material.get());
    }
    const osg::RefPtr<osg::GeometryPtr> ring(
        nbGeoFactory::makeLineTorusGeo(1.0F, kRingSegments, false));
    for (LineNodes& nodes : lineNodes) {
        buildLine(nodes, ring.get());
    }
    applyPens();
    view.referencePx = kStartReferencePx;
    redraw();
    show(false);
}

PerspectiveMatchVisualisation::~PerspectiveMatchVisualisation()
{
    for (const Pen& pen : pens) {
        // A real OpenSG counts the parameters of a shader nowhere and would leave them behind.
        for (const osg::ShaderParameterPtr& parameter : *pen.shader->getMFParameters()) {
            if (parameter.getRefCount() == 0) {
                osg::subRefCP(parameter);
            }
        }
        pen.shader->getMFParameters()->clear();
    }
}

/// Appends an empty set of lines to the root.
osg::NodePtr PerspectiveMatchVisualisation::addLines() const
{
    const osg::NodePtr lines = osg::makeNodeFor(nbGeoFactory::makeGeo(GL_LINES, {}));
    addChild(root.get(), lines);
    return lines;
}

void PerspectiveMatchVisualisation::buildLine(LineNodes& nodes, const osg::GeometryPtr& ring) const
{
    nodes.parts[0] = addLines();
    for (std::size_t end = 0; end < nodes.places.size(); ++end) {
        nodes.parts[1 + end] = makeSharingNode(ring);
        const osg::NodePtr place = makePlacedNode(osg::Vec3f(), quaternionOf(Turn::OntoZ));
        nodes.places[end] = osg::ComponentTransformPtr::dcast(place->getCore());
        addChild(root.get(), addChild(place, nodes.parts[1 + end]));
    }
}

// == What is shown

void PerspectiveMatchVisualisation::setCamera(const osg::UberCameraPtr& camera,
                                              const osg::ViewportPtr& viewport, float pixelRatio)
{
    MatchView changed = view;
    changed.pixelRatio = pixelRatio;
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
    for (const Pen& pen : pens) {
        const nbEdit edit(pen.shader, osg::FieldBits::AllFields);
        pen.shader->setUniformParameter("viewProjectionMatrix", clipFromLine);
    }
    redraw();
}

void PerspectiveMatchVisualisation::setLines(const MatchLines& lines)
{
    if (lines == match) {
        return;
    }
    match = lines;
    for (std::size_t axis = 0; axis < kMatchAxisCount; ++axis) {
        styleAxis(axis);
    }
    redraw();
}

void PerspectiveMatchVisualisation::redraw()
{
    for (std::size_t i = 0; i < kMatchLineCount; ++i) {
        placeLine(i);
    }
    updateGuides();
}

void PerspectiveMatchVisualisation::placeLine(std::size_t index)
{
    const LineNodes& nodes = lineNodes[index];
    const osg::Line2D& line = match.lines[index];
    const bool visible = view.hasArea() && isMatchLineShown(line);
    for (const osg::NodePtr& part : nodes.parts) {
        showNode(part, visible);
    }
    if (!visible) {
        return;
    }
    setSegments(nodes.parts[0], { inPlane(line.getFirst()), inPlane(line.getSecond()) });
    const float radius = kEndRadiusPx * view.pixelRatio / view.referencePx;
    for (std::size_t end = 0; end < nodes.places.size(); ++end) {
        const osg::Pnt2f& point = end == 0 ? line.getFirst() : line.getSecond();
        const nbEdit edit(nodes.places[end],
                          osg::ComponentTransform::TranslationFieldMask |
                              osg::ComponentTransform::ScaleFieldMask);
        nodes.places[end]->setTranslation(inPlane(point).subZero());
        nodes.places[end]->setScale(osg::Vec3f(radius, 1.0F, radius));
    }
}

void PerspectiveMatchVisualisation::styleAxis(std::size_t axis)
{
    const bool isUsed = match.isAxisUsed[axis];
    const float own = isUsed ? 1.0F : 1.0F - kUnusedGreyPart;
    const float grey = isUsed ? 0.0F : kUnusedGreyPart * kUnusedGrey;
    const PenRow& row = kPens[axis];
    const Pen& pen = pens[axis];
    const nbEdit shaderEdit(pen.shader, osg::FieldBits::AllFields);
    pen.shader->setUniformParameter(
        "color",
        osg::Vec4f(own * row.red + grey, own * row.green + grey, own * row.blue + grey, 1.0F));
    const nbEdit lineEdit(pen.line, osg::LineChunk::WidthFieldMask);
    pen.line->setWidth(isUsed ? kLineWidthPx : kUnusedWidthPx);
}

void PerspectiveMatchVisualisation::applyPens()
{
    const MatchPart& bright = dragged.isSet() ? dragged : highlighted;
    for (std::size_t i = 0; i < kMatchLineCount; ++i) {
        const bool isLine = bright.isSet() && matchLineIndex(bright.line) == i;
        for (osg::UInt32 part = kLineBody; part <= kSecondEnd; ++part) {
            const bool isBright = isLine && (bright.part == kLineBody || bright.part == part);
            const Pen& pen = pens[isBright ? kHighlightPen : matchAxisOfLine(i)];
            setGeometryMaterial(lineNodes[i].parts[part - kLineBody], pen.material.get());
        }
    }
}

void PerspectiveMatchVisualisation::updateGuides()
{
    const MatchGuides guides =
        dragged.isSet() ? makeMatchGuides(match, view, upAxis) : MatchGuides();
    for (std::size_t i = 0; i < kPenCount; ++i) {
        showNode(guideNodes[i], !guides[i].empty());
        if (!guides[i].empty()) {
            setSegments(guideNodes[i], guides[i]);
        }
    }
}

// == Parts

MatchPart PerspectiveMatchVisualisation::pick(const osg::Pnt2f& pointerPx) const
{
    return root->getTravMask() != 0
        ? partUnderPointer(match, view, pointerPx + osg::Vec2f(0.5F, 0.5F))
        : MatchPart();
}

void PerspectiveMatchVisualisation::highlight(const MatchPart& part)
{
    highlighted = part;
    applyPens();
}

void PerspectiveMatchVisualisation::setDragged(const MatchPart& part)
{
    dragged = part;
    applyPens();
    updateGuides();
}

// == Magnifier

void PerspectiveMatchVisualisation::placeMagnifier(const MatchPart& part) const
{
    if (part.part != kFirstEnd && part.part != kSecondEnd) {
        return;
    }
    const osg::Line2D& line = match.lines[matchLineIndex(part.line)];
    const osg::Pnt2f& point = part.part == kFirstEnd ? line.getFirst() : line.getSecond();
    if (!std::isfinite(point.x()) || !std::isfinite(point.y())) {
        return;
    }
    const auto pixel = [this](float coordinate) {
        const float px = std::floor(coordinate * view.referencePx);
        return static_cast<int>(std::clamp(px, -kFarthestPx, kFarthestPx));
    };
    nbMagnifierRenderer::setCursorPosition(pixel(point.x()), view.heightPx - 1 - pixel(point.y()));
}

}  // namespace nbec::manipulator::match
