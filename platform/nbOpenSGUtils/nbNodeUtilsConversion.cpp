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

using Column = std::array<double, 3>;
using Columns = std::array<Column, 3>;

double dot(const Column& a, const Column& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Column cross(const Column& a, const Column& b)
{
    return { a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0] };
}

/// A 3x3 matrix as rotation, scale along the axes and shear: A = R S H, H upper triangular with
/// ones.
struct Factors
{
    Columns rotation { { { 1, 0, 0 }, { 0, 1, 0 }, { 0, 0, 1 } } };
    Column scale { 0, 0, 0 };
    Column shear { 0, 0, 0 };  ///< above the diagonal: x by y, x by z, y by z

    bool hasShear() const
    {
        constexpr double kShearTolerance = 1e-6;
        return std::any_of(shear.begin(), shear.end(),
                           [](double part) { return std::fabs(part) > kShearTolerance; });
    }
};

/// Fills the axes of a singular matrix that Gram-Schmidt left open with a right-handed frame.
void completeFrame(Columns& axes, const std::array<bool, 3>& known)
{
    for (std::size_t i = 0; i < 3; ++i) {
        if (known[i]) {
            continue;
        }
        Column best {};
        double bestSquare = 0.0;
        for (std::size_t unit = 0; unit < 3; ++unit) {
            Column candidate {};
            candidate[unit] = 1.0;
            for (std::size_t k = 0; k < 3; ++k) {
                if (!known[k] && k >= i) {
                    continue;
                }
                const double along = dot(axes[k], candidate);
                for (std::size_t row = 0; row < 3; ++row) {
                    candidate[row] -= along * axes[k][row];
                }
            }
            if (dot(candidate, candidate) > bestSquare) {
                best = candidate;
                bestSquare = dot(candidate, candidate);
            }
        }
        for (std::size_t row = 0; row < 3; ++row) {
            axes[i][row] = best[row] / std::sqrt(bestSquare);
        }
    }
}

/// Turns a mirrored frame into a rotation: the axis that points most against its own gets the sign.
void unmirror(Factors& factors)
{
    Columns& axes = factors.rotation;
    if (dot(cross(axes[0], axes[1]), axes[2]) >= 0.0) {
        return;
    }
    std::size_t flipped = 0;
    for (std::size_t i = 1; i < 3; ++i) {
        if (axes[i][i] < axes[flipped][flipped]) {
            flipped = i;
        }
    }
    for (double& component : axes[flipped]) {
        component = -component;
    }
    factors.scale[flipped] = -factors.scale[flipped];
}

Factors factorise(const osg::Matrix& matrix)
{
    constexpr double kSingular = 1e-12;
    Factors factors;
    std::array<bool, 3> known { false, false, false };
    for (std::size_t i = 0; i < 3; ++i) {
        const osg::Vec4f& source = matrix[static_cast<osg::UInt32>(i)];
        Column rest { source[0], source[1], source[2] };
        const double fullSquare = dot(rest, rest);
        for (std::size_t k = 0; k < i; ++k) {
            if (known[k]) {
                const double along = dot(factors.rotation[k], rest);
                factors.shear[i + k - 1] = along / factors.scale[k];
                for (std::size_t row = 0; row < 3; ++row) {
                    rest[row] -= along * factors.rotation[k][row];
                }
            }
        }
        const double square = dot(rest, rest);
        known[i] = square > kSingular * fullSquare && square > 0.0;
        if (known[i]) {
            factors.scale[i] = std::sqrt(square);
            for (std::size_t row = 0; row < 3; ++row) {
                factors.rotation[i][row] = rest[row] / factors.scale[i];
            }
        }
    }
    completeFrame(factors.rotation, known);
    unmirror(factors);
    return factors;
}

osg::Matrix toMatrix(const Columns& columns)
{
    osg::Matrix result;
    for (osg::UInt32 column = 0; column < 3; ++column) {
        for (osg::UInt32 row = 0; row < 3; ++row) {
            result[column][row] = static_cast<osg::Real32>(columns[column][row]);
        }
    }
    return result;
}

osg::Vec3f toVector(const Column& values)
{
    return { static_cast<osg::Real32>(values[0]), static_cast<osg::Real32>(values[1]),
             static_cast<osg::Real32>(values[2]) };
}

osg::Vec3f translationOf(const osg::Matrix& matrix)
{
    return { matrix[3][0], matrix[3][1], matrix[3][2] };
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
    osg::Vec3f movedPivot;
    matrix.multMatrixVec(pivot, movedPivot);
    target->setTranslation(translationOf(matrix) + movedPivot - pivot);
    target->setRotatePivot(pivot);
    target->setScalePivot(pivot);
    target->setRotation(osg::Quaternion(toMatrix(factors.rotation)));
    target->setScale(toVector(factors.scale));
    if (factors.hasShear()) {
        target->setShear(toVector(factors.shear));
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
