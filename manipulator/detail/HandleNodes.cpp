// SPDX-License-Identifier: MIT
#include "manipulator/detail/HandleNodes.h"

#include "manipulator/detail/EditBracket.h"

#include <nbOpenSGExt/Transform3D.h>

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>

namespace nbec::manipulator::detail {

namespace {

/// Exactly equal numbers; the operators of vectors allow for a tolerance, which small scenes feel.
template <class Values>
bool isSame(const Values& left, const Values& right, osg::UInt32 count)
{
    for (osg::UInt32 i = 0; i < count; ++i) {
        if (left[i] != right[i]) {
            return false;
        }
    }
    return true;
}

}  // namespace

osg::NodePtr makeNode(const osg::NodeCorePtr& core)
{
    const osg::NodePtr node = osg::Node::create();
    const EditBracket edit(node, osg::Node::CoreFieldMask);
    node->setCore(core);
    return node;
}

osg::NodePtr makeGroupNode()
{
    return makeNode(osg::Group::create());
}

osg::NodePtr makePlacedNode(const osg::Vec3f& translation, const osg::Quaternion& rotation)
{
    const osg::ComponentTransformPtr core = osg::ComponentTransform::create();
    {
        const EditBracket edit(core,
                               osg::ComponentTransform::TranslationFieldMask |
                                   osg::ComponentTransform::RotationFieldMask);
        core->setTranslation(translation);
        core->setRotation(rotation);
    }
    return makeNode(core);
}

osg::NodePtr makeTransform3DNode(const osg::Vec3f& eulerDeg)
{
    const osg::Transform3DPtr core = osg::Transform3D::create();
    {
        const EditBracket edit(core, osg::FieldBits::AllFields);
        core->setRotation(eulerDeg);
    }
    return makeNode(core);
}

void placeTransform(const osg::Transform3DPtr& transform, const osg::Vec3f& translation,
                    const osg::Quaternion& rotation, const osg::Vec3f& scale)
{
    if (transform->getRotationMode() == osg::Transform3D::QuaternionMode &&
        isSame(transform->getTranslation(), translation, 3) &&
        isSame(transform->getScale(), scale, 3) &&
        isSame(transform->getRotationQuaternion(), rotation, 4)) {
        return;
    }
    const EditBracket edit(transform,
                           osg::Transform3D::TranslationFieldMask |
                               osg::Transform3D::RotationFieldMask |
                               osg::Transform3D::ScaleFieldMask);
    transform->setTranslation(translation);
    transform->setScale(scale);
    transform->setRotation(rotation);
}

void moveNode(const osg::NodePtr& node, const osg::Vec3f& translation)
{
    const osg::ComponentTransformPtr core = osg::ComponentTransformPtr::dcast(node->getCore());
    if (core == osg::NullFC || isSame(core->getTranslation(), translation, 3)) {
        return;
    }
    const EditBracket edit(core, osg::ComponentTransform::TranslationFieldMask);
    core->setTranslation(translation);
}

osg::NodePtr addChild(const osg::NodePtr& parent, const osg::NodePtr& child)
{
    const EditBracket edit(parent, osg::Node::ChildrenFieldMask);
    parent->addChild(child);
    return parent;
}

void setGeometryMaterial(const osg::NodePtr& node, const osg::MaterialPtr& material)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
    if (geometry == osg::NullFC || geometry->getMaterial() == material) {
        return;
    }
    const EditBracket edit(geometry, osg::Geometry::MaterialFieldMask);
    geometry->setMaterial(material);
}

osg::NodePtr makeSharingNode(const osg::GeometryPtr& prototype)
{
    const osg::GeometryPtr geometry = osg::Geometry::create();
    {
        const EditBracket edit(geometry, osg::FieldBits::AllFields);
        geometry->setTypes(prototype->getTypes());
        geometry->setLengths(prototype->getLengths());
        geometry->setPositions(prototype->getPositions());
        geometry->setNormals(prototype->getNormals());
        geometry->setIndices(prototype->getIndices());
        geometry->getIndexMapping() = prototype->getIndexMapping();
    }
    return makeNode(geometry);
}

}  // namespace nbec::manipulator::detail
