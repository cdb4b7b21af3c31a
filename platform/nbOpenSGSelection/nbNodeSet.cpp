// SPDX-License-Identifier: MIT
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGSelection/nbNodeSet.h>

#include <algorithm>
#include <utility>

namespace {

bool hasId(const std::vector<osg::UInt32>& ids, osg::UInt32 id)
{
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

void appendOnce(std::vector<osg::UInt32>& ids, const osg::NodePtr& node)
{
    if (node != osg::NullFC && !hasId(ids, node.getFieldContainerId())) {
        ids.push_back(node.getFieldContainerId());
    }
}

void erase(std::vector<osg::UInt32>& ids, const osg::NodePtr& node)
{
    if (node != osg::NullFC) {
        ids.erase(std::remove(ids.begin(), ids.end(), node.getFieldContainerId()), ids.end());
    }
}

}  // namespace

bool nbNodeSet::set(const std::vector<osg::NodePtr>& nodes)
{
    Ids newIds;
    for (const osg::NodePtr& node : nodes) {
        appendOnce(newIds, node);
    }
    return replace(std::move(newIds));
}

bool nbNodeSet::add(const std::vector<osg::NodePtr>& nodes)
{
    Ids newIds = livingIds();
    for (const osg::NodePtr& node : nodes) {
        appendOnce(newIds, node);
    }
    return replace(std::move(newIds));
}

bool nbNodeSet::remove(const std::vector<osg::NodePtr>& nodes)
{
    Ids newIds = livingIds();
    for (const osg::NodePtr& node : nodes) {
        erase(newIds, node);
    }
    return replace(std::move(newIds));
}

bool nbNodeSet::toggle(const std::vector<osg::NodePtr>& nodes)
{
    const Ids former = livingIds();
    Ids newIds = former;
    for (const osg::NodePtr& node : nodes) {
        if (node != osg::NullFC && hasId(former, node.getFieldContainerId())) {
            erase(newIds, node);
        } else {
            appendOnce(newIds, node);
        }
    }
    return replace(std::move(newIds));
}

bool nbNodeSet::clear()
{
    return replace({});
}

std::vector<osg::NodePtr> nbNodeSet::getNodes() const
{
    std::vector<osg::NodePtr> nodes;
    for (const osg::UInt32 id : livingIds()) {
        nodes.push_back(resolveContainer<osg::NodePtr>(id));
    }
    return nodes;
}

bool nbNodeSet::contains(const osg::NodePtr& node) const
{
    return node != osg::NullFC && hasId(ids, node.getFieldContainerId());
}

nbNodeSet::Ids nbNodeSet::livingIds() const
{
    Ids living;
    std::copy_if(ids.begin(), ids.end(), std::back_inserter(living),
                 [](osg::UInt32 id) { return resolveContainer<osg::NodePtr>(id) != osg::NullFC; });
    return living;
}

bool nbNodeSet::replace(Ids newIds)
{
    const bool isChanged = newIds != livingIds();
    ids = std::move(newIds);
    return isChanged;
}
