// SPDX-License-Identifier: MIT
#include <OpenSG/OSGGeoFunctions.h>
#include <OpenSG/OSGGeometryView.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <vector>

namespace osg {

namespace {

constexpr BitVector kTopologyMask = Geometry::TypesFieldMask | Geometry::LengthsFieldMask |
    Geometry::NormalsFieldMask | Geometry::IndicesFieldMask | Geometry::IndexMappingFieldMask;

/// All properties that indices may refer to.
constexpr UInt16 kMapEverything = 2 * Geometry::MapTexCoords7 - 1;

/// A triangle by the numbers of its vertices.
struct Triangle
{
    UInt32 vertices[3];
    Int32 positions[3];
    /// Twice the area long.
    Vec3f normal;
};

void scaleToUnit(Vec3f& normal)
{
    // Not normalize(): small faces have products below its threshold.
    const Real32 length = normal.length();
    normal = length > 0.0F ? normal * (1.0F / length) : Vec3f(0.0F, 0.0F, 1.0F);
}

/// All triangles whose positions exist; none of a null geometry.
std::vector<Triangle> trianglesOf(const GeometryPtr& geometry)
{
    std::vector<Triangle> result;
    if (geometry == NullFC || geometry->getPositions() == NullFC) {
        return result;
    }
    const GeometryView view(geometry);
    const UInt32 positionCount = geometry->getPositions()->getSize();
    UInt32 first = 0;
    for (UInt32 i = 0; i < view.getPrimitiveCount(); ++i) {
        const UInt32 type = view.getType(i);
        const UInt32 length = view.getLength(i);
        for (UInt32 part = 0; part < TriangleSplitter::count(type, length); ++part) {
            UInt32 corners[4];
            TriangleSplitter::corners(type, part, length, corners);
            Triangle triangle;
            bool complete = true;
            for (UInt32 k = 0; k < 3; ++k) {
                triangle.vertices[k] = first + corners[k];
                triangle.positions[k] = view.getPositionIndex(triangle.vertices[k]);
                complete = complete && static_cast<UInt32>(triangle.positions[k]) < positionCount;
            }
            if (complete) {
                const Pnt3f origin = view.getPosition(triangle.vertices[0]);
                triangle.normal = (view.getPosition(triangle.vertices[1]) - origin)
                                      .cross(view.getPosition(triangle.vertices[2]) - origin);
                result.push_back(triangle);
            }
        }
        first += length;
    }
    return result;
}

/// Indices with a normal of its own for each corner of each triangle.
class NormalIndexer
{
public:
    NormalIndexer(const GeometryPtr& edited, const std::vector<Triangle>& faces)
        : geometry(edited)
        , triangles(faces)
    {
        MField<UInt16> old = geometry->getIndexMapping();
        if (old.empty()) {
            old.push_back(kMapEverything);
        }
        oldStride = old.getSize();
        for (UInt32 i = 0; i < old.getSize(); ++i) {
            const UInt16 kept = static_cast<UInt16>(old[i] & ~Geometry::MapNormal);
            if (kept != 0) {
                mapping.push_back(kept);
                keptEntries.push_back(i);
            }
        }
        mapping.push_back(Geometry::MapNormal);
    }

    /// @param cornerNormals for each corner of each triangle its normal in `normals`
    void apply(const GeoNormals3fPtr& normals, const std::vector<UInt32>& cornerNormals)
    {
        const UInt32 corners = static_cast<UInt32>(cornerNormals.size());
        types->addValue(GL_TRIANGLES);
        lengths->addValue(corners);
        indices->getField().reserve(std::size_t(corners) * mapping.size());
        for (UInt32 i = 0; i < corners; ++i) {
            addVertex(triangles[i / 3].vertices[i % 3], cornerNormals[i]);
        }
        keepOtherPrimitives();

        beginEditCP(geometry, kTopologyMask);
        geometry->setNormals(normals);
        geometry->setTypes(types);
        geometry->setLengths(lengths);
        geometry->setIndices(indices);
        geometry->getIndexMapping() = mapping;
        endEditCP(geometry, kTopologyMask);
    }

private:
    void addVertex(UInt32 vertex, UInt32 normal)
    {
        const GeoIndicesPtr old = geometry->getIndices();
        for (const UInt32 entry : keptEntries) {
            const UInt32 at = vertex * oldStride + entry;
            indices->addValue(old == NullFC ? vertex : at < old->size() ? old->getValue(at) : 0u);
        }
        indices->addValue(normal);
    }

    void keepOtherPrimitives()
    {
        const GeometryView view(geometry);
        UInt32 first = 0;
        for (UInt32 i = 0; i < view.getPrimitiveCount(); ++i) {
            const UInt32 length = view.getLength(i);
            if (TriangleSplitter::count(view.getType(i), length) == 0) {
                types->addValue(view.getType(i));
                lengths->addValue(length);
                for (UInt32 k = 0; k < length; ++k) {
                    addVertex(first + k, 0);
                }
            }
            first += length;
        }
    }

    GeometryPtr geometry;
    const std::vector<Triangle>& triangles;
    UInt32 oldStride = 1;
    MField<UInt16> mapping;
    std::vector<UInt32> keptEntries;
    GeoPTypesUI8Ptr types = GeoPTypesUI8::create();
    GeoPLengthsUI32Ptr lengths = GeoPLengthsUI32::create();
    GeoIndicesUI32Ptr indices = GeoIndicesUI32::create();
};

/// The triangles around each position: those of position p are listed from start[p] to start[p +
/// 1].
struct Neighbourhood
{
    Neighbourhood(const std::vector<Triangle>& triangles, UInt32 positionCount)
        : start(std::size_t(positionCount) + 1, 0)
        , faces(triangles.size() * 3)
    {
        for (const Triangle& triangle : triangles) {
            for (const Int32 position : triangle.positions) {
                ++start[static_cast<UInt32>(position) + 1];
            }
        }
        for (UInt32 i = 0; i < positionCount; ++i) {
            start[i + 1] += start[i];
        }
        std::vector<UInt32> next(start);
        for (UInt32 i = 0; i < triangles.size(); ++i) {
            for (const Int32 position : triangles[i].positions) {
                faces[next[static_cast<UInt32>(position)]++] = i;
            }
        }
    }

    std::vector<UInt32> start;
    std::vector<UInt32> faces;
};

}  // namespace

void calcVertexNormals(GeometryPtr geometry)
{
    const std::vector<Triangle> triangles = trianglesOf(geometry);
    if (triangles.empty()) {
        return;
    }

    const GeoNormals3fPtr normals = GeoNormals3f::create();
    MField<Vec3f>& values = normals->getField();
    values.resize(geometry->getPositions()->getSize());
    for (const Triangle& triangle : triangles) {
        for (const Int32 position : triangle.positions) {
            values[static_cast<UInt32>(position)] += triangle.normal;
        }
    }
    for (Vec3f& normal : values) {
        scaleToUnit(normal);
    }

    const BitVector mask = Geometry::NormalsFieldMask | Geometry::IndexMappingFieldMask;
    beginEditCP(geometry, mask);
    geometry->setNormals(normals);
    for (UInt16& entry : geometry->getIndexMapping()) {
        const bool withPositions = (entry & Geometry::MapPosition) != 0;
        entry = static_cast<UInt16>(withPositions ? entry | Geometry::MapNormal
                                                  : entry & ~Geometry::MapNormal);
    }
    endEditCP(geometry, mask);
}

void calcVertexNormals(GeometryPtr geometry, Real32 creaseAngle)
{
    const std::vector<Triangle> triangles = trianglesOf(geometry);
    if (triangles.empty()) {
        return;
    }

    const Neighbourhood around(triangles, geometry->getPositions()->getSize());
    std::vector<Vec3f> units;
    units.reserve(triangles.size());
    for (const Triangle& triangle : triangles) {
        units.push_back(triangle.normal);
        scaleToUnit(units.back());
    }
    const Real32 leastCosine = osgcos(osgClamp(0.0F, creaseAngle, Pi));
    const GeoNormals3fPtr normals = GeoNormals3f::create();
    std::vector<UInt32> cornerNormals;
    cornerNormals.reserve(3 * triangles.size());
    for (UInt32 i = 0; i < triangles.size(); ++i) {
        for (const Int32 position : triangles[i].positions) {
            Vec3f sum = triangles[i].normal;
            const UInt32 end = around.start[static_cast<UInt32>(position) + 1];
            for (UInt32 k = around.start[static_cast<UInt32>(position)]; k < end; ++k) {
                const UInt32 face = around.faces[k];
                if (face != i && units[face].dot(units[i]) >= leastCosine) {
                    sum += triangles[face].normal;
                }
            }
            scaleToUnit(sum);
            cornerNormals.push_back(normals->getSize());
            normals->addValue(sum);
        }
    }
    NormalIndexer(geometry, triangles).apply(normals, cornerNormals);
}

void calcFaceNormals(GeometryPtr geometry)
{
    const std::vector<Triangle> triangles = trianglesOf(geometry);
    if (triangles.empty()) {
        return;
    }

    const GeoNormals3fPtr normals = GeoNormals3f::create();
    std::vector<UInt32> cornerNormals;
    cornerNormals.reserve(3 * triangles.size());
    for (const Triangle& triangle : triangles) {
        cornerNormals.insert(cornerNormals.end(), 3, normals->getSize());
        Vec3f unit = triangle.normal;
        scaleToUnit(unit);
        normals->addValue(unit);
    }
    NormalIndexer(geometry, triangles).apply(normals, cornerNormals);
}

}  // namespace osg
