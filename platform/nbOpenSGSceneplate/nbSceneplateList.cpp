// SPDX-License-Identifier: MIT
#include "nbSceneplateList.h"

#include <nbOpenSGSceneplate/nbSceneplateLayout.h>

#include <algorithm>
#include <tuple>

namespace {

bool isGroupOrPlate(const osg::NodeCorePtr& core)
{
    return core->getType().getId() == osg::Group::getClassTypeId() ||
        osg::SceneplatePtr::dcast(core) != osg::NullFC;
}

void collectBelow(const osg::NodePtr& node, bool onlyActive,
                  std::vector<nbSceneplateList::Entry>& entries)
{
    if (node == osg::NullFC || node->getCore() == osg::NullFC || !isGroupOrPlate(node->getCore()) ||
        (onlyActive && !node->getActive())) {
        return;
    }
    if (const osg::SceneplatePtr plate = nbSceneplateList::plateOf(node); plate != osg::NullFC) {
        entries.push_back({ node, plate });
    }
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        collectBelow(node->getChild(i), onlyActive, entries);
    }
}

}  // namespace

osg::SceneplatePtr nbSceneplateList::plateOf(const osg::NodePtr& node)
{
    return node == osg::NullFC ? osg::SceneplatePtr() : osg::SceneplatePtr::dcast(node->getCore());
}

std::vector<nbSceneplateList::Entry> nbSceneplateList::collect(const osg::NodePtr& root)
{
    std::vector<Entry> entries;
    collectBelow(root, false, entries);
    return entries;
}

std::vector<nbSceneplateList::Entry> nbSceneplateList::collectShown(const osg::NodePtr& root)
{
    std::vector<Entry> entries;
    collectBelow(root, true, entries);
    entries.erase(std::remove_if(
                      entries.begin(), entries.end(),
                      [](const Entry& entry) { return !nbSceneplateLayout::isShown(entry.plate); }),
                  entries.end());
    sort(entries);
    return entries;
}

void nbSceneplateList::sort(std::vector<Entry>& entries)
{
    const auto rank = [](const Entry& entry) {
        return std::make_tuple(entry.plate->getFront(), entry.plate->getOrder());
    };
    std::stable_sort(entries.begin(), entries.end(),
                     [&rank](const Entry& a, const Entry& b) { return rank(a) < rank(b); });
}
