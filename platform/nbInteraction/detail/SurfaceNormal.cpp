// SPDX-License-Identifier: MIT
#include "SurfaceNormal.h"

#include <OpenSG/OSGTriangleIterator.h>

#include <cmath>

namespace nbec::interaction::detail {

osg::Vec3f surfaceNormal(const osg::GeometryPtr& geometry, const TreeHit& hit,
                         const osg::Pnt3f& place)
{
    if (geometry == osg::NullFC || geometry->getNormals() == osg::NullFC) {
        return hit.normal;
    }
    osg::TriangleIterator triangle(geometry);
    triangle.seek(static_cast<osg::Int32>(hit.triangle));
    if (triangle.isAtEnd()) {
        return hit.normal;
    }
    const float size = hit.normal.length();
    const osg::Vec3f front = hit.normal * (size > 0.0F ? 1.0F / size : 0.0F);
    osg::Vec3f sum;
    osg::Vec3f flat;
    for (osg::Int32 i = 0; i < 3; ++i) {
        const osg::Vec3f toNext = triangle.getPosition((i + 1) % 3) - place;
        const osg::Vec3f toLast = triangle.getPosition((i + 2) % 3) - place;
        const osg::Vec3f opposite = toNext.cross(toLast);  // as large as the corner's share
        osg::Vec3f normal = triangle.getNormal(i);
        normal.normalize();
        sum += normal * opposite.dot(front);
        flat += opposite;
    }
    // The tree leaves out what is broken, after which numbers would not be those of the geometry.
    constexpr float kSameDirection = 0.99F;
    const float length = sum.length();
    if (!(flat.dot(front) > kSameDirection * flat.length()) || !(length > 0.0F) ||
        !std::isfinite(length)) {
        return hit.normal;
    }
    return sum.dot(front) < 0.0F ? -sum : sum;
}

}  // namespace nbec::interaction::detail
