// SPDX-License-Identifier: MIT
#include "ShapeBuilder.h"

#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGSimpleGeometry.h>

namespace osg::detail {

ShapeBuilder::ShapeBuilder(std::size_t vertexCount, std::size_t indexCount)
{
    positions->getField().reserve(vertexCount);
    normals->getField().reserve(vertexCount);
    texCoords2->getField().reserve(vertexCount);
    indices->getField().reserve(indexCount);
}

UInt32 ShapeBuilder::addVertex(const Pnt3f& position, const Vec3f& normal, const Vec2f& texCoords)
{
    texCoords2->getField().push_back(texCoords);
    return addPosition(position, normal);
}

UInt32 ShapeBuilder::addPosition(const Pnt3f& position, const Vec3f& normal)
{
    positions->getField().push_back(position);
    normals->getField().push_back(normal);
    return positions->getSize() - 1;
}

void ShapeBuilder::beginPrimitive(GLenum type)
{
    types->addValue(type);
    lengths->addValue(0);
}

void ShapeBuilder::addIndex(UInt32 index)
{
    indices->getField().push_back(index);
    ++lengths->getField().back();
}

void ShapeBuilder::addIndex(UInt32 index, const Vec2f& texCoords)
{
    separateTexCoords = true;
    indices->getField().push_back(index);
    indices->getField().push_back(texCoords2->getSize());
    texCoords2->getField().push_back(texCoords);
    ++lengths->getField().back();
}

void ShapeBuilder::addStrip(UInt32 count, UInt32 first, UInt32 second, UInt32 step)
{
    beginPrimitive(GL_TRIANGLE_STRIP);
    for (UInt32 i = 0; i < count; ++i) {
        addIndex(first + i * step);
        addIndex(second + i * step);
    }
}

GeometryPtr ShapeBuilder::build() const
{
    const GeometryPtr geometry = Geometry::create();
    beginEditCP(geometry);
    geometry->setTypes(types);
    geometry->setLengths(lengths);
    geometry->setPositions(positions);
    geometry->setNormals(normals);
    geometry->setTexCoords(texCoords2);
    geometry->setIndices(indices);
    if (separateTexCoords) {
        geometry->getIndexMapping().push_back(Geometry::MapPosition | Geometry::MapNormal);
        geometry->getIndexMapping().push_back(Geometry::MapTexCoords);
    } else {
        geometry->getIndexMapping().push_back(Geometry::MapPosition | Geometry::MapNormal |
                                              Geometry::MapTexCoords);
    }
    geometry->setMaterial(getDefaultMaterial());
    endEditCP(geometry);
    return geometry;
}

GeometryPtr refuseShape(const Char8* function, const Char8* reason)
{
    SWARNING << function << ": " << reason << std::endl;
    return NullFC;
}

NodePtr shapeNode(const GeometryPtr& geometry)
{
    return geometry == NullFC ? NodePtr() : makeNodeFor(geometry);
}

}  // namespace osg::detail
