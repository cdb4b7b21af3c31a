// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGTransform.h>

#include <vector>

namespace nbec::interaction::detail {

/// Calls visit(child) for the children that a traversal enters: all of them, or what a Switch core
/// chooses. visit returns false to stop. @return false if it was stopped
template <class Visit>
bool forEachEnteredChild(const osg::NodePtr& node, Visit visit)
{
    const osg::UInt32 count = node->getNChildren();
    osg::UInt32 first = 0;
    osg::UInt32 end = count;
    if (const osg::SwitchPtr chooser = osg::SwitchPtr::dcast(node->getCore());
        chooser != osg::NullFC) {
        const osg::Int32 choice = chooser->getChoice();
        if (choice != osg::Switch::ALL) {
            const bool isChild = choice >= 0 && static_cast<osg::UInt32>(choice) < count;
            first = isChild ? static_cast<osg::UInt32>(choice) : 0;
            end = isChild ? first + 1 : 0;
        }
    }
    for (osg::UInt32 i = first; i < end; ++i) {
        if (!visit(node->getChild(i))) {
            return false;
        }
    }
    return true;
}

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
