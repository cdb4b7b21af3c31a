// SPDX-License-Identifier: MIT
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbEditRecorder.h>

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGTransform.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "nbNodeUtils.h"

namespace {

using osg::Vec3d;
using Columns = std::array<Vec3d, 3>;

/// A 3x3 matrix as rotation, scale along the axes and shear: A = R S H, H upper triangular with
/// ones.
struct Factors
{
    Columns rotation { Vec3d(1, 0, 0), Vec3d(0, 1, 0), Vec3d(0, 0, 1) };
    Vec3d scale;
    Vec3d shear;  ///< above the diagonal: x by y, x by z, y by z

    bool hasShear() const
    {
        constexpr double kShearTolerance = 1e-6;
        return std::max({ std::fabs(shear[0]), std::fabs(shear[1]), std::fabs(shear[2]) }) >
            kShearTolerance;
    }
};

/// Fills the axes of a singular matrix that Gram-Schmidt left open with a right-handed frame.
void completeFrame(Columns& axes, const std::array<bool, 3>& known)
{
    for (std::size_t i = 0; i < 3; ++i) {
        if (known[i]) {
            continue;
        }
        Vec3d best;
        for (osg::UInt32 unit = 0; unit < 3; ++unit) {
            Vec3d candidate;
            candidate[unit] = 1.0;
            for (std::size_t k = 0; k < 3; ++k) {
                if (known[k] || k < i) {
                    candidate -= axes[k] * axes[k].dot(candidate);
                }
            }
            if (candidate.squareLength() > best.squareLength()) {
                best = candidate;
            }
        }
        axes[i] = best * (1.0 / best.length());
    }
}

/// Turns a mirrored frame into a rotation: the axis that points most against its own gets the sign.
void unmirror(Factors& factors)
{
    Columns& axes = factors.rotation;
    if (axes[0].cross(axes[1]).dot(axes[2]) >= 0.0) {
        return;
    }
    osg::UInt32 flipped = 0;
    for (osg::UInt32 i = 1; i < 3; ++i) {
        if (axes[i][i] < axes[flipped][flipped]) {
            flipped = i;
        }
    }
    axes[flipped] = -axes[flipped];
    factors.scale[flipped] = -factors.scale[flipped];
}

Factors factorise(const osg::Matrix& matrix)
{
    constexpr double kSingular = 1e-12;
    Factors factors;
    std::array<bool, 3> known { false, false, false };
    for (osg::UInt32 i = 0; i < 3; ++i) {
        Vec3d rest(matrix[i][0], matrix[i][1], matrix[i][2]);
        const double fullSquare = rest.squareLength();
        for (osg::UInt32 k = 0; k < i; ++k) {
            if (known[k]) {
                const double along = factors.rotation[k].dot(rest);
                factors.shear[i + k - 1] = along / factors.scale[k];
                rest -= factors.rotation[k] * along;
            }
        }
        const double square = rest.squareLength();
        known[i] = square > kSingular * fullSquare && square > 0.0;
        if (known[i]) {
            factors.scale[i] = std::sqrt(square);
            factors.rotation[i] = rest * (1.0 / factors.scale[i]);
        }
    }
    completeFrame(factors.rotation, known);
    unmirror(factors);
    return factors;
}

/// Whether the scale of a component transform acts along the axes of its rotation.
bool scalesAlongAxes(const osg::ComponentTransformPtr& source)
{
    const osg::Vec3f scale = source->getScale();
    return source->getScaleOrientation() == osg::Quaternion::identity() ||
        (scale.x() == scale.y() && scale.y() == scale.z());
}

void copyParts(const osg::ComponentTransformPtr& source, const osg::Transform3DPtr& target)
{
    target->setTranslation(source->getTranslation());
    target->setRotatePivot(source->getCenter());
    target->setScalePivot(source->getCenter());
    target->setRotation(source->getRotation());
    target->setScale(source->getScale());
}

/// Puts a new child between a node and its children; the core of the child keeps the children's
/// place.
osg::NodePtr insertOnlyChild(const osg::NodePtr& node, const osg::NodeCorePtr& childCore)
{
    const osg::NodePtr child = osg::Node::create();
    {
        const nbEdit edit(child, osg::Node::CoreFieldMask | osg::Node::ChildrenFieldMask);
        child->setCore(childCore);
        while (node->getNChildren() > 0) {
            child->addChild(node->getChild(0));
        }
    }
    node->addChild(child);
    return child;
}

/// Splits a matrix into the parts of a transform.
/// With the pivot c the matrix is T(translation) T(c) A T(-c).
void splitMatrix(const osg::Matrix& matrix, const osg::Vec3f& pivot,
                 const osg::Transform3DPtr& target)
{
    const Factors factors = factorise(matrix);
    osg::Matrix rotation(osg::Vec3f(factors.rotation[0]), osg::Vec3f(factors.rotation[1]),
                         osg::Vec3f(factors.rotation[2]));
    rotation[3][3] = 1.0F;
    const osg::Vec3f translation(matrix[3][0], matrix[3][1], matrix[3][2]);
    osg::Vec3f movedPivot;
    matrix.multMatrixVec(pivot, movedPivot);
    target->setTranslation(translation + movedPivot - pivot);
    target->setRotatePivot(pivot);
    target->setScalePivot(pivot);
    target->setRotation(osg::Quaternion(rotation));
    target->setScale(osg::Vec3f(factors.scale));
    if (factors.hasShear()) {
        target->setShear(osg::Vec3f(factors.shear));
    }
}

}  // namespace

osg::NodePtr nbNodeUtils::convertToTransform3DNode(const osg::NodePtr& node)
{
    if (node == osg::NullFC || osg::Transform3DPtr::dcast(node->getCore()) != osg::NullFC) {
        return node;
    }
    const osg::Transform3DPtr core = osg::Transform3D::create();
    nbNodeConversion conversion;
    conversion.node = node;
    conversion.oldCore = node->getCore();
    conversion.newCore = core;
    const auto components = osg::ComponentTransformPtr::dcast(conversion.oldCore.get());
    const auto transform = osg::TransformPtr::dcast(conversion.oldCore.get());
    {
        const nbEdit nodeEdit(node, osg::Node::CoreFieldMask | osg::Node::ChildrenFieldMask);
        const nbEdit edit(core, osg::FieldBits::AllFields);
        if (components != osg::NullFC && scalesAlongAxes(components)) {
            copyParts(components, core);
        } else if (transform != osg::NullFC) {
            const osg::Vec3f pivot =
                components == osg::NullFC ? osg::Vec3f(0.0F, 0.0F, 0.0F) : components->getCenter();
            splitMatrix(transform->getMatrix(), pivot, core);
        }
        node->setCore(core);
        if (conversion.oldCore.get() != osg::NullFC && transform == osg::NullFC) {
            conversion.insertedChild = insertOnlyChild(node, conversion.oldCore.get());
        }
    }
    if (nbEditRecorder* const recorder = nbEditRecorder::get(); recorder != nullptr) {
        recorder->nodeConverted(conversion);
    }
    return node;
}
