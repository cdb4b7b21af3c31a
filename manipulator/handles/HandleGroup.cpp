// SPDX-License-Identifier: MIT
#include "manipulator/handles/HandleGroup.h"

#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/handles/HandleNodes.h"

#include <nbOpenSGExt/DepthTestChunk.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGMaterialGroup.h>

namespace nbec::manipulator {

namespace {

osg::RefPtr<osg::NodePtr> makePass(const osg::NodePtr& tree, const osg::DepthTestChunkPtr& depth,
                                   int sortKey)
{
    const osg::SimpleMaterialRefPtr material = makePassMaterial(depth, sortKey);
    const osg::MaterialGroupPtr core = osg::MaterialGroup::create();
    {
        const nbEdit edit(core, osg::MaterialGroup::MaterialFieldMask);
        core->setMaterial(material.get());
    }
    osg::RefPtr<osg::NodePtr> group(makeNode(core));
    addChild(group.get(), tree);
    nbNodeUtils::setName(group.get(), kDepthPassGroupName);
    nbNodeUtils::setIsAuxiliaryNode(group.get(), true);
    return group;
}

}  // namespace

HandlePasses makeHandlePasses(const osg::NodePtr& tree)
{
    const osg::RefPtr<osg::DepthTestChunkPtr> depth(makeAlwaysDepthChunk());
    HandlePasses passes;
    passes.depthPass = makePass(osg::cloneTree(tree), depth.get(), handleSortKey::kDepthPass);
    passes.handlePass = makePass(tree, depth.get(), handleSortKey::kHandlePass);
    return passes;
}

void markHandleRoot(const osg::NodePtr& root)
{
    nbNodeUtils::setIsAuxiliaryNode(root, true);
    nbNodeUtils::setIsSelectableAuxiliaryNode(root, true);
    nbNodeUtils::setIsManipulatorNode(root, true);
}

osg::NodePtr makeHandleRoot()
{
    const osg::NodePtr root = makeGroupNode();
    nbNodeUtils::setName(root, kHandleGroupName);
    markHandleRoot(root);
    return root;
}

osg::NodePtr makeHandleRootOver(const osg::NodePtr& tree)
{
    nbNodeUtils::setIsAuxiliaryNode(tree, true);
    nbNodeUtils::setIsSelectableAuxiliaryNode(tree, true);
    const osg::RefPtr<osg::DepthTestChunkPtr> depth(makeAlwaysDepthChunk());
    const osg::RefPtr<osg::NodePtr> copy =
        makePass(osg::cloneTree(tree), depth.get(), handleSortKey::kEarlyDepthPass);
    const osg::NodePtr root = makeHandleRoot();
    addChild(root, tree);
    addChild(root, copy.get());
    return root;
}

osg::NodePtr makeHandleRootOfPasses(const osg::NodePtr& tree)
{
    const HandlePasses passes = makeHandlePasses(tree);
    const osg::NodePtr root = makeHandleRoot();
    addChild(root, passes.depthPass.get());
    addChild(root, passes.handlePass.get());
    return root;
}

}  // namespace nbec::manipulator
