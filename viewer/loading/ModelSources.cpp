// SPDX-License-Identifier: MIT
#include "viewer/loading/ModelSources.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

namespace viewer {

void ModelSources::add(const BuiltModel& model)
{
    sources[model.root.get().getFieldContainerId()] = { model.file, model.builtIn };
    triangles += model.triangles;
    addNames(model.root.get());
}

const ModelSources::Source* ModelSources::find(const osg::NodePtr& root) const
{
    const auto found = sources.find(root.getFieldContainerId());
    return found == sources.end() ? nullptr : &found->second;
}

std::string ModelSources::nameOf(const osg::NodePtr& node) const
{
    const auto found = names.find(node.getFieldContainerId());
    return found == names.end() ? std::string() : found->second;
}

void ModelSources::addNames(const osg::NodePtr& node)
{
    names[node.getFieldContainerId()] = nbNodeUtils::getName(node);
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        addNames(node->getChild(i));
    }
}

}  // namespace viewer
