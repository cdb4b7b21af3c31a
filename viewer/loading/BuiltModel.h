// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/ModelData.h"

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <string>
#include <vector>

namespace viewer {

/// A model as nodes that are not in the scene yet. Belongs to the user-interface thread.
struct BuiltModel
{
    osg::RefPtr<osg::NodePtr> root;  ///< never null
    std::size_t triangles = 0;
    QStringList warnings;  ///< those of the model
    QString file;  ///< as ModelData::file
    QString builtIn;  ///< as ModelData::builtIn
};

/// Makes scene graph nodes of a model: a node with a Transform core for each node of the model,
/// below it a named node with a Geometry core for each mesh. Belongs to the user-interface thread.
BuiltModel buildModel(const ModelData& model);
/// The same model once more, of which nothing has been edited yet: nodes of its own, geometries
/// shared.
BuiltModel anotherOf(const BuiltModel& model);

/// The object that a picked or selected node stands for: the nearest node with a Transform core
/// from it upwards.
/// @return null for null, and above the scene root
osg::NodePtr objectOf(const osg::NodePtr& node);

/// The objects directly below an object, or at the top for null, in the order of the tree; groups
/// and other nodes between them are passed through.
std::vector<osg::NodePtr> childObjects(const osg::NodePtr& object);

/// What copies share with their originals, for osg::deepClone: nobody edits it.
constexpr const char* kSharedByCopies = "GeoPTypes, GeoPLengths, GeoPositions, GeoNormals, "
                                        "GeoColors, GeoTexCoords, GeoIndices, Image";

/// A copy of an object with all below it; has nothing in common with it that can be edited.
osg::NodePtr copyOfObject(const osg::NodePtr& object);

/// First node below a root, in tree order, of a name that objectOf() could return; null if there is
/// none.
osg::NodePtr findObject(const osg::NodePtr& root, const std::string& name);

/// The objects from a root on that have geometry of their own, each once: those that a click could
/// select.
std::vector<osg::NodePtr> objectsWithSurface(const osg::NodePtr& root);

}  // namespace viewer
