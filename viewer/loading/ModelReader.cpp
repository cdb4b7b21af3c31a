// SPDX-License-Identifier: MIT
#include "viewer/loading/ModelReader.h"

#include "viewer/loading/ModelConversion.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/texts/Text.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <exception>

#include <assimp/Importer.hpp>
#include <assimp/ProgressHandler.hpp>
#include <assimp/config.h>
#include <assimp/postprocess.h>
#include <assimp/scene.h>
#include <assimp/version.h>

namespace viewer {
namespace {

/// Surfaces that meet at a sharper angle than this keep an edge, degrees.
constexpr float kCreaseAngleDeg = 50.0F;

constexpr float kPictureHeight = 2.0F;

const char* const kModelEndings[] = { "obj", "ply", "stl", "gltf", "glb",
                                      "3ds", "dae", "fbx", "off",  "x3d" };
const char* const kPictureEndings[] = { "png", "jpg", "jpeg", "bmp", "gif", "ppm" };

bool isPictureName(const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    for (const char* known : kPictureEndings) {
        if (ending == QLatin1String(known)) {
            return true;
        }
    }
    return false;
}

/// Hands the importer's progress on.
class Progress : public Assimp::ProgressHandler
{
public:
    explicit Progress(ReadProgress target)
        : report(std::move(target))
    { }

    bool Update(float fraction) override
    {
        // The importer says -1 when it does not know.
        if (report && fraction >= 0.0F) {
            goOn = report(fraction) && goOn;
        }
        return goOn;
    }

    bool isCancelled() const { return !goOn; }

private:
    ReadProgress report;
    bool goOn = true;
};

bool hasEnding(const QString& path, const char* ending)
{
    return QFileInfo(path).suffix().compare(QLatin1String(ending), Qt::CaseInsensitive) == 0;
}

unsigned importFlags(const QString& path, Assimp::Importer& importer)
{
    unsigned flags = aiProcess_Triangulate | aiProcess_JoinIdenticalVertices |
        aiProcess_GenSmoothNormals | aiProcess_SortByPType | aiProcess_FindInvalidData |
        aiProcess_GenUVCoords | aiProcess_TransformUVCoords | aiProcess_ValidateDataStructure;
    importer.SetPropertyInteger(AI_CONFIG_PP_SBP_REMOVE,
                                aiPrimitiveType_POINT | aiPrimitiveType_LINE);
    importer.SetPropertyFloat(AI_CONFIG_PP_GSN_MAX_SMOOTHING_ANGLE, kCreaseAngleDeg);
    // An STL file has one normal for each triangle, which would make every surface look faceted.
    if (hasEnding(path, "stl")) {
        importer.SetPropertyInteger(AI_CONFIG_PP_RVC_FLAGS, aiComponent_NORMALS);
        flags |= aiProcess_RemoveComponent;
    }
    return flags;
}

std::optional<ModelData> fail(const QString& path, const QString& what, QString& error)
{
    error = QStringLiteral("%1: %2").arg(path, what.simplified());
    return std::nullopt;
}

/// Whether the header of a PLY file reaches its end; the importer would look for it for ever.
bool isPlyHeaderWhole(const QString& path)
{
    constexpr qint64 kLongestLine = 65536;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    while (!file.atEnd()) {
        // Files of old systems end their lines with a carriage return alone.
        if (file.readLine(kLongestLine).contains("end_header")) {
            return true;
        }
    }
    return false;
}

/// Files that are cut short may have faces without corners, which end the importer's program.
bool hasEmptyFaces(const aiScene& scene)
{
    const auto isEmpty = [](const aiFace& face) { return face.mNumIndices == 0; };
    return std::any_of(
        scene.mMeshes, scene.mMeshes + scene.mNumMeshes, [&isEmpty](const aiMesh* mesh) {
            return std::any_of(mesh->mFaces, mesh->mFaces + mesh->mNumFaces, isEmpty);
        });
}

std::optional<ModelData> readWithImporter(const QString& path, const ReadProgress& report,
                                          QString& error)
{
    if (hasEnding(path, "ply") && !isPlyHeaderWhole(path)) {
        return fail(path, Text::tr("cannot be read as a model: its header has no end"), error);
    }
    Assimp::Importer importer;
    auto* progress = new Progress(report);
    importer.SetProgressHandler(progress);  // which owns it
    const unsigned flags = importFlags(path, importer);
    const aiScene* scene =
        importer.ReadFile(QFile::encodeName(path).constData(), aiProcess_ValidateDataStructure);
    if (scene != nullptr && hasEmptyFaces(*scene)) {
        return fail(path, Text::tr("cannot be read as a model: it has faces without corners"),
                    error);
    }
    if (scene != nullptr) {
        scene = importer.ApplyPostProcessing(flags);
    }
    if (progress->isCancelled()) {
        return fail(path, Text::tr("reading was stopped"), error);
    }
    if (scene == nullptr || scene->mRootNode == nullptr) {
        const QString reason = QString::fromUtf8(importer.GetErrorString()).section('\n', 0, 0);
        return fail(path, Text::tr("cannot be read as a model: %1").arg(reason), error);
    }
    ModelData model = convertScene(*scene, path);
    if (model.triangleCount() == 0) {
        return fail(path, Text::tr("holds no surface"), error);
    }
    return model;
}

std::optional<ModelData> pictureModel(const QString& path, QString& error)
{
    const QImage picture = decodePictureFile(path, error);
    if (picture.isNull()) {
        return std::nullopt;
    }
    const float halfHeight = kPictureHeight / 2.0F;
    const float halfWidth =
        halfHeight * static_cast<float>(picture.width()) / static_cast<float>(picture.height());
    MeshData mesh;
    mesh.positions = { { -halfWidth, 0, 0 },
                       { halfWidth, 0, 0 },
                       { halfWidth, kPictureHeight, 0 },
                       { -halfWidth, kPictureHeight, 0 } };
    mesh.normals.assign(4, Vec3 { 0, 0, 1 });
    mesh.texCoords = { { 0, 0 }, { 1, 0 }, { 1, 1 }, { 0, 1 } };
    mesh.triangles = { 0, 1, 2, 0, 2, 3 };
    MaterialData material;
    material.diffuse = { 1, 1, 1 };
    material.texture = picture;
    ModelData model;
    model.meshes.push_back(mesh);
    model.materials.push_back(material);
    model.root.meshes = { 0 };
    return model;
}

}  // namespace

std::optional<ModelData> readModelFile(const QString& path, const ReadProgress& progress,
                                       QString& error)
{
    const QFileInfo info(path);
    if (!info.isFile()) {
        return fail(path, info.exists() ? Text::tr("not a file") : Text::tr("no such file"), error);
    }
    try {
        std::optional<ModelData> model = isPictureName(path)
            ? pictureModel(path, error)
            : readWithImporter(path, progress, error);
        if (model) {
            model->root.name = info.completeBaseName();
            model->file = info.absoluteFilePath();
        }
        return model;
    } catch (const std::exception& problem) {
        // A damaged file may state sizes that no memory can hold.
        return fail(path, Text::tr("cannot be read: %1").arg(QString::fromUtf8(problem.what())),
                    error);
    }
}

QString modelFileFilter()
{
    QStringList patterns;
    for (const char* ending : kModelEndings) {
        patterns.append(QStringLiteral("*.") + QLatin1String(ending));
    }
    for (const char* ending : kPictureEndings) {
        patterns.append(QStringLiteral("*.") + QLatin1String(ending));
    }
    return Text::tr("Models and pictures (%1);;All files (*)").arg(patterns.join(' '));
}

QString modelLibraryVersion()
{
    return QStringLiteral("Assimp %1.%2.%3")
        .arg(aiGetVersionMajor())
        .arg(aiGetVersionMinor())
        .arg(aiGetVersionPatch());
}

bool isModelFileName(const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    for (const char* known : kModelEndings) {
        if (ending == QLatin1String(known)) {
            return true;
        }
    }
    return isPictureName(path);
}

}  // namespace viewer
