// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

namespace viewer {

class Stage;

/// Clip planes in the viewer's scene. A plane is a node directly below the scene root that has
/// everything to be cut below it, and beside it a node named "Clip plane" with the plane's frame:
/// that is what a person selects, moves and turns. The outline of a square in the frame shows where
/// the plane is.

/// Cuts everything that is in the scene now, through the middle of its bounds; undoable.
/// @param away  world direction of the half that goes; the nearest world axis is taken
/// @return the frame, to be selected; null in a scene without a surface
osg::NodePtr addClipPlane(const osg::Vec3f& away);

/// Takes a plane away; what it cut stays where it is. Undoable.
/// @param frame  of the plane
/// @return false if it is no frame of a plane
bool removeClipPlane(const osg::NodePtr& frame);

// == Parts, for scenes that are read

/// The frame of a plane, at the origin, not in the scene.
/// @param outlineEdge  of the square that shows the plane, > 0
osg::NodePtr makeClipFrame(float outlineEdge);
/// Edge of the square in a frame; 0 for another node.
float clipOutlineEdge(const osg::NodePtr& frame);
/// A plane with a frame, not in the scene; cuts what is hung below it.
osg::NodePtr makeClipPlane(const osg::NodePtr& frame);

/// Whether a node has a clip plane as its core or is the frame of one.
bool isClipPlaneOrFrame(const osg::NodePtr& node);

/// Adds the commands "scene.addClipPlane", which cuts away the half towards the eye and puts the
/// gizmo on the plane, and "scene.removeClipPlane" for the selected one.
/// @param stage  outlives the commands
void addClipPlaneCommands(Stage& stage);

}  // namespace viewer
