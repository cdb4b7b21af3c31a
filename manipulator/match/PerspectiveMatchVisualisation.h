// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/match/PerspectiveMatchLayout.h"

#include <nbKernelServices/nbCameraTypes.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSHLChunk.h>
#include <OpenSG/OSGViewport.h>

#include <array>

namespace nbec::manipulator::match {

/// The perspective match drawn over the scene: six lines, red along x, green along y, blue along z,
/// with a ring around each end.
///
/// Positions are line coordinates (see PerspectiveMatchLayout.h) in the view of the main render
/// widget; the materials' own matrix brings them to the picture, so that the scene's camera plays
/// no role. Sizes are logical pixels. Lines of an axis that the vanishing-lines type does not use
/// are thin and grey-tinted, but can still be moved: they keep their places for when the type
/// changes. What is under the pointer, or grabbed, is orange and wider; with a line its two rings
/// are.
///
/// While a part is dragged, dashes extend the lines of each used axis to the point where they
/// vanish, marked with a cross, and long orange dashes show the horizon through the vanishing
/// points of the two horizontal axes.
///
/// Pickers do not find these nodes, whose places in the world mean nothing: the geometries bear no
/// names. pick() answers them by their distance from the pointer on screen.
class PerspectiveMatchVisualisation
{
public:
    /// Builds the overlay, hidden, without lines.
    PerspectiveMatchVisualisation();
    PerspectiveMatchVisualisation(const PerspectiveMatchVisualisation&) = delete;
    PerspectiveMatchVisualisation& operator=(const PerspectiveMatchVisualisation&) = delete;
    ~PerspectiveMatchVisualisation() = default;

    osg::NodePtr getRoot() const { return root.get(); }

    void show(bool visible);

    /// @param ratio  device pixels per logical pixel, > 0
    void setPixelRatio(float ratio);

    /// Takes the size of the view's viewport and its reference size for a camera: the height
    /// if the camera is sized vertically, else the width. A view without area, such as that of a
    /// window that was minimised during a drag, keeps the reference size that it had.
    /// @param camera    null: the reference size is that of before the first camera, 1080
    /// @param viewport  null: the size stays
    void setCamera(const osg::UberCameraPtr& camera, const osg::ViewportPtr& viewport);

    /// Draws a line anew. @param line  one of the six @param value  line coordinates; empty: hidden
    void updateLine(PerspectiveMatchLine line, const osg::Line2D& value,
                    nbCameraTypes::VanishingLinesType type);

    /// The node of the part that lies under the pointer; null if none does or the overlay is
    /// hidden.
    /// @param pointerPx  pixel of the pointer, device pixels, origin lower left, y up
    osg::NodePtr pick(const osg::Pnt2f& pointerPx) const;

    /// Finds the part that a node shows. @return false, with the part untouched, for other nodes
    bool partOf(const osg::NodePtr& node, MatchPart& part) const;

    /// @param part  one that is not set takes the highlight away
    void highlight(const MatchPart& part);

    /// Shows a part as grabbed, and the guides.
    void beginDrag(const MatchPart& part);
    void endDrag();

    void showMagnifier(bool visible);
    bool isMagnifierShown() const;
    /// Places the magnifier over a point. @param point  line coordinates
    void placeMagnifier(const osg::Pnt2f& point) const;
    /// @param factor  pixels shown per pixel of the picture
    void setMagnifierScale(float factor) const;

    /// A distance in device pixels, y up, as line coordinates. Unchanged without a reference size.
    osg::Vec2f toLineUnits(const osg::Vec2f& distancePx) const;

private:
    struct Pen
    {
        osg::RefPtr<osg::ChunkMaterialPtr> material;
        osg::SHLChunkPtr shader;  ///< counted by the material, as the next
        osg::LineChunkPtr line;
    };

    struct LineNodes
    {
        osg::NodePtr body;
        std::array<osg::NodePtr, 2> rings;  ///< around the first and second end
        std::array<osg::ComponentTransformPtr, 2> places;
    };

    static Pen makePen(const osg::Color4f& color, float widthPx, int sortKey);
    void buildLine(LineNodes& nodes, const osg::GeometryPtr& ring) const;
    void setView(const MatchView& newView);
    void placeLine(std::size_t index);
    void styleAxis(std::size_t axis);
    void applyPens();
    void updateGuides();

    osg::RefPtr<osg::NodePtr> root;
    std::array<Pen, kMatchAxisCount> axisPens;
    Pen highlightPen;
    std::array<LineNodes, kMatchLineCount> lineNodes;
    std::array<osg::NodePtr, kMatchAxisCount> guideNodes;
    osg::NodePtr horizonNode;
    MatchView view;
    MatchLines match;
    std::size_t upAxis = 1;
    MatchPart highlighted;
    MatchPart dragged;
    bool shown = false;
};

}  // namespace nbec::manipulator::match
