// SPDX-License-Identifier: MIT
#include <nbOpenSGRenderAction/Mesh.h>

#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <gtest/gtest.h>

#include <vector>

using nbrender::buildMesh;
using nbrender::Mesh;

TEST(nbMesh, CornersWithTheSameSourcesShareAVertex)
{
    const osg::GeometryRefPtr box(osg::makeBoxGeo(1.f, 1.f, 1.f, 1, 1, 1));
    EXPECT_EQ(buildMesh(box).vertices.size(), 24u) << "one index for all properties";
    EXPECT_EQ(buildMesh(box).triangles.size(), 36u);

    // A square of two triangles; the last corner has a normal of its own.
    const osg::GeometryRefPtr geometry(osg::Geometry::create());
    const osg::GeoPositions3fPtr positions = osg::GeoPositions3f::create();
    const osg::GeoPTypesUI8Ptr types = osg::GeoPTypesUI8::create();
    const osg::GeoPLengthsUI32Ptr lengths = osg::GeoPLengthsUI32::create();
    for (const float x : { 0.f, 1.f, 2.f, 3.f }) {
        positions->addValue(osg::Pnt3f(x, x * x, 0.f));
    }
    types->addValue(GL_TRIANGLES);
    lengths->addValue(6);
    geometry->setPositions(positions);
    geometry->setTypes(types);
    geometry->setLengths(lengths);
    const osg::GeoNormals3fPtr normals = osg::GeoNormals3f::create();
    normals->addValue(osg::Vec3f(0.f, 0.f, 1.f));
    normals->addValue(osg::Vec3f(1.f, 0.f, 0.f));
    const osg::GeoIndicesUI32Ptr indices = osg::GeoIndicesUI32::create();
    for (const osg::UInt32 index : { 0, 0, 1, 0, 2, 0, 0, 0, 2, 0, 3, 1 }) {
        indices->addValue(index);
    }
    geometry->setNormals(normals);
    geometry->setIndices(indices);
    geometry->getIndexMapping().push_back(osg::Geometry::MapPosition);
    geometry->getIndexMapping().push_back(osg::Geometry::MapNormal);

    const Mesh mesh = buildMesh(geometry);

    EXPECT_EQ(mesh.triangles, (std::vector<osg::UInt32> { 0, 1, 2, 0, 2, 3 }));
    ASSERT_EQ(mesh.vertices.size(), 4u);
    EXPECT_EQ(mesh.vertices[2].normal[2], 1.f);
    EXPECT_EQ(mesh.vertices[3].normal[0], 1.f);
    EXPECT_EQ(mesh.vertices[3].position[1], 9.f);
}
