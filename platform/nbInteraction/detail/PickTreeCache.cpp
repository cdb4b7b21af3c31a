// SPDX-License-Identifier: MIT
#include "PickTreeCache.h"

#include <nbOpenSGUtils/nbDropDead.h>

#include "GeometryExtraction.h"
#include "TreeWalk.h"
#include <ChangeCount.h>

namespace nbec::interaction::detail {

PickTreeCache& PickTreeCache::the()
{
    // Never destroyed: Embree's own statics might be gone before the trees.
    static PickTreeCache* const cache = new PickTreeCache;
    return *cache;
}

std::shared_ptr<const PickTree> PickTreeCache::treeOf(const osg::GeometryPtr& geometry)
{
    Entry& entry = entries[geometry.getFieldContainerId()];
    // Edits of a geometry's properties are counted by the geometry, too.
    const osg::UInt32 changeCount = osg::getChangeCount(geometry);
    if (entry.tree == nullptr || entry.changeCount != changeCount) {
        if (entry.tree == nullptr) {
            entry.tree = std::make_shared<PickTree>();
        }
        entry.tree->assign(extractGeometry(geometry));
        entry.changeCount = changeCount;
    }
    return entry.tree;
}

bool PickTreeCache::isCurrent(const osg::GeometryPtr& geometry) const
{
    const auto entry = entries.find(geometry.getFieldContainerId());
    return entry != entries.end() && entry->second.tree != nullptr &&
        entry->second.changeCount == osg::getChangeCount(geometry);
}

void PickTreeCache::buildBelow(const osg::NodePtr& root)
{
    forEachBelow(root, [this](const osg::NodePtr& node) {
        if (const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
            geometry != osg::NullFC) {
            treeOf(geometry);
        }
    });
}

void PickTreeCache::dropDead()
{
    nbDropDead(entries);
}

}  // namespace nbec::interaction::detail
