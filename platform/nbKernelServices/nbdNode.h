// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbdObject.h>

#include <OpenSG/OSGNode.h>

#include <QtCore/QString>

/// Refers to a node of the scene graph. Edits are announced by the object service.
class NB_PLATFORM_API nbdNode : public nbdObject
{
public:
    /// A null node.
    nbdNode() = default;

    /// @param nodeId  container id of the node; 0 for none
    explicit nbdNode(osg::UInt32 nodeId)
        : nbdNode(Kind::Node, nodeId)
    { }

    /// The node that an object refers to, cameras included; null if it is none.
    explicit nbdNode(const nbdObject& object);

    /// The node itself; null for a null object.
    osg::NodePtr getNode() const;

    /// Its name; empty without one.
    QString getName() const;
    /// Property "name".
    void setName(const QString& name) const;

    /// Whether edits are refused by those who ask; false for a null node.
    bool isLocked() const;
    /// Property "locked". Not undoable, as it protects rather than edits.
    void setLocked(bool locked) const;

protected:
    nbdNode(Kind what, osg::UInt32 nodeId)
        : nbdObject(what, nodeId)
    { }
};
