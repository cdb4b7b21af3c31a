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
        // A host's own mask is neither active nor hidden.
        const bool isDone = visible ? sharer->getActive() : sharer->getTravMask() == 0;
        if (!isDone) {
            const EditBracket edit(sharer, osg::Node::TravMaskFieldMask);
            sharer->setActive(visible);
        }
    }
}

}  // namespace nbec::manipulator::detail
