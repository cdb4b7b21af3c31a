// SPDX-License-Identifier: MIT
#include "viewer/reader/ModelConversion.h"

#include "viewer/commands/SceneLimits.h"
#include "viewer/loading/ModelRecords.h"
#include "viewer/loading/PictureDecoding.h"
#include "viewer/texts/Text.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

#include <assimp/material.h>
#include <assimp/mesh.h>
#include <assimp/scene.h>

namespace viewer {
namespace {

constexpr float kMaxShininess = 128.0F;

QString text(const aiString& name)
{
    return QString::fromUtf8(name.C_Str());
}

bool isFinite(const aiVector3D& v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

/// What nobody could use becomes zero.
Vec3 usable(const aiVector3D& v)
{
    const bool isUsable = isSceneNumber(v.x) && isSceneNumber(v.y) && isSceneNumber(v.z);
    return isUsable ? Vec3 { v.x, v.y, v.z } : Vec3 { 0, 0, 0 };
}

std::uint8_t byteOf(float component)
{
    constexpr float kMaxByte = 255.0F;
    if (!std::isfinite(component)) {
        return 0;
    }
    return static_cast<std::uint8_t>(std::lround(std::clamp(component, 0.0F, 1.0F) * kMaxByte));
}

/// Screen value of a linear one, by the sRGB curve.
float encoded(float linear)
{
    constexpr float kKnee = 0.0031308F;
    constexpr float kSlope = 12.92F;
    constexpr float kScale = 1.055F;
    constexpr float kOffset = 0.055F;
    constexpr float kExponent = 2.4F;
    const float x = std::clamp(linear, 0.0F, 1.0F);
    return x <= kKnee ? kSlope * x : kScale * std::pow(x, 1.0F / kExponent) - kOffset;
}

QImage embeddedPicture(const aiTexture& source, const QString& name, QString& problem)
{
    const auto* const bytes = reinterpret_cast<const char*>(source.pcData);
    constexpr unsigned kLongest = 1U << 30;
    if (source.mWidth > kLongest) {
        return {};
    }
    // Height 0 marks a compressed picture whose bytes are counted by the width.
    if (source.mHeight == 0) {
        QByteArray all = QByteArray::fromRawData(bytes, static_cast<int>(source.mWidth));
        QBuffer buffer(&all);
        buffer.open(QIODevice::ReadOnly);
        return decodePicture(buffer, name, problem);
    }
    const qint64 pixels = qint64(source.mWidth) * source.mHeight;
    return pixels * qint64(sizeof(aiTexel)) > pictureBudget()
        ? QImage()
        : QImage(reinterpret_cast<const uchar*>(bytes), static_cast<int>(source.mWidth),
                 static_cast<int>(source.mHeight), QImage::Format_ARGB32)
              .copy();
}

/// Makes a model of an imported scene.
class Conversion
{
public:
    Conversion(const aiScene& source, const QString& modelPath, QString& errorText)
        : scene(source)
        , path(modelPath)
        , error(errorText)
    {
        const QString ending = QFileInfo(path).suffix().toLower();
        linearColors = ending == "gltf" || ending == "glb";
    }

    ModelData run()
    {
        for (unsigned i = 0; i < scene.mNumMaterials; ++i) {
            model.materials.push_back(convert(*scene.mMaterials[i]));
        }
        if (model.materials.empty()) {
            model.materials.emplace_back();
        }
        for (unsigned i = 0; i < scene.mNumMeshes; ++i) {
            model.meshes.push_back(convert(*scene.mMeshes[i]));
        }
        model.root = convert(*scene.mRootNode, 0);
        if (brokenTriangles > 0) {
            model.warnings.append(Text::tr("%1: %n triangles without a finite place were left out",
                                           nullptr, static_cast<int>(brokenTriangles))
                                      .arg(path));
        }
        return std::move(model);
    }

private:
    template <class Numbers>
    void noteNumbers(const Numbers& numbers)
    {
        if (!std::all_of(numbers.begin(), numbers.end(), isSceneNumber<float>)) {
            error = Text::tr("it has places too far away");
        }
    }

    Rgb color(const aiMaterial& source, const char* key, unsigned type, unsigned index,
              const Rgb& fallback) const
    {
        aiColor3D value;
        if (source.Get(key, type, index, value) != AI_SUCCESS) {
            return fallback;
        }
        Rgb rgb { value.r, value.g, value.b };
        for (float& component : rgb) {
            component = std::isfinite(component) ? std::clamp(component, 0.0F, 1.0F) : 0.0F;
            component = linearColors ? encoded(component) : component;
        }
        return rgb;
    }

    QImage texture(const aiMaterial& source)
    {
        aiString name;
        if (source.GetTexture(aiTextureType_DIFFUSE, 0, &name) != AI_SUCCESS &&
            source.GetTexture(aiTextureType_BASE_COLOR, 0, &name) != AI_SUCCESS) {
            return {};
        }
        QImage picture;
        QString problem = QStringLiteral("%1: %2").arg(text(name), Text::tr("is no picture"));
        if (const aiTexture* embedded = scene.GetEmbeddedTexture(name.C_Str())) {
            picture = embeddedPicture(*embedded, text(name), problem);
        } else {
            const QString relative = text(name).replace('\\', '/');
            picture = decodePictureFile(QFileInfo(path).absoluteDir().absoluteFilePath(relative),
                                        problem);
        }
        if (picture.isNull()) {
            model.warnings.append(QStringLiteral("%1: %2").arg(path, problem));
        }
        return picture;
    }

    MaterialData convert(const aiMaterial& source)
    {
        MaterialData material;
        aiString name;
        if (source.Get(AI_MATKEY_NAME, name) == AI_SUCCESS) {
            material.name = text(name);
        }
        material.diffuse = color(source, AI_MATKEY_COLOR_DIFFUSE, material.diffuse);
        material.emission = color(source, AI_MATKEY_COLOR_EMISSIVE, material.emission);
        float value = 0.0F;
        if (source.Get(AI_MATKEY_SHININESS, value) == AI_SUCCESS && value >= 1.0F) {
            // Without an exponent a gloss would lie over the whole surface.
            material.specular = color(source, AI_MATKEY_COLOR_SPECULAR, material.specular);
            material.shininess = std::min(value, kMaxShininess);
        }
        // Some programs write 0 where they mean that nothing is transparent.
        if (source.Get(AI_MATKEY_OPACITY, value) == AI_SUCCESS && value > 0.0F && value <= 1.0F) {
            material.opacity = value;
        }
        material.texture = texture(source);
        return material;
    }

    void addTriangles(const aiMesh& source, MeshData& mesh)
    {
        for (unsigned i = 0; i < source.mNumFaces; ++i) {
            const aiFace& face = source.mFaces[i];
            if (face.mNumIndices != 3) {
                continue;
            }
            const bool usable =
                std::all_of(face.mIndices, face.mIndices + 3, [&source](unsigned vertex) {
                    return vertex < source.mNumVertices && isFinite(source.mVertices[vertex]);
                });
            if (!usable) {
                ++brokenTriangles;
                continue;
            }
            mesh.triangles.insert(mesh.triangles.end(), face.mIndices, face.mIndices + 3);
        }
    }

    MeshData convert(const aiMesh& source)
    {
        MeshData mesh;
        mesh.name = text(source.mName);
        mesh.material = std::min<std::size_t>(source.mMaterialIndex, model.materials.size() - 1);
        addTriangles(source, mesh);
        mesh.positions.reserve(source.mNumVertices);
        for (unsigned i = 0; i < source.mNumVertices; ++i) {
            const aiVector3D& p = source.mVertices[i];
            mesh.positions.push_back(isFinite(p) ? Vec3 { p.x, p.y, p.z } : Vec3 { 0, 0, 0 });
            noteNumbers(mesh.positions.back());
            if (source.HasNormals()) {
                mesh.normals.push_back(usable(source.mNormals[i]));
            }
            if (source.HasTextureCoords(0)) {
                const Vec3 place = usable(source.mTextureCoords[0][i]);
                mesh.texCoords.push_back({ place[0], place[1] });
            }
            if (source.HasVertexColors(0)) {
                const aiColor4D& c = source.mColors[0][i];
                mesh.colors.push_back({ byteOf(c.r), byteOf(c.g), byteOf(c.b), byteOf(c.a) });
            }
        }
        return mesh;
    }

    NodeData convert(const aiNode& source, int depth)
    {
        NodeData node;
        if (depth > kDeepestNode) {
            error = Text::tr("its nodes are nested too deeply");
            return node;
        }
        node.name = text(source.mName);
        aiMatrix4x4 matrix = source.mTransformation;
        matrix.Transpose();  // the importer's memory goes row by row
        const float* values = &matrix.a1;
        if (std::all_of(values, values + kMatrixSize,
                        [](float value) { return std::isfinite(value); })) {
            std::copy(values, values + kMatrixSize, node.matrix.begin());
            noteNumbers(node.matrix);
        }
        for (unsigned i = 0; i < source.mNumMeshes; ++i) {
            if (source.mMeshes[i] < model.meshes.size() &&
                !model.meshes[source.mMeshes[i]].triangles.empty()) {
                node.meshes.push_back(source.mMeshes[i]);
            }
        }
        for (unsigned i = 0; i < source.mNumChildren; ++i) {
            node.children.push_back(convert(*source.mChildren[i], depth + 1));
        }
        return node;
    }

    const aiScene& scene;
    QString path;
    QString& error;
    bool linearColors = false;
    std::size_t brokenTriangles = 0;
    ModelData model;
};

}  // namespace

ModelData convertScene(const aiScene& scene, const QString& path, QString& error)
{
    return Conversion(scene, path, error).run();
}

}  // namespace viewer
