// SPDX-License-Identifier: MIT
#include "nbChildrenRecord.h"

#include <nbOpenSGUtils/nbEdit.h>

#include <algorithm>

namespace {

std::vector<osg::NodeRefPtr> childrenOf(const osg::NodePtr& parent)
{
    std::vector<osg::NodeRefPtr> children;
    for (osg::UInt32 i = 0; i < parent->getNChildren(); ++i) {
        children.emplace_back(parent->getChild(i));
    }
    return children;
}

}  // namespace

nbChildrenRecord::nbChildrenRecord(const std::vector<osg::NodePtr>& parents)
{
    for (const osg::NodePtr& parent : parents) {
        const bool isKnown =
            std::any_of(entries.begin(), entries.end(),
                        [&parent](const Entry& entry) { return entry.parent.get() == parent; });
        if (!isKnown) {
            entries.push_back({ osg::NodeRefPtr(parent), childrenOf(parent), {} });
        }
    }
}

bool nbChildrenRecord::close()
{
    bool isChanged = false;
    for (Entry& entry : entries) {
        entry.after = childrenOf(entry.parent.get());
        isChanged = isChanged || entry.after != entry.before;
    }
    return isChanged;
}

void nbChildrenRecord::undo()
{
    restore(&Entry::before);
}

void nbChildrenRecord::redo()
{
    restore(&Entry::after);
}

void nbChildrenRecord::restore(Children Entry::*state)
{
    // All are emptied first: a child that changes its parent must be free.
    for (const Entry& entry : entries) {
        const osg::NodePtr parent = entry.parent.get();
        const nbEdit edit(parent, osg::Node::ChildrenFieldMask);
        while (parent->getNChildren() > 0) {
            parent->subChild(parent->getNChildren() - 1);
        }
    }
    for (const Entry& entry : entries) {
        const osg::NodePtr parent = entry.parent.get();
        const nbEdit edit(parent, osg::Node::ChildrenFieldMask);
        for (const osg::NodeRefPtr& child : entry.*state) {
            parent->addChild(child.get());
        }
    }
}
