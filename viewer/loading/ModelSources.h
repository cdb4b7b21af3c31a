// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/BuiltModel.h"

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>

#include <map>
#include <string>
#include <vector>

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

    /// Takes a copy of an object with all below it for one more of the same model; or a copy of a
    /// whole model for another one.
    /// @param path  of the copy, see pathOf(); empty: one that is not taken
    void addCopy(const osg::NodePtr& original, const osg::NodePtr& copy, const QString& path = {});

    /// Place of an object in its model as it was read, such as "0/2": the third object below the
    /// first one below the root, which has ""; a copy of that has "0/2+1", or another number;
    /// what an edit of it put between it and its children has "0/2/-".
    QString pathOf(const osg::NodePtr& object) const;

    /// The object of a path below another one; null if there is none.
    osg::NodePtr objectBelow(const osg::NodePtr& object, const QString& path) const;

    /// The objects of a model that were read or copied, in the order of their paths; also those
    /// that are not in the scene any more.
    std::map<QString, std::string> objectsOf(const osg::NodePtr& root) const;

    /// What a node was called in its model; "" for one that came later.
    std::string nameOf(const osg::NodePtr& node) const;

private:
    /// Where an object stands in a model as it was read.
    struct Place
    {
        osg::UInt32 root = 0;
        QString path;
    };

    void addNames(const osg::NodePtr& node);
    void setPlace(const osg::NodePtr& object, const Place& place);
    void addPlaces(const osg::NodePtr& object, const Place& place);
    void copyPlaces(const osg::NodePtr& original, const osg::NodePtr& copy, const QString& from,
                    const Place& to);

    std::map<osg::UInt32, Source> sources;
    std::map<osg::UInt32, Place> places;
    std::map<osg::UInt32, std::vector<osg::UInt32>>
        members;  ///< objects that have a place, by root
    unsigned lastCopy = 0;
    std::map<osg::UInt32, std::string> names;
};

}  // namespace viewer
