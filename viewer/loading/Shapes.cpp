// SPDX-License-Identifier: MIT
#include "viewer/loading/Shapes.h"

#include <OpenSG/OSGVector.h>

#include <algorithm>
#include <cmath>
#include <functional>

// NOLINTBEGIN(readability-magic-numbers): the coefficients of curves say nothing by a name.
namespace viewer {
namespace {

constexpr float kPi = 3.14159265F;
constexpr float kTwoPi = 2.0F * kPi;

/// Step of the differences that give normals, in parameters 0 .. 1.
constexpr float kDifference = 1e-3F;

using Vec2 = std::array<float, 2>;

/// A point of a curved surface for parameters u and v, each 0 .. 1.
using SurfaceFunction = std::function<osg::Vec3f(float u, float v)>;

/// How finely a surface is cut, and where its ends meet.
struct SurfaceGrid
{
    unsigned uSteps = 1;  ///< pieces along u, > 0
    unsigned vSteps = 1;  ///< pieces along v, > 0
    bool uCloses = false;  ///< u = 0 and u = 1 are the same place
    bool vCloses = false;
};

/// Unit vector; a vector without length comes back as it is.
osg::Vec3f unit(const osg::Vec3f& a)
{
    const float size = std::sqrt(a[0] * a[0] + a[1] * a[1] + a[2] * a[2]);
    return size > 0.0F ? a * (1.0F / size) : a;
}

/// Parameter beside another one, on the surface still.
float beside(float at, float step, bool closes)
{
    const float moved = at + step;
    return closes ? moved - std::floor(moved) : std::clamp(moved, 0.0F, 1.0F);
}

osg::Vec3f tangent(const SurfaceFunction& surface, const SurfaceGrid& grid, Vec2 at, bool alongU)
{
    const bool closes = alongU ? grid.uCloses : grid.vCloses;
    const auto place = [&](float step) {
        const float moved = beside(alongU ? at[0] : at[1], step, closes);
        return alongU ? surface(moved, at[1]) : surface(at[0], moved);
    };
    return place(kDifference) - place(-kDifference);
}

osg::Vec3f normalAt(const SurfaceFunction& surface, const SurfaceGrid& grid, float u, float v)
{
    // At a pole, where all u are one place, the normal is that of a place just beside it.
    const float margin = grid.vCloses ? 0.0F : 2.0F * kDifference;
    const Vec2 at { u, std::clamp(v, margin, 1.0F - margin) };
    return unit(tangent(surface, grid, at, true).cross(tangent(surface, grid, at, false)));
}

/// Point of the curve through four corners between the second and the third (Catmull-Rom), per
/// coordinate.
float through(float a, float b, float c, float d, float t)
{
    return 0.5F *
        (2.0F * b + (c - a) * t + (2.0F * a - 5.0F * b + 4.0F * c - d) * t * t +
         (3.0F * b - a - 3.0F * c + d) * t * t * t);
}

/// Point of the smooth curve through corners, t from 0 to 1 over all of them.
Vec2 curvePoint(const std::vector<Vec2>& corners, float t)
{
    const int last = static_cast<int>(corners.size()) - 1;
    const float place = t * static_cast<float>(last);
    const int piece = std::min(static_cast<int>(place), last - 1);
    const auto corner = [&](int i) {
        return corners[static_cast<std::size_t>(std::clamp(i, 0, last))];
    };
    Vec2 point {};
    for (std::size_t axis = 0; axis < 2; ++axis) {
        point[axis] = through(corner(piece - 1)[axis], corner(piece)[axis], corner(piece + 1)[axis],
                              corner(piece + 2)[axis], place - static_cast<float>(piece));
    }
    return point;
}

/// The profile cut at the corners that are given twice.
std::vector<std::vector<Vec2>> smoothParts(const std::vector<Vec2>& profile)
{
    std::vector<std::vector<Vec2>> parts(1);
    for (const Vec2& corner : profile) {
        if (!parts.back().empty() && parts.back().back() == corner) {
            parts.emplace_back();
        }
        parts.back().push_back(corner);
    }
    return parts;
}

/// Appends a surface to a mesh; normals come from differences along u and v and point to the side
/// from which u to v turns counter-clockwise.
void addSurface(const SurfaceFunction& surface, const SurfaceGrid& grid, MeshData& mesh)
{
    const auto first = static_cast<std::uint32_t>(mesh.positions.size());
    for (unsigned j = 0; j <= grid.vSteps; ++j) {
        for (unsigned i = 0; i <= grid.uSteps; ++i) {
            const float u = static_cast<float>(i) / static_cast<float>(grid.uSteps);
            const float v = static_cast<float>(j) / static_cast<float>(grid.vSteps);
            const osg::Vec3f place = surface(u, v);
            const osg::Vec3f normal = normalAt(surface, grid, u, v);
            mesh.positions.push_back({ place[0], place[1], place[2] });
            mesh.normals.push_back({ normal[0], normal[1], normal[2] });
        }
    }
    const std::uint32_t row = grid.uSteps + 1;
    for (std::uint32_t j = 0; j < grid.vSteps; ++j) {
        for (std::uint32_t i = 0; i < grid.uSteps; ++i) {
            const std::uint32_t corner = first + j * row + i;
            const std::uint32_t quad[] = { corner, corner + 1,       corner + 1 + row,
                                           corner, corner + 1 + row, corner + row };
            mesh.triangles.insert(mesh.triangles.end(), std::begin(quad), std::end(quad));
        }
    }
}

MeshData meshOf(const SurfaceFunction& surface, const SurfaceGrid& grid)
{
    MeshData mesh;
    addSurface(surface, grid, mesh);
    return mesh;
}

/// A closed surface around the origin. @param size  its distance at a turn about y and a rise, both
/// radians
MeshData makeRound(unsigned around, unsigned upwards,
                   const std::function<float(float turn, float rise)>& size)
{
    const auto place = [&size](float u, float v) {
        const float turn = kTwoPi * u;
        const float rise = kPi * (v - 0.5F);
        const float ring = size(turn, rise) * std::cos(rise);
        return osg::Vec3f { ring * std::sin(turn), size(turn, rise) * std::sin(rise),
                            ring * std::cos(turn) };
    };
    return meshOf(place, { around, upwards, true, false });
}

}  // namespace

MeshData makeLathe(const std::vector<Vec2>& profile, unsigned steps)
{
    constexpr unsigned kStepsPerCorner = 6;
    MeshData mesh;
    for (const std::vector<Vec2>& part : smoothParts(profile)) {
        if (part.size() < 2) {
            continue;
        }
        const bool straight = part.size() == 2;
        const unsigned vSteps = straight ? 1U : kStepsPerCorner * unsigned(part.size() - 1);
        const auto turned = [&part](float u, float v) {
            const Vec2 point = curvePoint(part, v);
            const float radius = std::max(point[0], 0.0F);
            return osg::Vec3f { radius * std::sin(kTwoPi * u), point[1],
                                radius * std::cos(kTwoPi * u) };
        };
        addSurface(turned, { steps, vSteps, true, false }, mesh);
    }
    return mesh;
}

MeshData makeTorusKnot(float ringRadius, float tubeRadius)
{
    constexpr float kTurns = 2.0F;
    constexpr float kWindings = 3.0F;
    constexpr float kDepth = 0.42F;  // of the ring's radius
    const auto spine = [ringRadius](float t) {
        const float turn = kTwoPi * kTurns * t;
        const float winding = kTwoPi * kWindings * t;
        const float radius = ringRadius * (1.0F + kDepth * std::cos(winding));
        return osg::Vec3f { radius * std::cos(turn),
                            ringRadius * kDepth * 1.25F * std::sin(winding),
                            radius * std::sin(turn) };
    };
    const auto tube = [&](float u, float v) {
        const osg::Vec3f centre = spine(v);
        const osg::Vec3f along = unit(spine(v + kDifference) - spine(v - kDifference));
        // The spine never runs along the way to the axis, so this frame has no twist and no gap.
        const osg::Vec3f outwards = unit(osg::Vec3f { centre[0], 0.0F, centre[2] });
        const osg::Vec3f side = unit(along.cross(outwards));
        const osg::Vec3f top = side.cross(along);
        const float angle = kTwoPi * u;
        return centre + top * (tubeRadius * std::cos(angle)) +
            side * (tubeRadius * std::sin(angle));
    };
    return meshOf(tube, { 40, 360, true, true });
}

MeshData makeBlob(float radius)
{
    return makeRound(128, 72, [radius](float turn, float rise) {
        const float y = std::sin(rise);
        const float around = std::cos(rise);
        // Waves that vanish at the poles, so that the surface stays closed there.
        const float waves = 0.16F * around * around * std::sin(3.0F * turn + 2.4F * y) +
            0.09F * around * around * around * std::cos(2.0F * turn - 4.0F * y) +
            0.08F * std::sin(3.1F * y);
        return radius * (1.0F + waves);
    });
}

MeshData makeBall(float radius)
{
    return makeRound(64, 32, [radius](float, float) { return radius; });
}

MeshData makeTwistedColumn(float halfWidth, float height)
{
    constexpr float kTwist = 0.75F * kPi;
    // A superellipse: the higher the power, the sharper the edges.
    constexpr float kPower = 5.0F;
    const auto section = [halfWidth](float angle) {
        const float x = std::abs(std::cos(angle));
        const float z = std::abs(std::sin(angle));
        return halfWidth * std::pow(std::pow(x, kPower) + std::pow(z, kPower), -1.0F / kPower);
    };
    const auto side = [&](float u, float v) {
        const float angle = kTwoPi * u;
        const float size = section(angle) * (1.0F - 0.28F * v);
        const float turned = angle + kTwist * v;
        return osg::Vec3f { size * std::sin(turned), height * v, size * std::cos(turned) };
    };
    const auto lid = [&](float u, float v) {
        const osg::Vec3f rim = side(u, 1.0F);
        return osg::Vec3f { rim[0] * (1.0F - v), height, rim[2] * (1.0F - v) };
    };
    MeshData mesh = meshOf(side, { 96, 96, true, false });
    addSurface(lid, { 96, 1, true, false }, mesh);
    return mesh;
}

}  // namespace viewer

// NOLINTEND(readability-magic-numbers)
