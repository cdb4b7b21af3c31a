// SPDX-License-Identifier: MIT
#include "viewer/reader/ModelExport.h"

#include <QBuffer>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>
#include <memory>

#include <assimp/Exporter.hpp>
#include <assimp/material.h>
#include <assimp/scene.h>

namespace viewer {
namespace {

/// Linear value of one of the screen, by the sRGB curve.
float decoded(float shown)
{
    constexpr float kKnee = 0.04045F;
    constexpr float kSlope = 12.92F;
    constexpr float kScale = 1.055F;
    constexpr float kOffset = 0.055F;
    constexpr float kExponent = 2.4F;
    return shown <= kKnee ? shown / kSlope : std::pow((shown + kOffset) / kScale, kExponent);
}

aiString text(const QString& source)
{
    return aiString(source.toStdString());
}

/// Arrays of the importer's own, which it deletes.
template <class Value, class Source, class Convert>
Value* arrayOf(const std::vector<Source>& source, Convert convert)
{
    auto* const values = new Value[source.size()];
    std::transform(source.begin(), source.end(), values, convert);
    return values;
}

class Export
{
public:
    Export(const ModelData& source, const QString& target)
        : model(source)
        , file(target)
        , isGltf(target.endsWith(QLatin1String("gltf")) || target.endsWith(QLatin1String("glb")))
    { }

    std::unique_ptr<aiScene> scene()
    {
        auto made = std::make_unique<aiScene>();
        made->mNumMaterials = static_cast<unsigned>(model.materials.size());
        made->mMaterials = arrayOf<aiMaterial*>(
            model.materials, [this](const MaterialData& material) { return convert(material); });
        made->mNumMeshes = static_cast<unsigned>(model.meshes.size());
        made->mMeshes = arrayOf<aiMesh*>(model.meshes, &Export::convertMesh);
        made->mRootNode = convertNode(model.root);
        made->mNumTextures = static_cast<unsigned>(textures.size());
        made->mTextures = arrayOf<aiTexture*>(textures, [](aiTexture* texture) { return texture; });
        return made;
    }

private:
    aiMaterial* convert(const MaterialData& source)
    {
        auto* const material = new aiMaterial;
        const auto setColor = [&](const Rgb& rgb, const char* key, unsigned type, unsigned index) {
            const auto shown = [this](float part) { return isGltf ? decoded(part) : part; };
            const aiColor3D color(shown(rgb[0]), shown(rgb[1]), shown(rgb[2]));
            material->AddProperty(&color, 1, key, type, index);
        };
        const aiString name = text(source.name);
        material->AddProperty(&name, AI_MATKEY_NAME);
        setColor(source.diffuse, AI_MATKEY_COLOR_DIFFUSE);
        setColor(source.specular, AI_MATKEY_COLOR_SPECULAR);
        setColor(source.emission, AI_MATKEY_COLOR_EMISSIVE);
        material->AddProperty(&source.shininess, 1, AI_MATKEY_SHININESS);
        material->AddProperty(&source.opacity, 1, AI_MATKEY_OPACITY);
        if (!source.texture.isNull()) {
            const aiString picture = text(addTexture(source.texture));
            material->AddProperty(&picture, AI_MATKEY_TEXTURE_DIFFUSE(0));
        }
        return material;
    }

    /// @return what the material calls it
    QString addTexture(const QImage& picture)
    {
        const int number = pictures++;
        if (!isGltf) {
            const QString name =
                QStringLiteral("%1-%2.png").arg(QFileInfo(file).completeBaseName()).arg(number);
            picture.save(QFileInfo(file).dir().filePath(name));
            return name;
        }
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        picture.save(&buffer, "PNG");
        auto* const texture = new aiTexture;
        texture->mWidth = static_cast<unsigned>(png.size());
        texture->pcData = new aiTexel[static_cast<std::size_t>(png.size()) / sizeof(aiTexel) + 1];
        std::memcpy(texture->pcData, png.constData(), static_cast<std::size_t>(png.size()));
        std::strcpy(texture->achFormatHint, "png");
        textures.push_back(texture);
        return QStringLiteral("*%1").arg(textures.size() - 1);
    }

    static aiMesh* convertMesh(const MeshData& source)
    {
        const auto vector = [](const Vec3& v) { return aiVector3D(v[0], v[1], v[2]); };
        auto* const mesh = new aiMesh;
        mesh->mName = text(source.name);
        mesh->mPrimitiveTypes = aiPrimitiveType_TRIANGLE;
        mesh->mMaterialIndex = static_cast<unsigned>(source.material);
        mesh->mNumVertices = static_cast<unsigned>(source.positions.size());
        mesh->mVertices = arrayOf<aiVector3D>(source.positions, vector);
        if (!source.normals.empty()) {
            mesh->mNormals = arrayOf<aiVector3D>(source.normals, vector);
        }
        if (!source.texCoords.empty()) {
            mesh->mTextureCoords[0] = arrayOf<aiVector3D>(
                source.texCoords, [](const auto& t) { return aiVector3D(t[0], t[1], 0.0F); });
            mesh->mNumUVComponents[0] = 2;
        }
        mesh->mNumFaces = static_cast<unsigned>(source.triangles.size() / 3);
        mesh->mFaces = new aiFace[mesh->mNumFaces];
        for (std::size_t i = 0; i < mesh->mNumFaces; ++i) {
            mesh->mFaces[i].mNumIndices = 3;
            mesh->mFaces[i].mIndices = new unsigned[3];
            std::copy_n(source.triangles.begin() + static_cast<std::ptrdiff_t>(3 * i), 3,
                        mesh->mFaces[i].mIndices);
        }
        return mesh;
    }

    aiNode* convertNode(const NodeData& source)
    {
        auto* const node = new aiNode;
        node->mName = text(source.name);
        const MatrixValues& m = source.matrix;
        // Row after row.
        node->mTransformation = aiMatrix4x4(m[0], m[4], m[8], m[12], m[1], m[5], m[9], m[13], m[2],
                                            m[6], m[10], m[14], m[3], m[7], m[11], m[15]);
        node->mNumMeshes = static_cast<unsigned>(source.meshes.size());
        node->mMeshes = arrayOf<unsigned>(
            source.meshes, [](std::size_t mesh) { return static_cast<unsigned>(mesh); });
        node->mNumChildren = static_cast<unsigned>(source.children.size());
        node->mChildren = arrayOf<aiNode*>(source.children, [this, node](const NodeData& child) {
            aiNode* const made = convertNode(child);
            made->mParent = node;
            return made;
        });
        return node;
    }

    const ModelData& model;
    QString file;
    bool isGltf;
    int pictures = 0;
    std::vector<aiTexture*> textures;
};

}  // namespace

bool exportModel(const ModelData& model, const QString& path, QString& error)
{
    static const std::map<QString, const char*> kKinds {
        { "obj", "obj" }, { "glb", "glb2" }, { "gltf", "gltf2" }, { "ply", "ply" }, { "stl", "stl" }
    };
    const auto kind = kKinds.find(QFileInfo(path).suffix().toLower());
    Assimp::Exporter exporter;
    const std::unique_ptr<aiScene> scene = Export(model, path).scene();
    if (kind == kKinds.end() ||
        exporter.Export(scene.get(), kind->second, path.toStdString()) != AI_SUCCESS) {
        error = QString::fromUtf8(exporter.GetErrorString());
        return false;
    }
    return true;
}

}  // namespace viewer
