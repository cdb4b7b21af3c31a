// SPDX-License-Identifier: MIT
#include "ClipPlane3D.h"

#include <nbOpenSGExt/nbContainerId.h>

#include <OpenSG/OSGNode.h>

#include <array>
#include <cmath>

namespace osg {

NB_CONTAINER_TYPE(ClipPlane3D, Group, NB_CLIP_PLANE_3D_FIELDS);

namespace {

Vec3d column(const Matrix& matrix, UInt32 index)
{
    return { matrix[index][0], matrix[index][1], matrix[index][2] };
}

/// Normals go by the cofactors of the matrix, which is the transposed inverse times the
/// determinant: its sign decides which side the normal looks to.
Vec3d worldNormal(const Matrix& world, const Vec4f& equation)
{
    const Vec3d x = column(world, 0);
    const Vec3d y = column(world, 1);
    const Vec3d z = column(world, 2);
    const std::array<Vec3d, 3> cofactors { y.cross(z), z.cross(x), x.cross(y) };
    const double side = x.dot(cofactors[0]) < 0.0 ? -1.0 : 1.0;
    Vec3d normal;
    for (UInt32 i = 0; i < 3; ++i) {
        normal += cofactors[i] * (side * static_cast<double>(equation[i]));
    }
    return normal;
}

}  // namespace

NodePtr ClipPlane3D::getTransformNode() const
{
    return resolveContainer<NodePtr>(getTransformNodeId());
}

void ClipPlane3D::setTransformNode(const NodePtr& node)
{
    setTransformNodeId(node == NullFC ? 0 : node.getFieldContainerId());
}

bool ClipPlane3D::getWorldEquation(const NodePtr& node, Vec4f& result) const
{
    const NodePtr linked = getTransformNode();
    const NodePtr frame = linked != NullFC ? linked : node;
    const Vec4f equation = getEquation();
    const Vec3d local(equation[0], equation[1], equation[2]);
    const double localSquare = local.squareLength();
    if (!getEnable() || node == NullFC || !(localSquare > 0.0)) {
        return false;
    }
    const Matrix world = frame->getToWorld();
    const Vec3d normal = worldNormal(world, equation);
    const double length = normal.length();
    // A point of the plane, brought to the world.
    const double along = -static_cast<double>(equation[3]) / localSquare;
    Vec3d point = column(world, 3);
    for (UInt32 i = 0; i < 3; ++i) {
        point += column(world, i) * (along * local[i]);
    }
    const double offset = -normal.dot(point) / length;
    if (!(length > 0.0) || !std::isfinite(length) || !std::isfinite(offset)) {
        return false;
    }
    result = Vec4f(static_cast<Real32>(normal[0] / length), static_cast<Real32>(normal[1] / length),
                   static_cast<Real32>(normal[2] / length), static_cast<Real32>(offset));
    return true;
}

}  // namespace osg
