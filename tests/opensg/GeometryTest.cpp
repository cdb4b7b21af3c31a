// SPDX-License-Identifier: MIT
#include <OpenSG/OSGChangeCount.h>
#include <OpenSG/OSGGeoFunctions.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGLineIterator.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <gtest/gtest.h>

#include <vector>

using namespace osg;

namespace {

/// A geometry of one primitive.
GeometryPtr makeGeometry(GLenum type, UInt32 length, const std::vector<Pnt3f>& points,
                         const std::vector<UInt32>& indices = {})
{
    const GeometryPtr geometry = Geometry::create();
    const GeoPTypesUI8Ptr types = GeoPTypesUI8::create();
    const GeoPLengthsUI32Ptr lengths = GeoPLengthsUI32::create();
    types->addValue(type);
    lengths->addValue(length);
    const GeoPositions3fPtr positions = GeoPositions3f::create();
    positions->getField().getValues().assign(points.begin(), points.end());
    geometry->setTypes(types);
    geometry->setLengths(lengths);
    geometry->setPositions(positions);
    if (!indices.empty()) {
        const GeoIndicesUI32Ptr stored = GeoIndicesUI32::create();
        stored->getField().getValues().assign(indices.begin(), indices.end());
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
        EXPECT_EQ(it.getIndex(), static_cast<Int32>(result.size()));
        result.emplace_back();
        for (UInt32 k = 0; k < it.getLength(); ++k) {
            result.back().push_back(it.getPositionIndex(static_cast<Int32>(k)));
        }
    }
    return result;
}

using Corners = std::vector<std::vector<Int32>>;

}  // namespace

TEST(Geometry, AnEditOfAPropertyReachesAllGeometriesThatShareIt)
{
    const RefPtr<NodePtr> root(makeCoredNode<Group>());
    const GeometryPtr first = makeGeometry(GL_QUADS, 4, kSquare);
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
    const RefPtr<NodePtr> node(makeNodeFor(makeGeometry(GL_LINES, 2, kSquare, { 0, 1 })));
    EXPECT_EQ(node->getVolume(true).getMax(), Pnt3f(1.f, 0.f, 0.f));

    const RefPtr<NodePtr> bare(makeNodeFor(Geometry::create()));
    EXPECT_TRUE(bare->getVolume(true).isEmpty());
}

TEST(Geometry, BrokenDataReadAsZerosAndDoNotCrash)
{
    const RefPtr<GeometryPtr> wild(makeGeometry(GL_TRIANGLES, 6, kSquare, { 0, 1, 99 }));
    TriangleIterator it = wild->beginTriangles();
    EXPECT_EQ(it.getPosition(1), kSquare[1]);
    EXPECT_EQ(it.getPosition(2), Pnt3f());
    ++it;
    EXPECT_EQ(it.getPositionIndex(0), -1);
    EXPECT_EQ(it.getNormal(0), Vec3f());

    const RefPtr<NodePtr> longer(makeNodeFor(makeGeometry(GL_POLYGON, 4000000000u, kSquare)));
    EXPECT_EQ(longer->getVolume(true).getMax(), Pnt3f(1.f, 1.f, 0.f));
    calcVertexNormals(wild);
    EXPECT_EQ(wild->getNormals(), NullFC) << "no complete triangle";
}

TEST(Iterators, SplitEveryKindOfPrimitive)
{
    const std::vector<Pnt3f> points(6);

    const std::tuple<const char*, GLenum, UInt32, Corners, Corners> cases[] = {
        { "strip", GL_TRIANGLE_STRIP, 5, { { 0, 1, 2 }, { 2, 1, 3 }, { 2, 3, 4 } }, {} },
        { "fan", GL_TRIANGLE_FAN, 5, { { 0, 1, 2 }, { 0, 2, 3 }, { 0, 3, 4 } }, {} },
        { "polygon", GL_POLYGON, 5, { { 0, 1, 2 }, { 0, 2, 3 }, { 0, 3, 4 } }, {} },
        { "quad strip",
          GL_QUAD_STRIP,
          6,
          { { 0, 1, 2 }, { 2, 1, 3 }, { 2, 3, 4 }, { 4, 3, 5 } },
          {} },
        { "odd quad strip", GL_QUAD_STRIP, 3, {}, {} },
        { "quads with a rest", GL_QUADS, 6, { { 0, 1, 2 }, { 0, 2, 3 } }, {} },
        { "short strip", GL_TRIANGLE_STRIP, 2, {}, {} },
        { "loop", GL_LINE_LOOP, 3, {}, { { 0, 1 }, { 1, 2 }, { 2, 0 } } },
        { "loop of one", GL_LINE_LOOP, 1, {}, {} },
        { "line strip", GL_LINE_STRIP, 3, {}, { { 0, 1 }, { 1, 2 } } },
        { "points", GL_POINTS, 6, {}, {} },
    };

    for (const auto& [name, type, length, triangles, lines] : cases) {
        const RefPtr<GeometryPtr> geometry(makeGeometry(type, length, points));
        EXPECT_EQ(cornersFrom(geometry->beginTriangles()), triangles) << name;
        EXPECT_EQ(cornersFrom(geometry->beginLines()), lines) << name;
    }
}
