// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGTransform.h>

#include <vector>

namespace nbec::interaction::detail {

/// Puts the matrix of a core, if it is a transform, behind the matrix so far: matrix = matrix *
/// own.
inline void accumulateMatrix(const osg::NodeCorePtr& core, osg::Matrix& matrix)
{
    if (const auto transform = osg::TransformPtr::dcast(core); transform != osg::NullFC) {
        matrix.mult(transform->getMatrix());
    }
}

/// Calls visit(node) for a node and all below it, parents first, however deep; nothing for null.
template <class Visit>
void forEachBelow(const osg::NodePtr& root, Visit visit)
{
    std::vector<osg::NodePtr> open;
    for (osg::NodePtr node = root; node != osg::NullFC;) {
        visit(node);
        for (osg::UInt32 i = node->getNChildren(); i > 0; --i) {
            open.push_back(node->getChild(i - 1));
        }
        node = open.empty() ? osg::NodePtr() : open.back();
        if (!open.empty()) {
            open.pop_back();
        }
    }
}

}  // namespace nbec::interaction::detail
