// SPDX-License-Identifier: MIT
#include "viewer/core/Shapes.h"

#include "viewer/core/StartScene.h"

#include <gtest/gtest.h>

#include <cmath>

namespace viewer {
namespace {

using Double3 = std::array<double, 3>;

Double3 corner(const MeshData& mesh, std::size_t triangle, std::size_t i)
{
    const Vec3& p = mesh.positions[mesh.triangles[3 * triangle + i]];
    return { p[0], p[1], p[2] };
}

/// Volume that the triangles enclose; positive if they face outwards.
double enclosedVolume(const MeshData& mesh)
{
    double sum = 0.0;
    for (std::size_t t = 0; t < mesh.triangles.size() / 3; ++t) {
        const Double3 a = corner(mesh, t, 0);
        const Double3 b = corner(mesh, t, 1);
        const Double3 c = corner(mesh, t, 2);
        sum += a[0] * (b[1] * c[2] - b[2] * c[1]) + a[1] * (b[2] * c[0] - b[0] * c[2]) +
            a[2] * (b[0] * c[1] - b[1] * c[0]);
    }
    return sum / 6.0;
}

TEST(Shapes, StartSceneStandsOnItsTableWithUnitNormals)
{
    const ModelData scene = makeStartScene();

    EXPECT_GT(scene.triangleCount(), 10000U);
    EXPECT_EQ(scene.root.children.size(), scene.meshes.size());
    for (const MeshData& mesh : scene.meshes) {
        EXPECT_GT(enclosedVolume(mesh), 0.0) << mesh.name.toStdString();
        for (const Vec3& n : mesh.normals) {
            ASSERT_NEAR(std::hypot(n[0], n[1], n[2]), 1.0, 1e-3) << mesh.name.toStdString();
        }
    }
}

}  // namespace
}  // namespace viewer
