// SPDX-License-Identifier: MIT
#include "manipulator/detail/NodeVisibility.h"

#include "manipulator/detail/EditBracket.h"

#include <OpenSG/OSGNodeCore.h>

namespace nbec::manipulator::detail {

void showNode(const osg::NodePtr& node, bool visible)
{
    if (node == osg::NullFC || node->getCore() == osg::NullFC) {
        return;
    }
    for (const osg::NodePtr& sharer : node->getCore()->getParents()) {
        if (sharer->getActive() != visible) {
            const EditBracket edit(sharer, osg::Node::TravMaskFieldMask);
            sharer->setActive(visible);
        }
    }
}

}  // namespace nbec::manipulator::detail
