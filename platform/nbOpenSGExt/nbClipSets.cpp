// SPDX-License-Identifier: MIT
#include "nbClipSets.h"

#include <nbOpenSGExt/nbContainerId.h>

#include <utility>

#include "ClipPlane3D.h"

void nbClipSets::clear()
{
    sources.resize(1);
    planes.resize(1);
}

osg::UInt32 nbClipSets::below(osg::UInt32 above, const osg::NodePtr& node)
{
    const auto core = osg::ClipPlane3DPtr::dcast(node->getCore());
    if (core == osg::NullFC) {
        return above;
    }
    std::vector<Source> all = sources[above];
    all.push_back({ core.getFieldContainerId(), node.getFieldContainerId() });
    sources.push_back(std::move(all));
    planes.emplace_back();
    return static_cast<osg::UInt32>(sources.size() - 1);
}

void nbClipSets::update()
{
    for (std::size_t set = 1; set < sources.size(); ++set) {
        planes[set].clear();
        for (const Source& source : sources[set]) {
            const auto core = resolveContainer<osg::ClipPlane3DPtr>(source.coreId);
            const auto node = resolveContainer<osg::NodePtr>(source.nodeId);
            osg::Vec4f plane;
            if (core != osg::NullFC && planes[set].size() < kMostPlanes &&
                core->getWorldEquation(node, plane)) {
                planes[set].push_back(plane);
            }
        }
    }
}
