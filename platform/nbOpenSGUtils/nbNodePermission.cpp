// SPDX-License-Identifier: MIT
#include "nbNodePermission.h"

#include <nbOpenSGExt/NodePermissions.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGNode.h>

namespace {

constexpr osg::Int32 kPermissionCount = 32;

bool isKnown(osg::Int32 permission)
{
    return permission >= 0 && permission < kPermissionCount;
}

osg::NodePermissionsPtr findPermissions(const osg::NodePtr& node)
{
    return osg::NodePermissionsPtr::dcast(
        node->findAttachment(osg::NodePermissions::getClassType()));
}

}  // namespace

bool nbNodePermission::allows(const osg::NodePtr& node, osg::Int32 permission)
{
    if (node == osg::NullFC || !isKnown(permission)) {
        return true;
    }
    const osg::NodePermissionsPtr found = findPermissions(node);
    return found == osg::NullFC || (found->getDenied() >> permission & 1u) == 0;
}

void nbNodePermission::setAllowed(const osg::NodePtr& node, osg::Int32 permission, bool allowed)
{
    if (node == osg::NullFC || !isKnown(permission) || allows(node, permission) == allowed) {
        return;
    }
    const nbEdit nodeEdit(node, osg::Node::AttachmentsFieldMask);
    osg::NodePermissionsPtr permissions = findPermissions(node);
    if (permissions == osg::NullFC) {
        permissions = osg::NodePermissions::create();
        node->addAttachment(permissions);
    }
    const nbEdit edit(permissions, osg::NodePermissions::DeniedFieldMask);
    permissions->setDenied(permissions->getDenied() ^ (1u << permission));
}
