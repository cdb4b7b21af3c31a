// SPDX-License-Identifier: MIT
#include "manipulator/handles/HandleGroup.h"

#include "manipulator/handles/HandleMaterials.h"

#include <nbOpenSGExt/DepthTestChunk.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGMaterialGroup.h>

namespace nbec::manipulator {

namespace {

/// Puts a tree under a material of which all that matters are depth test and sort key.
osg::NodePtr makePass(const osg::NodePtr& tree, const osg::DepthTestChunkPtr& depth, int sortKey)
{
    const osg::SimpleMaterialRefPtr material(osg::SimpleMaterial::create());
    const osg::MaterialGroupPtr core = osg::MaterialGroup::create();
    {
        const nbEdit materialEdit(material.get(), osg::FieldBits::AllFields);
        material->setLit(false);
        material->addChunk(depth);
        material->setSortKey(sortKey);
        const nbEdit edit(core, osg::MaterialGroup::MaterialFieldMask);
        core->setMaterial(material.get());
    }
    const osg::NodePtr group = addChild(osg::makeNodeFor(core), tree);
    // Deliberate: both passes bear the same name.
    nbNodeUtils::setName(group, "ManipulatorDepthPassMaterialGroup");
    nbNodeUtils::setIsAuxiliaryNode(group, true);
    return group;
}

}  // namespace

osg::NodePtr makeHandleRoot(const osg::NodePtr& node)
{
    nbNodeUtils::setName(node, "Manipulatorgroup");
    nbNodeUtils::setIsAuxiliaryNode(node, true);
    nbNodeUtils::setIsSelectableAuxiliaryNode(node, true);
    nbNodeUtils::setIsManipulatorNode(node, true);
    return node;
}

osg::NodePtr makeHandleRootOver(const osg::NodePtr& tree)
{
    nbNodeUtils::setIsAuxiliaryNode(tree, true);
    nbNodeUtils::setIsSelectableAuxiliaryNode(tree, true);
    const osg::NodePtr root = addChild(makeHandleRoot(), tree);
    return addChild(
        root,
        makePass(osg::cloneTree(tree), makeAlwaysDepthChunk(), handleSortKey::kEarlyDepthPass));
}

osg::NodePtr makeHandleRootOfPasses(const osg::NodePtr& tree)
{
    const osg::DepthTestChunkPtr depth = makeAlwaysDepthChunk();
    const osg::NodePtr root = makeHandleRoot();
    addChild(root, makePass(osg::cloneTree(tree), depth, handleSortKey::kDepthPass));
    return addChild(root, makePass(tree, depth, handleSortKey::kHandlePass));
}

}  // namespace nbec::manipulator
