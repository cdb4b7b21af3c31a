// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>

#include <QString>

#include <vector>

namespace viewer {

class Stage;

/// Place of an object in the tree of objects, such as "0/2": the third object below the first one
/// at the top. "" for what is no object of the scene.
QString pathOf(const osg::NodePtr& object);

/// @return null if there is no object at a path
osg::NodePtr objectAt(const QString& path);

/// Whether there are objects and none of them is locked. @param error  gets the name of one that is
bool mayEdit(const std::vector<osg::NodePtr>& objects, QString& error);

/// Adds the commands and values that concern the selected objects:
/// "scene.select" (array of paths), "object.translation", "object.rotation",
/// "object.scale", "object.rotatePivot", "object.scalePivot" (arrays of three numbers, in the frame
/// of the parent, degrees), "object.visible", "object.locked" (true or false). Vectors and switches
/// act on every selected object as one undo step; values are those of the object selected last,
/// null without one.
/// "scene.delete" and "scene.duplicate" take the selected objects with all below them; clip planes
/// can be deleted. "object.name" is that of the object selected last.
/// @param stage  outlives the commands
void addObjectCommands(Stage& stage);

}  // namespace viewer
