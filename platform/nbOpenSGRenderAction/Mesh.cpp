// SPDX-License-Identifier: MIT
#include "Mesh.h"

#include <OpenSG/OSGLineIterator.h>
#include <OpenSG/OSGPrimitiveIterator.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <boost/functional/hash.hpp>

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include <ContentStamp.h>

namespace nbrender {

namespace {

std::array<float, 3> triple(const osg::Pnt3f& p)
{
    return { p.x(), p.y(), p.z() };
}

osg::UInt8 toByte(float component)
{
    return static_cast<osg::UInt8>(
        std::lround(std::clamp(component, 0.0F, 1.0F) * float(kFullByte)));
}

/// Colour of a vertex with its alpha, which the generic reading of colours leaves out.
ColorBytes readColor(const osg::GeoColorsPtr& colors, osg::Int32 index)
{
    if (colors == osg::NullFC || index < 0 ||
        static_cast<osg::UInt32>(index) >= colors->getSize()) {
        return kWhite;
    }
    const auto at = static_cast<osg::UInt32>(index);
    const osg::Color3f rgb = colors->getValue(at);
    osg::UInt8 alpha = kFullByte;
    if (const auto floats = osg::GeoColors4fPtr::dcast(colors); floats != osg::NullFC) {
        alpha = toByte(floats->getField()[at].alpha());
    } else if (const auto bytes = osg::GeoColors4ubPtr::dcast(colors); bytes != osg::NullFC) {
        alpha = bytes->getField()[at].alpha();
    }
    return { toByte(rgb.red()), toByte(rgb.green()), toByte(rgb.blue()), alpha };
}

/// Where a corner's values come from: index of position, normal, colour, texture coordinates.
using Sources = std::array<osg::Int32, 4>;

/// Collects the triangles of one geometry; corners with the same sources share a vertex.
class TriangleCollector
{
public:
    TriangleCollector(const osg::GeometryPtr& source, Mesh& target)
        : geometry(source)
        , mesh(target)
        , flat(source->getNormals() == osg::NullFC)
    { }

    void run()
    {
        const osg::TriangleIterator end = geometry->endTriangles();
        for (osg::TriangleIterator it = geometry->beginTriangles(); it != end; ++it) {
            std::array<float, 3> normal {};
            if (flat) {
                normal = faceNormal(it);
            }
            for (osg::Int32 corner = 0; corner < 3; ++corner) {
                mesh.triangles.push_back(flat ? append(it, corner, normal) : shared(it, corner));
            }
        }
    }

private:
    static std::array<float, 3> faceNormal(const osg::TriangleIterator& it)
    {
        osg::Vec3f normal =
            (it.getPosition(1) - it.getPosition(0)).cross(it.getPosition(2) - it.getPosition(0));
        // The length is squared; tiny triangles must not lose their direction to a tolerance.
        const float length = normal.length();
        if (length > 0.0F) {
            normal *= 1.0F / length;
        }
        return { normal.x(), normal.y(), normal.z() };
    }

    osg::UInt32 shared(const osg::TriangleIterator& it, osg::Int32 corner)
    {
        const Sources sources { it.getPositionIndex(corner), it.getNormalIndex(corner),
                                it.getColorIndex(corner), it.getTexCoordsIndex(corner) };
        if (isSingle(sources)) {
            return single(it, corner, sources);
        }
        const auto found = known.find(sources);
        if (found != known.end()) {
            return found->second;
        }
        const osg::Vec3f n = it.getNormal(corner);
        const osg::UInt32 index = append(it, corner, { n.x(), n.y(), n.z() });
        known.emplace(sources, index);
        return index;
    }

    /// Whether all properties that exist use the position's index.
    static bool isSingle(const Sources& sources)
    {
        return sources[0] >= 0 &&
            std::all_of(sources.begin(), sources.end(), [&sources](osg::Int32 source) {
                   return source == sources[0] || source < 0;
               });
    }

    /// With one index for everything a table by index takes the place of the hash.
    osg::UInt32 single(const osg::TriangleIterator& it, osg::Int32 corner, const Sources& sources)
    {
        constexpr osg::UInt32 kUnknown = 0xffffffff;
        const auto at = static_cast<std::size_t>(sources[0]);
        if (at >= geometry->getPositions()->getSize()) {
            return append(it, corner, {});
        }
        if (byPosition.empty()) {
            byPosition.assign(geometry->getPositions()->getSize(), kUnknown);
        }
        if (byPosition[at] == kUnknown) {
            const osg::Vec3f n = it.getNormal(corner);
            byPosition[at] = append(it, corner, { n.x(), n.y(), n.z() });
        }
        return byPosition[at];
    }

    osg::UInt32 append(const osg::TriangleIterator& it, osg::Int32 corner,
                       const std::array<float, 3>& normal)
    {
        MeshVertex vertex;
        vertex.position = triple(it.getPosition(corner));
        vertex.normal = normal;
        vertex.color = readColor(geometry->getColors(), it.getColorIndex(corner));
        const osg::Vec2f texCoord = it.getTexCoords(corner);
        vertex.texCoord = { texCoord.x(), texCoord.y() };
        mesh.vertices.push_back(vertex);
        return static_cast<osg::UInt32>(mesh.vertices.size() - 1);
    }

    osg::GeometryPtr geometry;
    Mesh& mesh;
    bool flat;
    std::unordered_map<Sources, osg::UInt32, boost::hash<Sources>> known;
    std::vector<osg::UInt32> byPosition;
};

void collectLines(const osg::GeometryPtr& geometry, Mesh& mesh)
{
    const osg::LineIterator end = geometry->endLines();
    for (osg::LineIterator it = geometry->beginLines(); it != end; ++it) {
        for (osg::Int32 side = 0; side < 2; ++side) {
            mesh.lines.push_back({ triple(it.getPosition(side)),
                                   readColor(geometry->getColors(), it.getColorIndex(side)) });
        }
    }
}

void collectPoints(const osg::GeometryPtr& geometry, Mesh& mesh)
{
    const osg::PrimitiveIterator end = geometry->endPrimitives();
    for (osg::PrimitiveIterator it = geometry->beginPrimitives(); it != end; ++it) {
        if (it.getType() != GL_POINTS) {
            continue;
        }
        for (osg::Int32 i = 0; i < static_cast<osg::Int32>(it.getLength()); ++i) {
            mesh.points.push_back({ triple(it.getPosition(i)),
                                    readColor(geometry->getColors(), it.getColorIndex(i)) });
        }
    }
}

}  // namespace

Mesh buildMesh(const osg::GeometryPtr& geometry)
{
    Mesh mesh;
    if (geometry == osg::NullFC || geometry->getPositions() == osg::NullFC) {
        return mesh;
    }
    mesh.hasColors = geometry->getColors() != osg::NullFC && geometry->getColors()->getSize() > 0;
    mesh.hasTexCoords =
        geometry->getTexCoords() != osg::NullFC && geometry->getTexCoords()->getSize() > 0;
    TriangleCollector(geometry, mesh).run();
    collectLines(geometry, mesh);
    collectPoints(geometry, mesh);
    return mesh;
}

osg::UInt64 geometryStamp(const osg::GeometryPtr& geometry)
{
    if (geometry == osg::NullFC) {
        return 0;
    }
    osg::ContentStamp stamp(geometry->getType().getPrototype());
    stamp.add(geometry->getTypes());
    stamp.add(geometry->getLengths());
    stamp.add(geometry->getPositions());
    stamp.add(geometry->getNormals());
    stamp.add(geometry->getColors());
    stamp.add(geometry->getTexCoords());
    stamp.add(geometry->getIndices());
    for (const osg::UInt16 entry : *geometry->getMFIndexMapping()) {
        stamp.add(osg::UInt64(entry));
    }
    return stamp.get();
}

}  // namespace nbrender
