// SPDX-License-Identifier: MIT
#include "tests/fuzz/FilePlay.h"

#include "tests/support/ContainerCensus.h"
#include "viewer/loading/ModelRecords.h"
#include "viewer/loading/PictureDecoding.h"
#include "viewer/loading/Shapes.h"
#include "viewer/match/PerspectiveMatchTool.h"
#include "viewer/plates/PlatesTool.h"
#include "viewer/replay/Session.h"
#include "viewer/scenes/PreparedScene.h"
#include "viewer/scenes/SceneCapture.h"
#include "viewer/stage/Stage.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGRenderAction/nbImageConvert.h>

#include <OpenSG/OSGSimpleAttachments.h>

#include <QBuffer>

/// What Qt's reader of JSON has begun when a broken text stops it. Our own containers are counted.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libQt5Core\nleak:libQt6Core\n";
}

namespace viewer::test {
namespace {

/// Any model is this one: a sheared object with a surface, and a part of it.
ModelData standIn(const QString& file)
{
    ModelData model;
    model.file = file;
    model.materials.resize(1);
    model.meshes.push_back(makeBall(1.0F));
    model.meshes.back().name = QStringLiteral("Ball");
    model.root.name = QStringLiteral("Model");
    NodeData part;
    part.name = QStringLiteral("Part");
    part.matrix[4] = 0.5F;
    part.meshes = { 0 };
    NodeData inner;
    inner.name = QStringLiteral("Inner");
    part.children = { inner };
    model.root.children = { part };
    return model;
}

/// A scene and the one model and picture that there are; stand-ins for those that are empty.
struct Files
{
    explicit Files(const QByteArray& all)
    {
        const QByteArray between(kBetweenFiles);
        const int first = all.indexOf(between);
        const int second = first < 0 ? -1 : all.indexOf(between, first + between.size());
        scene = first < 0 ? all : all.left(first);
        model = second < 0 ? QByteArray() : all.mid(first + between.size(), second - first);
        picture = second < 0 ? QByteArray() : all.mid(second + between.size());
    }

    SceneAssets assets() const
    {
        return { [this](const QString& file, QString& error) { return modelOf(file, error); },
                 [this](const QString& file, QString& error) { return imageOf(file, error); } };
    }

    std::optional<BuiltModel> modelOf(const QString& file, QString& error) const
    {
        ModelAssembly assembly;
        const bool isSound = !model.isEmpty() && assembly.take(model) && assembly.isComplete();
        if (file.contains(QLatin1String("gone")) || (!model.isEmpty() && !isSound)) {
            error = QStringLiteral("gone");
            return std::nullopt;
        }
        ModelData data = isSound ? assembly.takeModel() : standIn(file);
        data.file = file;
        return buildModel(data);
    }

    osg::RefPtr<osg::ImagePtr> imageOf(const QString& file, QString& error) const
    {
        QBuffer buffer;
        buffer.setData(picture);
        buffer.open(QIODevice::ReadOnly);
        const QImage pixels = picture.isEmpty() ? QImage(2, 2, QImage::Format_RGB888)
                                                : decodePicture(buffer, file, error);
        osg::RefPtr<osg::ImagePtr> image(nbImageConvert::toImage(pixels));
        if (image != osg::NullFC) {
            osg::setName(image.get(), file.toStdString());
        }
        return image;
    }

    QByteArray scene;
    QByteArray model;
    QByteArray picture;
};

std::string refusal(const char* reader, const QString& error)
{
    const bool isOneLine = !error.isEmpty() && !error.contains(QLatin1Char('\n'));
    return isOneLine ? std::string() : std::string(reader) + " refuses without one line";
}

std::string playSession(const QByteArray& text)
{
    QString error;
    return parseSession(text, error) ? std::string() : refusal("the session reader", error);
}

std::string showAndSave(Stage& stage, const SceneDocument& document, const Files& files,
                        QByteArray& text)
{
    QString error;
    const std::unique_ptr<PreparedScene> scene =
        PreparedScene::prepare(document, files.assets(), error);
    if (!scene) {
        return refusal("the scene builder", error);
    }
    scene->show(stage);
    stage.update();
    const std::optional<SceneDocument> captured = captureScene(stage, error);
    if (!captured) {
        return "an opened scene cannot be saved: " + error.toStdString();
    }
    text = sceneText(*captured, QDir(QStringLiteral("/scenes")));
    return std::string();
}

std::string playScene(const QByteArray& text)
{
    const Files files(text);
    const QDir folder(QStringLiteral("/scenes"));
    QString error;
    const std::optional<SceneDocument> document = parseScene(files.scene, folder, error);
    if (!document) {
        return refusal("the scene reader", error);
    }
    const QByteArray written = sceneText(*document, folder);
    const std::optional<SceneDocument> again = parseScene(written, folder, error);
    if (!again) {
        return "a written scene is refused: " + error.toStdString();
    }
    if (sceneText(*again, folder) != written) {
        return "a scene is written in two ways";
    }
    nbOSGWidget view;
    Stage stage(view);
    const PerspectiveMatchTool match(stage);
    const PlatesTool plates(stage);
    stage.resize(640, 480);
    QByteArray first;
    std::string fault = showAndSave(stage, *document, files, first);
    if (!fault.empty() || first.isEmpty()) {
        return fault;
    }
    const std::optional<SceneDocument> saved = parseScene(first, folder, error);
    if (!saved) {
        return "a saved scene is refused: " + error.toStdString();
    }
    QByteArray second;
    fault = showAndSave(stage, *saved, files, second);
    return fault.empty() && second != first ? "a scene changes when it is saved and opened" : fault;
}

}  // namespace

std::string playFile(const QByteArray& text)
{
    const nbtest::ContainerCensus before;
    std::string fault = playSession(text);
    if (fault.empty()) {
        fault = playScene(text);
    }
    nbUndoService::the()->clear();
    nbScenegraph::clear();
    const std::string leaked = nbtest::ContainerCensus().differenceTo(before);
    return fault.empty() && !leaked.empty() ? "left behind: " + leaked : fault;
}

}  // namespace viewer::test
