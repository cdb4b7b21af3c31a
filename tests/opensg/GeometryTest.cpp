// SPDX-License-Identifier: MIT
#include <OpenSG/OSGChangeCount.h>
#include <OpenSG/OSGContainerCensus.h>
#include <OpenSG/OSGFaceIterator.h>
#include <OpenSG/OSGGeoFunctions.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGLineIterator.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <gtest/gtest.h>

#include <map>
#include <vector>

using namespace osg;

namespace {

constexpr Real32 kTolerance = 1e-5f;

/// A geometry of primitives over the same points.
GeometryPtr makeGeometry(const std::vector<std::pair<GLenum, UInt32>>& primitives,
                         const std::vector<Pnt3f>& points, const std::vector<UInt32>& indices = {})
{
    const GeometryPtr geometry = Geometry::create();
    const GeoPTypesUI8Ptr types = GeoPTypesUI8::create();
    const GeoPLengthsUI32Ptr lengths = GeoPLengthsUI32::create();
    for (const auto& primitive : primitives) {
        types->addValue(primitive.first);
        lengths->addValue(primitive.second);
    }
    const GeoPositions3fPtr positions = GeoPositions3f::create();
    positions->getField().assign(points.begin(), points.end());
    geometry->setTypes(types);
    geometry->setLengths(lengths);
    geometry->setPositions(positions);
    if (!indices.empty()) {
        const GeoIndicesUI32Ptr stored = GeoIndicesUI32::create();
        stored->getField().assign(indices.begin(), indices.end());
        geometry->setIndices(stored);
    }
    return geometry;
}

const std::vector<Pnt3f> kSquare = { Pnt3f(0.f, 0.f, 0.f), Pnt3f(1.f, 0.f, 0.f),
                                     Pnt3f(1.f, 1.f, 0.f), Pnt3f(0.f, 1.f, 0.f) };

template <class Iterator>
std::vector<std::vector<Int32>> cornersFrom(Iterator it)
{
    std::vector<std::vector<Int32>> result;
    for (; !it.isAtEnd(); ++it) {
        result.emplace_back();
        for (UInt32 k = 0; k < it.getLength(); ++k) {
            result.back().push_back(it.getPositionIndex(static_cast<Int32>(k)));
        }
    }
    return result;
}

using Corners = std::vector<std::vector<Int32>>;

/// Six times the enclosed volume.
double signedVolume(const GeometryPtr& geometry)
{
    double sum = 0.;
    for (TriangleIterator it = geometry->beginTriangles(); !it.isAtEnd(); ++it) {
        sum += it.getPosition(0).subZero().dot(
            it.getPosition(1).subZero().cross(it.getPosition(2).subZero()));
    }
    return sum;
}

using PointKey = std::vector<int>;

PointKey keyOf(const Pnt3f& p)
{
    const auto rounded = [](Real32 v) { return static_cast<int>(std::lround(v * 1e4f)); };
    return { rounded(p[0]), rounded(p[1]), rounded(p[2]) };
}

/// Edges that are not run through once in each direction.
std::size_t openEdges(const GeometryPtr& geometry)
{
    std::map<std::pair<PointKey, PointKey>, int> edges;
    for (TriangleIterator it = geometry->beginTriangles(); !it.isAtEnd(); ++it) {
        for (Int32 k = 0; k < 3; ++k) {
            const PointKey a = keyOf(it.getPosition(k));
            const PointKey b = keyOf(it.getPosition((k + 1) % 3));
            if (a != b) {
                ++edges[{ a, b }];
                --edges[{ b, a }];
            }
        }
    }
    std::size_t open = 0;
    for (const auto& edge : edges) {
        open += edge.second != 0 ? 1 : 0;
    }
    return open;
}

}  // namespace

TEST(Geometry, AnEditOfAPropertyReachesAllGeometriesThatShareIt)
{
    const RefPtr<NodePtr> root(makeCoredNode<Group>());
    const GeometryPtr first = makeGeometry({ { GL_QUADS, 4 } }, kSquare);
    const GeometryPtr second = first->clone();
    const GeoPositions3fPtr positions = GeoPositions3fPtr::dcast(first->getPositions());
    second->setPositions(positions);
    root->addChild(makeNodeFor(first));
    root->addChild(makeNodeFor(second));
    root->updateVolume();
    const UInt32 secondCount = getChangeCount(second);
    const UInt64 treeCount = getTreeChangeCount(root);

    beginEditCP(positions);
    positions->setValue(Pnt3f(5.f, 0.f, 0.f), 1);
    endEditCP(positions);

    EXPECT_NE(getChangeCount(second), secondCount);
    EXPECT_NE(getTreeChangeCount(root), treeCount);
    EXPECT_EQ(root->getVolume(true).getMax(), Pnt3f(5.f, 1.f, 0.f));
    EXPECT_EQ(root->getChild(1)->getVolume().getMax(), Pnt3f(5.f, 1.f, 0.f));
}

TEST(Geometry, OnlyVerticesOfPrimitivesCountForTheVolume)
{
    const RefPtr<NodePtr> node(makeNodeFor(makeGeometry({ { GL_LINES, 2 } }, kSquare, { 0, 1 })));
    EXPECT_EQ(node->getVolume(true).getMax(), Pnt3f(1.f, 0.f, 0.f));

    const RefPtr<NodePtr> bare(makeNodeFor(Geometry::create()));
    EXPECT_TRUE(bare->getVolume(true).isEmpty());
}

TEST(Geometry, BrokenDataReadAsZerosAndDoNotCrash)
{
    const RefPtr<GeometryPtr> wild(makeGeometry({ { GL_TRIANGLES, 6 } }, kSquare, { 0, 1, 99 }));
    TriangleIterator it = wild->beginTriangles();
    EXPECT_EQ(it.getPosition(1), kSquare[1]);
    EXPECT_EQ(it.getPosition(2), Pnt3f());
    ++it;
    EXPECT_EQ(it.getPositionIndex(0), -1);
    EXPECT_EQ(it.getNormal(0), Vec3f());

    const RefPtr<NodePtr> longer(
        makeNodeFor(makeGeometry({ { GL_POLYGON, 4000000000u } }, kSquare)));
    EXPECT_EQ(longer->getVolume(true).getMax(), Pnt3f(1.f, 1.f, 0.f));
    calcVertexNormals(wild);
    EXPECT_EQ(wild->getNormals(), NullFC) << "no complete triangle";
}

TEST(Geometry, CloneHasItsOwnPropertiesAndTheSameMaterial)
{
    const ContainerCensus before = ContainerCensus::take();
    {
        const RefPtr<GeometryPtr> original(makeBoxGeo(1.f, 1.f, 1.f, 1, 1, 1));
        const RefPtr<GeometryPtr> copy(original->clone());

        EXPECT_EQ(copy->getMaterial(), original->getMaterial());
        EXPECT_NE(copy->getPositions(), original->getPositions());
        EXPECT_EQ(copy->getPositions()->getSize(), 24u);
        EXPECT_EQ(copy->getIndexMapping()[0], 19);
        EXPECT_EQ(copy->getPositions()->getParents().size(), 1u);
        EXPECT_EQ(original->getPositions().getRefCount(), 1);
    }
    getDefaultMaterial();
    EXPECT_EQ(ContainerCensus::take().count("GeoPositions3f"), before.count("GeoPositions3f"));
    EXPECT_EQ(ContainerCensus::take().count("Geometry"), before.count("Geometry"));
}

TEST(Iterators, SplitEveryKindOfPrimitive)
{
    const std::vector<Pnt3f> points(6);

    const struct
    {
        const char* name;
        GLenum type;
        UInt32 length;
        Corners triangles;
        Corners faces;
        Corners lines;
    } cases[] = {
        { "quad strip",
          GL_QUAD_STRIP,
          6,
          { { 0, 1, 2 }, { 2, 1, 3 }, { 2, 3, 4 }, { 4, 3, 5 } },
          { { 0, 1, 3, 2 }, { 2, 3, 5, 4 } },
          {} },
        { "odd quad strip", GL_QUAD_STRIP, 3, {}, {}, {} },
        { "quads with a rest", GL_QUADS, 6, { { 0, 1, 2 }, { 0, 2, 3 } }, { { 0, 1, 2, 3 } }, {} },
        { "short strip", GL_TRIANGLE_STRIP, 2, {}, {}, {} },
        { "loop", GL_LINE_LOOP, 3, {}, {}, { { 0, 1 }, { 1, 2 }, { 2, 0 } } },
        { "loop of one", GL_LINE_LOOP, 1, {}, {}, {} },
        { "line strip", GL_LINE_STRIP, 3, {}, {}, { { 0, 1 }, { 1, 2 } } },
        { "points", GL_POINTS, 6, {}, {}, {} },
    };

    for (const auto& row : cases) {
        const RefPtr<GeometryPtr> geometry(makeGeometry({ { row.type, row.length } }, points));
        EXPECT_EQ(cornersFrom(geometry->beginTriangles()), row.triangles) << row.name;
        EXPECT_EQ(cornersFrom(geometry->beginFaces()), row.faces) << row.name;
        EXPECT_EQ(cornersFrom(geometry->beginLines()), row.lines) << row.name;
    }
}

TEST(SimpleGeometry, SolidsAreClosedAndEncloseTheirVolume)
{
    const double pi = 3.14159265358979;

    const struct
    {
        const char* name;
        GeometryPtr geometry;
        double volume;
        double tolerance;
    } cases[] = {
        { "box", makeBoxGeo(1.f, 2.f, 3.f, 2, 3, 4), 6., 1e-3 },
        { "cylinder", makeCylinderGeo(2.f, 0.5f, 64, true, true, true), pi / 2, 0.01 },
        { "cone", makeConeGeo(3.f, 1.f, 64, true, true), pi, 0.01 },
        { "frustum", makeConicalFrustumGeo(3.f, 1.f, 2.f, 64, true, true, true), 7 * pi, 0.05 },
        { "torus", makeTorusGeo(0.5f, 2.f, 48, 64), pi * pi, 0.05 },
        { "sphere", makeSphereGeo(4, 1.f), 4 * pi / 3, 0.02 },
        { "latitudes", makeLatLongSphereGeo(48, 64, 1.f), 4 * pi / 3, 0.02 },
    };

    for (const auto& row : cases) {
        const RefPtr<GeometryPtr> held(row.geometry);
        EXPECT_EQ(openEdges(row.geometry), 0u) << row.name;
        EXPECT_NEAR(signedVolume(row.geometry) / 6., row.volume, row.tolerance) << row.name;
    }
}

TEST(SimpleGeometry, RefusalsLeaveNothingBehind)
{
    getDefaultMaterial();
    const ContainerCensus before = ContainerCensus::take();

    EXPECT_EQ(makeSphere(11, 1.f), NullFC);
    EXPECT_EQ(makeLatLongSphere(1, 8, 1.f), NullFC);
    EXPECT_EQ(makeCone(std::nanf(""), 1.f, 8, true, true), NullFC);
    EXPECT_EQ(makeTorus(1.f, 2.f, 6, 2), NullFC);

    EXPECT_EQ(ContainerCensus::take().differenceTo(before), "");
}

TEST(GeoFunctions, CreaseAngleDecidesWhichEdgesAreSharp)
{
    const RefPtr<GeometryPtr> sharp(makeBoxGeo(2.f, 2.f, 2.f, 1, 1, 1));
    calcVertexNormals(sharp, osgdegree2rad(60.f));
    for (TriangleIterator it = sharp->beginTriangles(); !it.isAtEnd(); ++it) {
        const Vec3f face =
            (it.getPosition(1) - it.getPosition(0)).cross(it.getPosition(2) - it.getPosition(0)) *
            0.25f;
        EXPECT_TRUE(it.getNormal(0).equals(face, kTolerance)) << it.getIndex();
    }

    // A ridge of two triangles that meet at a right angle, without indices.
    const std::vector<Pnt3f> roof = { Pnt3f(0.f, 0.f, 0.f), Pnt3f(1.f, 0.f, 0.f),
                                      Pnt3f(0.f, 1.f, 0.f), Pnt3f(0.f, 0.f, 1.f) };
    const RefPtr<GeometryPtr> round(
        makeGeometry({ { GL_TRIANGLES, 6 }, { GL_LINES, 2 } }, roof, { 0, 1, 2, 0, 3, 1, 2, 3 }));
    calcVertexNormals(round, osgdegree2rad(100.f));
    const Vec3f mean(0.f, osgsqrt(0.5f), osgsqrt(0.5f));
    const TriangleIterator first = round->beginTriangles();
    EXPECT_TRUE(first.getNormal(0).equals(mean, kTolerance));
    EXPECT_TRUE(first.getNormal(1).equals(mean, kTolerance));
    EXPECT_TRUE(first.getNormal(2).equals(Vec3f(0.f, 0.f, 1.f), kTolerance));
    EXPECT_EQ(cornersFrom(round->beginLines()), (Corners { { 2, 3 } })) << "lines are kept";
}

TEST(GeoFunctions, FaceNormalsAreFlatAndOtherDataStay)
{
    const RefPtr<GeometryPtr> sphere(makeSphereGeo(1, 1e-4f));
    const Vec2f texCoords = sphere->beginTriangles().getTexCoords(1);

    calcFaceNormals(sphere);

    const TriangleIterator first = sphere->beginTriangles();
    EXPECT_EQ(first.getNormal(0), first.getNormal(2));
    EXPECT_NEAR(first.getNormal(0).length(), 1.f, kTolerance) << "however small the faces";
    EXPECT_EQ(first.getTexCoords(1), texCoords);
    EXPECT_EQ(sphere->getNormals()->getSize(), 80u);
}
