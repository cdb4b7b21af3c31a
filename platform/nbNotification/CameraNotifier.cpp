// SPDX-License-Identifier: MIT
#include "CameraNotifier.h"

#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGroup.h>

namespace nbec::notification {

CameraNotifier::CameraNotifier(const osg::NodePtr& parent)
    : node(osg::makeNodeFor(osg::Group::create()))
{
    nbNodeUtils::setName(node, "cameraNotifier");
    nbNodeUtils::setIsAuxiliaryNode(node, true);
    if (parent != osg::NullFC) {
        const nbEdit edit(parent, osg::Node::ChildrenFieldMask);
        parent->addChild(node);
    }
}

CameraNotifier::~CameraNotifier()
{
    const osg::NodePtr parent = node->getParent();
    if (parent != osg::NullFC) {
        const nbEdit edit(parent, osg::Node::ChildrenFieldMask);
        parent->subChild(node);
    }
}

}  // namespace nbec::notification
