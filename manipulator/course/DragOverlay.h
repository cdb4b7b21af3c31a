// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/DragParameters.h"
#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGVector.h>

#include <vector>

namespace nbec::manipulator {

/// Switches the overlay of all gizmos on or off, for drags that begin afterwards; off at the start.
NB_MANIPULATOR_API void setDragOverlayShown(bool on);
NB_MANIPULATOR_API bool isDragOverlayShown();

/// Where a drag began, for its overlay; world space.
struct OverlayStart
{
    HandleAction action;
    osg::Pnt3f centre;  ///< of the gizmo
    osg::Pnt3f grabbed;
    osg::Vec3f axis;  ///< of a turn, of a free one that to the right; unit length
    osg::Vec3f sight;  ///< unit length
    float unit = 1.0F;  ///< length of the handles' unit
    double tickDeg = 0.0;  ///< step of snapping of a turn; 0: none
    std::vector<osg::NodePtr> parts;  ///< geometries of the handle
};

/// What a drag has come to, drawn in the scene: of a turn the swept sector with its start and
/// present leg and ticks, whole turns left out, and for each of these a dash beyond the start leg;
/// of a free turn its axis; of a motion the line from where the gizmo stood, with a mark there and
/// a ghost of the handle; of a scale handle its length and its length at the start. It follows the
/// parameters, so what is snapped or typed. Nothing is allocated in a step.
class DragOverlay
{
public:
    DragOverlay() = default;

    /// A copy has an overlay of its own.
    DragOverlay(const DragOverlay& /*other*/)
        : DragOverlay()
    { }

    DragOverlay& operator=(const DragOverlay&) = delete;

    /// Nothing is drawn before the first show(). @param parent  of its nodes, which are made with
    /// the first drag; not null
    void begin(const osg::NodePtr& parent, const OverlayStart& from);
    /// @param centre  where the gizmo stands now, world
    void show(const DragParameters& parameters, const osg::Pnt3f& centre);
    void end();

private:
    void build(const osg::NodePtr& parent);
    void buildGhost();
    void drawFreeTurn(const DragParameters& parameters);
    void drawTurn(double angleDeg);
    void drawLength(double factor);
    void drawWay(const osg::Pnt3f& centre);
    osg::Pnt3f onRing(double angleDeg, float radius) const;
    void addLine(const osg::Pnt3f& from, const osg::Pnt3f& to);

    OverlayStart start;
    bool isOn = false;
    osg::Vec3f towards;  ///< from the centre of a turn to where it was grabbed, unit length
    float radius = 0.0F;  ///< from there to there, world units
    osg::RefPtr<osg::NodePtr> node;
    osg::GeometryPtr lines;  ///< below the node
    osg::GeometryPtr sector;
    osg::NodePtr ghost;
    osg::UInt32 lineEnds = 0;  ///< that are drawn
};

}  // namespace nbec::manipulator
