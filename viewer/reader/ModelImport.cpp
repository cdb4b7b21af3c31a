// SPDX-License-Identifier: MIT
#include "viewer/reader/ModelImport.h"

#include "viewer/loading/ModelFiles.h"
#include "viewer/loading/PictureDecoding.h"
#include "viewer/reader/ModelConversion.h"
#include "viewer/texts/FileRules.h"
#include "viewer/texts/Text.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <functional>
#include <new>

#include <assimp/DefaultIOSystem.h>
#include <assimp/Importer.hpp>
#include <assimp/MemoryIOWrapper.h>
#include <assimp/ProgressHandler.hpp>
#include <assimp/config.h>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

namespace viewer {
namespace {

/// Surfaces that meet at a sharper angle than this keep an edge, degrees.
constexpr float kCreaseAngleDeg = 50.0F;

constexpr float kPictureHeight = 2.0F;

/// Hands the importer's progress on.
class Progress : public Assimp::ProgressHandler
{
public:
    explicit Progress(std::function<void(double)> target)
        : report(std::move(target))
    { }

    bool Update(float fraction) override
    {
        // The importer says -1 when it does not know.
        if (fraction >= 0.0F) {
            report(fraction);
        }
        return true;
    }

private:
    std::function<void(double)> report;
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

std::optional<ModelData> fail(const QString& what, QString& error)
{
    error = oneLine(what.simplified());
    return std::nullopt;
}

/// Goes past a mark of UTF-8, which the importer would take for a part of the first word.
bool skipMark(QFile& file)
{
    return file.peek(3) == "\xef\xbb\xbf" && file.seek(3);
}

/// Opens what a model file refers to: regular files, and none to be written.
class Files : public Assimp::DefaultIOSystem
{
public:
    /// The importer's own opens the file, which waits at a pipe.
    bool Exists(const char* file) const override
    {
        QString error;
        return isReadable(QFile::decodeName(file), error);
    }

    Assimp::IOStream* Open(const char* file, const char* mode) override
    {
        const bool isAllowed = std::strchr(mode, 'r') != nullptr && Exists(file);
        QFile text(QFile::decodeName(file));
        if (isAllowed && text.open(QIODevice::ReadOnly) && skipMark(text)) {
            const QByteArray rest = text.readAll();
            auto* const bytes = new std::uint8_t[rest.size()];
            std::copy(rest.begin(), rest.end(), bytes);
            return new Assimp::MemoryIOStream(bytes, rest.size(), true);  // which owns them
        }
        return isAllowed ? Assimp::DefaultIOSystem::Open(file, mode) : nullptr;
    }
};

/// Whether the header of a PLY file reaches its end; the importer would look for it for ever.
bool isPlyHeaderWhole(const QString& path)
{
    constexpr qint64 kLongestHeader = 1 << 20;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(kLongestHeader).contains("end_header");
}

/// Number of the first line of an OBJ file that names a vertex that there is not; 0 for none.
int findLostCorner(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    skipMark(file);
    QByteArrayList lines = file.readAll().split('\n');
    const auto vertices = std::count_if(lines.begin(), lines.end(), [](const QByteArray& line) {
        return line.startsWith("v ") || line.startsWith("v\t");
    });
    const auto isLost = [vertices](const QByteArray& corner) {
        const int index = corner.split('/').first().toInt();
        return index == 0 || std::abs(index) > vertices;
    };
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArrayList words = lines[i].simplified().split(' ');
        if (words.first() == "f" && std::any_of(words.begin() + 1, words.end(), isLost)) {
            return i + 1;
        }
    }
    return 0;
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

std::optional<ModelData> readWithImporter(const QString& path,
                                          const std::function<void(double)>& report, QString& error)
{
    if (hasEnding(path, "ply") && !isPlyHeaderWhole(path)) {
        return fail(Text::tr("cannot be read as a model: its header has no end"), error);
    }
    Assimp::Importer importer;
    importer.SetProgressHandler(new Progress(report));  // which owns it
    importer.SetIOHandler(new Files);  // the same
    const unsigned flags = importFlags(path, importer);
    const aiScene* scene =
        importer.ReadFile(QFile::encodeName(path).constData(), aiProcess_ValidateDataStructure);
    if (scene != nullptr && hasEmptyFaces(*scene)) {
        return fail(Text::tr("cannot be read as a model: it has faces without corners"), error);
    }
    scene = scene != nullptr ? importer.ApplyPostProcessing(flags) : nullptr;
    if (scene == nullptr || scene->mRootNode == nullptr) {
        if (std::strstr(importer.GetErrorString(), "bad_alloc") != nullptr) {
            throw std::bad_alloc();
        }
        QString reason = QString::fromUtf8(importer.GetErrorString()).section('\n', 0, 0);
        const int line = hasEnding(path, "obj") ? findLostCorner(path) : 0;
        if (line > 0) {
            reason = Text::tr("line %1 names a vertex that there is not").arg(line);
        }
        return fail(Text::tr("cannot be read as a model: %1").arg(reason), error);
    }
    QString problem;
    ModelData model = convertScene(*scene, path, problem);
    if (problem.isEmpty() && model.triangleCount() == 0) {
        problem = Text::tr("holds no surface");
    }
    return problem.isEmpty() ? std::make_optional(std::move(model)) : fail(problem, error);
}

std::optional<ModelData> pictureModel(const QString& path, QString& error)
{
    const QImage picture = decodePictureFile(path, error);
    if (picture.isNull()) {
        return fail(error.mid(path.size() + 2), error);
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
    ModelData model;
    model.meshes.push_back(mesh);
    model.materials.resize(1);
    model.materials[0].diffuse = { 1, 1, 1 };
    model.materials[0].texture = picture;
    model.root.meshes = { 0 };
    return model;
}

}  // namespace

std::optional<ModelData> importModel(const QString& path,
                                     const std::function<void(double)>& progress, QString& error)
{
    try {
        return isPictureFileName(path) ? pictureModel(path, error)
                                       : readWithImporter(path, progress, error);
    } catch (const std::bad_alloc&) {
        return fail(Text::tr("cannot be read as a model: it would take too much memory"), error);
    } catch (const std::exception& problem) {
        return fail(Text::tr("cannot be read: %1").arg(QString::fromUtf8(problem.what())), error);
    }
}

}  // namespace viewer
