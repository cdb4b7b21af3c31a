// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace viewer {

using Vec3 = std::array<float, 3>;
/// 4x4, column vectors, column after column.
constexpr std::size_t kMatrixSize = 16;
using MatrixValues = std::array<float, kMatrixSize>;
using Rgb = std::array<float, 3>;  ///< red, green, blue, 0 .. 1, as they reach the screen

/// Surface of one material, as plain arrays; all but `triangles` have one entry per vertex or none
/// at all.
struct MeshData
{
    QString name;
    std::vector<Vec3> positions;  ///< in the frame of the node that holds the mesh
    std::vector<Vec3> normals;  ///< unit length
    std::vector<std::array<float, 2>>
        texCoords;  ///< (0, 0) is the lower left corner of the picture
    std::vector<std::array<std::uint8_t, 4>> colors;  ///< red, green, blue, alpha
    std::vector<std::uint32_t> triangles;  ///< vertex numbers, three for each
    std::size_t material = 0;  ///< index into ModelData::materials
};

/// Look of a surface.
struct MaterialData
{
    static constexpr float kPlainGrey = 0.7F;
    static constexpr float kPlainShininess = 20.0F;

    QString name;
    Rgb diffuse { kPlainGrey, kPlainGrey, kPlainGrey };
    Rgb specular { 0.0F, 0.0F, 0.0F };
    Rgb emission { 0.0F, 0.0F, 0.0F };
    float shininess = kPlainShininess;  ///< 1 .. 128
    float opacity = 1.0F;  ///< 0 invisible .. 1 opaque
    QImage texture;  ///< multiplied with diffuse; null for none
};

/// One node of a model's hierarchy.
struct NodeData
{
    QString name;
    /// Parent from node.
    MatrixValues matrix { 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1 };
    std::vector<std::size_t> meshes;  ///< indices into ModelData::meshes
    std::vector<NodeData> children;
};

/// A model as read from a file or made by code: values only, so that any thread may make one.
struct ModelData
{
    QString file;  ///< absolute, that it was read from; empty for one made by code
    QString builtIn;  ///< name of one that the program brings along; else empty
    std::vector<MaterialData> materials;
    std::vector<MeshData> meshes;
    NodeData root;
    QStringList warnings;  ///< one line each, about parts that could not be used

    std::size_t triangleCount() const
    {
        std::size_t count = 0;
        for (const MeshData& mesh : meshes) {
            count += mesh.triangles.size() / 3;
        }
        return count;
    }
};

}  // namespace viewer
