// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/BuiltModel.h"

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>

#include <map>
#include <string>

namespace viewer {

/// Remembers of the models in the scene where they came from and what their nodes were called
/// there, so that a scene file can refer to them. Nodes are kept by id.
class ModelSources
{
public:
    struct Source
    {
        QString file;  ///< absolute; empty for a model that is built in or made by code
        QString builtIn;  ///< name of a model that is built in; else empty
    };

    /// @param model  of which nothing has been edited yet
    void add(const BuiltModel& model);

    /// Where a model came from; null for a node that is no root of one.
    const Source* find(const osg::NodePtr& root) const;

    /// What a node was called in its model; "" for one that came later.
    std::string nameOf(const osg::NodePtr& node) const;

    /// Of all models.
    std::size_t triangleCount() const { return triangles; }

private:
    void addNames(const osg::NodePtr& node);

    std::map<osg::UInt32, Source> sources;
    std::map<osg::UInt32, std::string> names;
    std::size_t triangles = 0;
};

}  // namespace viewer
