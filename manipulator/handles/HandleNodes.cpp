// SPDX-License-Identifier: MIT
#include "manipulator/handles/HandleNodes.h"

#include "manipulator/handles/HandleMaterials.h"

#include <nbOpenSGExt/nbSameBits.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGTransform.h>

#include <algorithm>

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

osg::NodePtr makePlacedNode(const osg::Vec3f& translation, const osg::Quaternion& rotation)
{
    const osg::NodePtr node = osg::makeCoredNode<osg::ComponentTransform>();
    moveNode(node, translation, rotation);
    return node;
}

osg::NodePtr makeTransform3DNode(const osg::Vec3f& eulerDeg)
{
    osg::Transform3DPtr core;
    const osg::NodePtr node = osg::makeCoredNode<osg::Transform3D>(&core);
    const nbEdit edit(core, osg::Transform3D::RotationFieldMask);
    core->setRotation(eulerDeg);
    return node;
}

void placeTransform(const osg::Transform3DPtr& transform, const osg::Vec3f& translation,
                    const osg::Quaternion& rotation, const osg::Vec3f& scale)
{
    if (transform->getRotationMode() == osg::Transform3D::QuaternionMode &&
        nbSameBits(transform->getTranslation(), translation) &&
        nbSameBits(transform->getScale(), scale) &&
        nbSameBits(transform->getRotationQuaternion(), rotation)) {
        return;
    }
    const nbEdit edit(transform,
                      osg::Transform3D::TranslationFieldMask | osg::Transform3D::RotationFieldMask |
                          osg::Transform3D::ScaleFieldMask);
    transform->setTranslation(translation);
    transform->setScale(scale);
    transform->setRotation(rotation);
}

void moveNode(const osg::NodePtr& node, const osg::Vec3f& translation,
              const osg::Quaternion& rotation)
{
    const osg::ComponentTransformPtr core = osg::ComponentTransformPtr::dcast(node->getCore());
    if (core == osg::NullFC ||
        (nbSameBits(core->getTranslation(), translation) &&
         nbSameBits(core->getRotation(), rotation))) {
        return;
    }
    const nbEdit edit(core,
                      osg::ComponentTransform::TranslationFieldMask |
                          osg::ComponentTransform::RotationFieldMask);
    core->setTranslation(translation);
    core->setRotation(rotation);
}

void setMatrix(const osg::NodePtr& node, const osg::Matrix& matrix)
{
    constexpr osg::UInt32 kSize = 16;
    const auto core = osg::TransformPtr::dcast(node->getCore());
    const float* const known = core->getMatrix().getValues();
    if (!std::equal(known, known + kSize, matrix.getValues())) {
        const nbEdit edit(core, osg::Transform::MatrixFieldMask);
        core->setMatrix(matrix);
    }
}

osg::NodePtr addChild(const osg::NodePtr& parent, const osg::NodePtr& child)
{
    const nbEdit edit(parent, osg::Node::ChildrenFieldMask);
    parent->addChild(child);
    return parent;
}

void setGeometryMaterial(const osg::NodePtr& node, const osg::MaterialPtr& material)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
    if (geometry == osg::NullFC || geometry->getMaterial() == material) {
        return;
    }
    const nbEdit edit(geometry, osg::Geometry::MaterialFieldMask);
    geometry->setMaterial(material);
}

void showNode(const osg::NodePtr& node, bool visible)
{
    if (node == osg::NullFC || node->getCore() == osg::NullFC) {
        return;
    }
    for (const osg::NodePtr& sharer : node->getCore()->getParents()) {
        // A host's own mask is neither active nor hidden.
        const bool isDone = visible ? sharer->getActive() : sharer->getTravMask() == 0;
        if (!isDone) {
            const nbEdit edit(sharer, osg::Node::TravMaskFieldMask);
            sharer->setActive(visible);
        }
    }
}

osg::NodePtr makeSharingNode(const osg::GeometryPtr& prototype)
{
    const osg::GeometryPtr geometry = osg::Geometry::create();
    {
        const nbEdit edit(geometry, osg::FieldBits::AllFields);
        geometry->setTypes(prototype->getTypes());
        geometry->setLengths(prototype->getLengths());
        geometry->setPositions(prototype->getPositions());
        geometry->setNormals(prototype->getNormals());
        geometry->setIndices(prototype->getIndices());
        geometry->getIndexMapping() = prototype->getIndexMapping();
    }
    return osg::makeNodeFor(geometry);
}

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
