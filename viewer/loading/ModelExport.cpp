// SPDX-License-Identifier: MIT
#include "viewer/loading/ModelExport.h"

#include "viewer/texts/FileRules.h"
#include "viewer/texts/Text.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGRenderAction/Mesh.h>
#include <nbOpenSGRenderAction/nbImageConvert.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImage>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <map>
#include <memory>
#include <vector>

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

/// An array that the exporter's scene deletes.
template <class Value>
Value* arrayOf(const std::vector<Value>& values)
{
    auto* const copy = new Value[values.size()];
    std::copy(values.begin(), values.end(), copy);
    return copy;
}

/// Makes the exporter's scene of the one that is shown.
class Export
{
public:
    /// @param pictureFiles  gets those that go beside the models, by name
    Export(const QFileInfo& target, std::map<QString, QByteArray>& pictureFiles)
        : file(target)
        , pictures(pictureFiles)
        , isGltf(file.suffix().startsWith(QLatin1String("gl")))
    { }

    std::unique_ptr<aiScene> scene()
    {
        auto made = std::make_unique<aiScene>();
        made->mRootNode = convert(nbScenegraph::getRootNode());
        made->mNumMeshes = static_cast<unsigned>(meshes.size());
        made->mMeshes = arrayOf(meshes);
        made->mNumMaterials = static_cast<unsigned>(materials.size());
        made->mMaterials = arrayOf(materials);
        made->mNumTextures = static_cast<unsigned>(textures.size());
        made->mTextures = arrayOf(textures);
        return made;
    }

private:
    aiNode* convert(const osg::NodePtr& node)
    {
        auto* const made = new aiNode(nbNodeUtils::getName(node));
        osg::Matrix local = node->getToWorld();
        if (node->getParent() != osg::NullFC) {
            node->getParent()->getToWorld().inverse(local);
            local.mult(node->getToWorld());
        }
        for (osg::UInt32 row = 0; row < 4; ++row) {
            for (osg::UInt32 column = 0; column < 4; ++column) {
                made->mTransformation[row][column] = local[column][row];
            }
        }
        addMesh(osg::GeometryPtr::dcast(node->getCore()), *made);
        std::vector<aiNode*> children;
        for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
            const osg::NodePtr child = node->getChild(i);
            if (child->getActive() && !nbNodeUtils::isAuxiliaryNode(child)) {
                children.push_back(convert(child));
                children.back()->mParent = made;
            }
        }
        made->mNumChildren = static_cast<unsigned>(children.size());
        made->mChildren = arrayOf(children);
        return made;
    }

    void addMesh(const osg::GeometryPtr& geometry, aiNode& node)
    {
        if (geometry == osg::NullFC) {
            return;
        }
        const auto known = meshNumbers.find(geometry.getFieldContainerId());
        if (known == meshNumbers.end()) {
            const nbrender::Mesh mesh = nbrender::buildMesh(geometry);
            if (mesh.triangles.empty()) {
                return;
            }
            meshNumbers[geometry.getFieldContainerId()] = static_cast<unsigned>(meshes.size());
            meshes.push_back(convert(mesh));
            meshes.back()->mName = node.mName;
            meshes.back()->mMaterialIndex = materialOf(geometry->getMaterial());
        }
        node.mNumMeshes = 1;
        node.mMeshes = new unsigned[1] { meshNumbers[geometry.getFieldContainerId()] };
    }

    static aiMesh* convert(const nbrender::Mesh& source)
    {
        auto* const mesh = new aiMesh;
        mesh->mPrimitiveTypes = aiPrimitiveType_TRIANGLE;
        mesh->mNumVertices = static_cast<unsigned>(source.vertices.size());
        mesh->mVertices = new aiVector3D[mesh->mNumVertices];
        mesh->mNormals = new aiVector3D[mesh->mNumVertices];
        if (source.hasTexCoords) {
            mesh->mTextureCoords[0] = new aiVector3D[mesh->mNumVertices];
            mesh->mNumUVComponents[0] = 2;
        }
        for (unsigned i = 0; i < mesh->mNumVertices; ++i) {
            const nbrender::MeshVertex& from = source.vertices[i];
            mesh->mVertices[i] = { from.position[0], from.position[1], from.position[2] };
            mesh->mNormals[i] = { from.normal[0], from.normal[1], from.normal[2] };
            if (source.hasTexCoords) {
                mesh->mTextureCoords[0][i] = { from.texCoord[0], from.texCoord[1], 0.0F };
            }
        }
        mesh->mNumFaces = static_cast<unsigned>(source.triangles.size() / 3);
        mesh->mFaces = new aiFace[mesh->mNumFaces];
        for (unsigned i = 0; i < mesh->mNumFaces; ++i) {
            mesh->mFaces[i].mNumIndices = 3;
            mesh->mFaces[i].mIndices = new unsigned[3];
            std::copy_n(&source.triangles[3U * i], 3, mesh->mFaces[i].mIndices);
        }
        return mesh;
    }

    unsigned materialOf(const osg::MaterialPtr& source)
    {
        const auto [known, isNew] =
            materialNumbers.emplace(source == osg::NullFC ? 0 : source.getFieldContainerId(),
                                    static_cast<unsigned>(materials.size()));
        if (isNew) {
            materials.push_back(new aiMaterial);
            const auto simple = osg::SimpleMaterialPtr::dcast(source);
            if (simple != osg::NullFC) {
                describe(simple, *materials.back());
            }
        }
        return known->second;
    }

    void describe(const osg::SimpleMaterialPtr& source, aiMaterial& target)
    {
        const auto setColor = [&](const osg::Color3f& color, const char* key, unsigned type,
                                  unsigned index) {
            aiColor3D parts(color[0], color[1], color[2]);
            for (unsigned i = 0; isGltf && i < 3; ++i) {
                parts[i] = decoded(parts[i]);
            }
            target.AddProperty(&parts, 1, key, type, index);
        };
        const auto setNumber = [&](float number, const char* key, unsigned type, unsigned index) {
            target.AddProperty(&number, 1, key, type, index);
        };
        const aiString name("material" + std::to_string(materials.size()));
        target.AddProperty(&name, AI_MATKEY_NAME);
        setColor(source->getDiffuse(), AI_MATKEY_COLOR_DIFFUSE);
        if (isGltf) {
            // The width of the highlight: a microfacet alpha of sqrt(2 / (n + 2)), which is the
            // square of the roughness.
            setNumber(0.0F, AI_MATKEY_METALLIC_FACTOR);
            setNumber(std::pow(2.0F / (source->getShininess() + 2.0F), 0.25F),
                      AI_MATKEY_ROUGHNESS_FACTOR);
        } else {
            setColor(source->getSpecular(), AI_MATKEY_COLOR_SPECULAR);
            setNumber(source->getShininess(), AI_MATKEY_SHININESS);
        }
        setNumber(1.0F - source->getTransparency(), AI_MATKEY_OPACITY);
        const auto texture =
            osg::TextureChunkPtr::dcast(source->find(osg::TextureChunk::getClassType()));
        if (texture != osg::NullFC) {
            const aiString reference(
                addPicture(nbImageConvert::toPicture(texture->getImage())).toStdString());
            target.AddProperty(&reference, AI_MATKEY_TEXTURE_DIFFUSE(0));
        }
    }

    /// @return what a material calls the picture
    QString addPicture(const QImage& picture)
    {
        QBuffer png;
        png.open(QIODevice::WriteOnly);
        picture.save(&png, "PNG");
        if (!isGltf) {
            const QString name =
                QStringLiteral("%1-%2.png").arg(file.completeBaseName()).arg(materials.size());
            pictures[name] = png.data();
            return name;
        }
        const auto size = static_cast<std::size_t>(png.size());
        textures.push_back(new aiTexture);
        textures.back()->mWidth = static_cast<unsigned>(size);
        textures.back()->pcData = new aiTexel[size / sizeof(aiTexel) + 1];
        std::memcpy(textures.back()->pcData, png.data().constData(), size);
        std::strcpy(textures.back()->achFormatHint, "png");
        return QStringLiteral("*%1").arg(textures.size() - 1);
    }

    QFileInfo file;
    std::map<QString, QByteArray>& pictures;
    bool isGltf;
    std::vector<aiMesh*> meshes;
    std::vector<aiMaterial*> materials;
    std::vector<aiTexture*> textures;
    std::map<osg::UInt32, unsigned> meshNumbers;  ///< by the ids of geometries
    std::map<osg::UInt32, unsigned> materialNumbers;  ///< by their ids
};

}  // namespace

QStringList exportEndings()
{
    return { "glb", "gltf", "obj", "ply", "stl" };
}

bool exportModels(const QString& path, QString& error)
{
    const auto fail = [&error](const QString& what) {
        error = oneLine(what);
        return false;
    };
    const QFileInfo target(path);
    const int kind = exportEndings().indexOf(target.suffix().toLower());
    if (kind < 0) {
        return fail(
            Text::tr("%1: models are exported to %2").arg(path, exportEndings().join(", ")));
    }
    std::map<QString, QByteArray> parts;
    const std::unique_ptr<aiScene> scene = Export(target, parts).scene();
    if (scene->mNumMeshes == 0) {
        return fail(Text::tr("there is nothing to export"));
    }
    // Made in memory and written when all of it is there: a full disk leaves what was there.
    Assimp::Exporter exporter;
    Assimp::ExportProperties properties;
    properties.SetPropertyString(AI_CONFIG_EXPORT_BLOB_NAME, target.fileName().toStdString());
    static constexpr const char* kKinds[] = { "glb2", "gltf2", "obj", "ply", "stl" };
    const aiExportDataBlob* made =
        exporter.ExportToBlob(scene.get(), kKinds[kind], 0U, &properties);
    if (made == nullptr) {
        return fail(QStringLiteral("%1: %2").arg(path, exporter.GetErrorString()));
    }
    for (; made != nullptr; made = made->next) {
        if (made->size > std::size_t(std::numeric_limits<int>::max())) {
            return fail(Text::tr("%1: cannot be written").arg(path));
        }
        const QString ending = QFileInfo(made->name.C_Str()).suffix();
        parts[ending.isEmpty() ? target.fileName() : target.completeBaseName() + '.' + ending] =
            QByteArray(static_cast<const char*>(made->data), static_cast<int>(made->size));
    }
    // Nobody was asked about what goes beside and is there without the models; links lead
    // elsewhere.
    for (const auto& entry : parts) {
        const QFileInfo part(target.dir(), entry.first);
        if (entry.first != target.fileName() &&
            (part.isSymLink() || (part.exists() && !target.exists()))) {
            return fail(
                Text::tr("%1: is there already and belongs to another file").arg(part.filePath()));
        }
    }
    return std::all_of(parts.begin(), parts.end(), [&](const auto& part) {
        return writeWhole(target.dir().filePath(part.first), part.second, error);
    });
}

}  // namespace viewer
