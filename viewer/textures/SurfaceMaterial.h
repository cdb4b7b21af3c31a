// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberMaterial/UberMaterial.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNode.h>

#include <vector>

namespace viewer {

/// The surface of an object that pictures are put on: a geometry node right at the object.
/// @param object     may be null
/// @param preferred  the part that was clicked, taken if it is such a node; may be null
/// @return null if the object has no surface of its own, as the head of a group of objects
osg::NodePtr surfaceOf(const osg::NodePtr& object, const osg::NodePtr& preferred);

/// All such surfaces of an object, in tree order; none for null.
std::vector<osg::NodePtr> ownSurfaces(const osg::NodePtr& object);

/// Null for a node with another core, and for null.
osg::GeometryPtr geometryOf(const osg::NodePtr& node);

/// Material of a surface that can carry pictures; null if it has another one or none.
osg::UberMaterialPtr uberMaterialOf(const osg::NodePtr& surface);

/// Gives a surface a material of its own that can carry pictures and looks as the one before did.
/// A geometry that other nodes show too is replaced by one that shares its arrays, so that they
/// keep their look. Is recorded for undo; the material there is, if it is one already.
/// @param surface  a geometry node
osg::UberMaterialPtr makeUberMaterial(const osg::NodePtr& surface);

}  // namespace viewer
