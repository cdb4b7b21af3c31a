// SPDX-License-Identifier: MIT
#include "nbNodeUtils.h"

#include <nbOpenSGExt/NodeFlags.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGExt/nbBoxCorners.h>
#include <nbOpenSGExt/nbEulerRotation.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGTransform.h>

namespace {

osg::NodeFlagsPtr findFlags(const osg::NodePtr& node)
{
    if (node == osg::NullFC) {
        return osg::NullFC;
    }
    return osg::NodeFlagsPtr::dcast(node->findAttachment(osg::NodeFlags::getClassType()));
}

void setFlag(const osg::NodePtr& node, osg::NodeFlags::Flag flag, bool on)
{
    if (node == osg::NullFC) {
        return;
    }
    osg::NodeFlagsPtr flags = findFlags(node);
    if (flags == osg::NullFC && !on) {
        return;
    }
    const nbEdit nodeEdit(node, osg::Node::AttachmentsFieldMask);
    if (flags == osg::NullFC) {
        flags = osg::NodeFlags::create();
        node->addAttachment(flags);
    }
    const nbEdit flagsEdit(flags, osg::NodeFlags::FlagsFieldMask);
    const osg::UInt32 bit = flag;
    flags->setFlags(on ? flags->getFlags() | bit : flags->getFlags() & ~bit);
}

void nameGeometries(const osg::NodePtr& node, const std::string& name)
{
    if (osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC) {
        nbNodeUtils::setName(node, name);
    }
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        nameGeometries(node->getChild(i), name);
    }
}

/// Rotation and scale of a plain matrix, read off the lengths of its columns.
struct MatrixParts
{
    osg::Vec3f scale { 1.0F, 1.0F, 1.0F };
    osg::Quaternion rotation;
};

MatrixParts partsOf(const osg::Matrix& matrix)
{
    MatrixParts parts;
    osg::Matrix turn;
    for (osg::UInt32 column = 0; column < 3; ++column) {
        osg::Vec3f axis(matrix[column][0], matrix[column][1], matrix[column][2]);
        parts.scale[column] = axis.length();
        axis.normalize();
        for (osg::UInt32 row = 0; row < 3; ++row) {
            turn[column][row] = axis[row];
        }
    }
    if (turn.det3() < 0.0F) {
        parts.scale[0] = -parts.scale[0];
        for (osg::UInt32 row = 0; row < 3; ++row) {
            turn[0][row] = -turn[0][row];
        }
    }
    parts.rotation = osg::Quaternion(turn);
    return parts;
}

template <class CorePtr>
CorePtr coreOf(const osg::NodePtr& node)
{
    return node == osg::NullFC ? CorePtr() : CorePtr::dcast(node->getCore());
}

void extendByCorners(osg::BoxVolume& bounds, const osg::BoxVolume& local,
                     const osg::Matrix& toWorld)
{
    osg::Pnt3f low;
    osg::Pnt3f high;
    local.getBounds(low, high);
    for (osg::Pnt3f point : nbBoxCorners(low, high)) {
        toWorld.multMatrixPnt(point);
        bounds.extendBy(point);
    }
}

/// Bounds of a node's own geometry in its frame. A leaf's volume is just that, and it is kept.
osg::BoxVolume ownBounds(const osg::NodePtr& node, const osg::GeometryPtr& geometry)
{
    osg::BoxVolume bounds;
    if (node->getNChildren() == 0) {
        bounds.extendBy(node->getVolume(true));
    } else {
        geometry->adjustVolume(bounds);
    }
    return bounds;
}

void extendBySubtree(osg::BoxVolume& bounds, const osg::NodePtr& node,
                     const osg::Matrix& parentToWorld)
{
    if (node->getTravMask() == 0 || nbNodeUtils::isAuxiliaryNode(node)) {
        return;
    }
    osg::Matrix toWorld = parentToWorld;
    if (const osg::TransformPtr transform = coreOf<osg::TransformPtr>(node);
        transform != osg::NullFC) {
        toWorld.mult(transform->getMatrix());
    }
    if (const osg::GeometryPtr geometry = coreOf<osg::GeometryPtr>(node); geometry != osg::NullFC) {
        const osg::BoxVolume local = ownBounds(node, geometry);
        if (!local.isEmpty()) {
            extendByCorners(bounds, local, toWorld);
        }
    }
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        extendBySubtree(bounds, node->getChild(i), toWorld);
    }
}

}  // namespace

void nbNodeUtils::setName(const osg::NodePtr& node, const std::string& name)
{
    if (node == osg::NullFC) {
        return;
    }
    const nbEdit edit(node, osg::Node::AttachmentsFieldMask);
    osg::setName(node, name);
}

void nbNodeUtils::setName(const osg::NodePtr& node, const std::string& name, bool geometries,
                          const osg::NodePtr& top)
{
    if (node == osg::NullFC) {
        return;
    }
    setName(node, name);
    if (geometries) {
        nameGeometries(top == osg::NullFC ? node : top, name);
    }
}

std::string nbNodeUtils::getName(const osg::NodePtr& node)
{
    const osg::Char8* name = node == osg::NullFC ? nullptr : osg::getName(node);
    return name == nullptr ? std::string() : std::string(name);
}

void nbNodeUtils::setIsAuxiliaryNode(const osg::NodePtr& node, bool on)
{
    setFlag(node, osg::NodeFlags::Auxiliary, on);
}

bool nbNodeUtils::isAuxiliaryNode(const osg::NodePtr& node)
{
    return (getNodeFlags(node) & osg::NodeFlags::Auxiliary) != 0;
}

void nbNodeUtils::setIsSelectableAuxiliaryNode(const osg::NodePtr& node, bool on)
{
    setFlag(node, osg::NodeFlags::SelectableAuxiliary, on);
}

void nbNodeUtils::setIsManipulatorNode(const osg::NodePtr& node, bool on)
{
    setFlag(node, osg::NodeFlags::ManipulatorNode, on);
}

osg::UInt32 nbNodeUtils::getNodeFlags(const osg::NodePtr& node)
{
    const osg::NodeFlagsPtr flags = findFlags(node);
    return flags == osg::NullFC ? 0 : flags->getFlags();
}

bool nbNodeUtils::hasParent(const osg::NodePtr& node, const osg::NodePtr& ancestor)
{
    if (ancestor == osg::NullFC) {
        return false;
    }
    osg::NodePtr step = node;
    while (step != osg::NullFC && step != ancestor) {
        step = step->getParent();
    }
    return step != osg::NullFC;
}

osg::NodePtr nbNodeUtils::resolveToTransformNode(const osg::NodePtr& node)
{
    osg::NodePtr step = node;
    while (step != osg::NullFC && coreOf<osg::TransformPtr>(step) == osg::NullFC) {
        step = step->getParent();
    }
    return step;
}

osg::Vec3f nbNodeUtils::getTransformNodeTranslation(const osg::NodePtr& node)
{
    if (const auto parts = coreOf<osg::Transform3DPtr>(node); parts != osg::NullFC) {
        return parts->getTranslation();
    }
    if (const auto parts = coreOf<osg::ComponentTransformPtr>(node); parts != osg::NullFC) {
        return parts->getTranslation();
    }
    if (const auto transform = coreOf<osg::TransformPtr>(node); transform != osg::NullFC) {
        const osg::Matrix& matrix = transform->getMatrix();
        return { matrix[3][0], matrix[3][1], matrix[3][2] };
    }
    return { 0.0F, 0.0F, 0.0F };
}

osg::Vec3f nbNodeUtils::getTransformNodeScale(const osg::NodePtr& node)
{
    if (const auto parts = coreOf<osg::Transform3DPtr>(node); parts != osg::NullFC) {
        return parts->getScale();
    }
    if (const auto parts = coreOf<osg::ComponentTransformPtr>(node); parts != osg::NullFC) {
        return parts->getScale();
    }
    const auto transform = coreOf<osg::TransformPtr>(node);
    return transform == osg::NullFC ? osg::Vec3f(1.0F, 1.0F, 1.0F)
                                    : partsOf(transform->getMatrix()).scale;
}

osg::Vec3f nbNodeUtils::getTransformNodeRotation(const osg::NodePtr& node)
{
    if (const auto parts = coreOf<osg::Transform3DPtr>(node); parts != osg::NullFC) {
        return parts->getRotation();
    }
    osg::Quaternion rotation;
    if (const auto parts = coreOf<osg::ComponentTransformPtr>(node); parts != osg::NullFC) {
        rotation = parts->getRotation();
    } else if (const auto transform = coreOf<osg::TransformPtr>(node); transform != osg::NullFC) {
        rotation = partsOf(transform->getMatrix()).rotation;
    }
    return nbEulerRotation::fromQuaternion(rotation, "xyz");
}

osg::Vec3f nbNodeUtils::getTransformNodeRotatePivot(const osg::NodePtr& node)
{
    if (const auto parts = coreOf<osg::Transform3DPtr>(node); parts != osg::NullFC) {
        return parts->getRotatePivot();
    }
    const auto parts = coreOf<osg::ComponentTransformPtr>(node);
    return parts == osg::NullFC ? osg::Vec3f(0.0F, 0.0F, 0.0F) : parts->getCenter();
}

osg::Vec3f nbNodeUtils::getTransformNodeScalePivot(const osg::NodePtr& node)
{
    if (const auto parts = coreOf<osg::Transform3DPtr>(node); parts != osg::NullFC) {
        return parts->getScalePivot();
    }
    const auto parts = coreOf<osg::ComponentTransformPtr>(node);
    return parts == osg::NullFC ? osg::Vec3f(0.0F, 0.0F, 0.0F) : parts->getCenter();
}

osg::BoxVolume nbNodeUtils::getWorldBounds(const osg::NodePtr& node)
{
    osg::BoxVolume bounds;
    bounds.setEmpty();
    if (node != osg::NullFC) {
        const osg::NodePtr parent = node->getParent();
        extendBySubtree(bounds, node, parent == osg::NullFC ? osg::Matrix() : parent->getToWorld());
    }
    return bounds;
}

osg::BoxVolume nbNodeUtils::getOwnBounds(const osg::NodePtr& node)
{
    osg::BoxVolume bounds;
    bounds.setEmpty();
    if (node != osg::NullFC) {
        osg::Matrix nodeFromParent;
        if (const auto transform = coreOf<osg::TransformPtr>(node); transform != osg::NullFC) {
            transform->getMatrix().inverse(nodeFromParent);
        }
        extendBySubtree(bounds, node, nodeFromParent);
    }
    return bounds;
}
