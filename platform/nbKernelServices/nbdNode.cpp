// SPDX-License-Identifier: MIT
#include "nbdNode.h"

#include <nbKernelServices/nbObjectService.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

nbdNode::nbdNode(const nbdObject& object)
    : nbdObject(object.getKind() != Kind::PerspectiveMatch ? object : nbdObject())
{ }

osg::NodePtr nbdNode::getNode() const
{
    return isNull() ? osg::NodePtr() : resolveContainer<osg::NodePtr>(getId());
}

QString nbdNode::getName() const
{
    return QString::fromStdString(nbNodeUtils::getName(getNode()));
}

void nbdNode::setName(const QString& name) const
{
    if (!isNull() && name != getName()) {
        nbNodeUtils::setName(getNode(), name.toStdString());
        nbObjectService::notify(*this, "name");
    }
}

bool nbdNode::isLocked() const
{
    return !nbNodePermission::allows(getNode(), nbNodePermission::Edit);
}

void nbdNode::setLocked(bool locked) const
{
    if (!isNull() && locked != isLocked()) {
        nbNodePermission::setAllowed(getNode(), nbNodePermission::Edit, !locked);
        nbObjectService::notify(*this, "locked");
    }
}
