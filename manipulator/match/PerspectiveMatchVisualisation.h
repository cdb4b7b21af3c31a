// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/handles/HandleNodes.h"
#include "manipulator/match/PerspectiveMatchLayout.h"

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
/// with a ring around each end. The materials' own matrix brings line coordinates (see
/// PerspectiveMatchLayout.h) to the picture, so that the scene's camera plays no role. Sizes are
/// logical pixels.
///
/// Lines of an axis that does not count are thin and grey-tinted, but can still be moved: they keep
/// their places for when that changes. What is under the pointer, or grabbed, is orange and wider;
/// with a line its two rings are. While a part is dragged the guides are dashed, the horizon in
/// orange.
///
/// Pickers do not find these nodes, whose places in the world mean nothing: the geometries bear no
/// names. pick() finds parts by their distance from the pointer on screen.
class PerspectiveMatchVisualisation
{
public:
    /// Builds the overlay, hidden, without lines.
    PerspectiveMatchVisualisation();
    ~PerspectiveMatchVisualisation();
    PerspectiveMatchVisualisation(const PerspectiveMatchVisualisation&) = delete;
    PerspectiveMatchVisualisation& operator=(const PerspectiveMatchVisualisation&) = delete;

    osg::NodePtr getRoot() const { return root.get(); }

    void show(bool visible) { showNode(root.get(), visible); }

    /// Takes the size of a viewport and its reference size for a camera: the height if the camera
    /// is sized vertically, else the width; a view without area keeps the one that it had.
    /// @param camera    null: the reference size is 1080 @param viewport  null: the size stays
    /// @param pixelRatio  device pixels per logical pixel, > 0
    void setCamera(const osg::UberCameraPtr& camera, const osg::ViewportPtr& viewport,
                   float pixelRatio);

    /// Draws the lines that have changed anew. Empty ones are hidden.
    void setLines(const MatchLines& lines);

    /// The part under the pointer; not set if none is or the overlay is hidden.
    /// @param pointerPx  pixel of the pointer, device pixels, origin lower left, y up
    MatchPart pick(const osg::Pnt2f& pointerPx) const;

    /// @param part  one that is not set takes the highlight away
    void highlight(const MatchPart& part);

    /// Shows a part as grabbed, and the guides. @param part  one that is not set ends that
    void setDragged(const MatchPart& part);

    /// Places the magnifier over an end. @param part  others are ignored
    void placeMagnifier(const MatchPart& part) const;

    /// A distance in device pixels, y up, as line coordinates. Unchanged without a reference size.
    osg::Vec2f toLineUnits(const osg::Vec2f& distancePx) const
    {
        return view.referencePx > 0.0F
            ? osg::Vec2f(distancePx.x() / view.referencePx, distancePx.y() / view.referencePx)
            : distancePx;
    }

private:
    struct Pen
    {
        osg::RefPtr<osg::ChunkMaterialPtr> material;
        osg::SHLChunkPtr shader;  ///< counted by the material, as the next
        osg::LineChunkPtr line;
    };

    struct LineNodes
    {
        std::array<osg::NodePtr, 3> parts;  ///< body, rings around the first and the second end
        std::array<osg::ComponentTransformPtr, 2> places;  ///< of the rings
    };

    static constexpr std::size_t kPenCount = kMatchAxisCount + 1;

    osg::NodePtr addLines() const;
    void buildLine(LineNodes& nodes, const osg::GeometryPtr& ring) const;
    void setView(const MatchView& newView);
    void redraw();
    void placeLine(std::size_t index);
    void styleAxis(std::size_t axis);
    void applyPens();
    void updateGuides();

    osg::RefPtr<osg::NodePtr> root;
    // Of the axes, then the highlight's and the horizon drawn with it.
    std::array<Pen, kPenCount> pens;
    std::array<osg::NodePtr, kPenCount> guideNodes;
    std::array<LineNodes, kMatchLineCount> lineNodes;
    MatchView view;
    MatchLines match;
    std::size_t upAxis = 1;
    MatchPart highlighted;
    MatchPart dragged;
};

}  // namespace nbec::manipulator::match
