// SPDX-License-Identifier: MIT
#include "tests/fuzz/FilePlay.h"
#include "viewer/gui/CommandLine.h"
#include "viewer/loading/BuiltModel.h"
#include "viewer/loading/ModelRecords.h"
#include "viewer/loading/PictureDecoding.h"
#include "viewer/match/PerspectiveMatchTool.h"
#include "viewer/plates/PlatesTool.h"
#include "viewer/scenes/PreparedScene.h"
#include "viewer/scenes/SceneCapture.h"
#include "viewer/stage/Stage.h"
#include "viewer/textures/TextureTool.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>

namespace viewer::test {
namespace {

/// A line is "undo", "redo", or a command and its value in JSON.
std::string playLine(Stage& stage, const QByteArray& line)
{
    if (line == "undo") {
        stage.undo();
    } else if (line == "redo") {
        stage.redo();
    } else {
        const int space = line.indexOf(' ');
        const QString name = QString::fromUtf8(space < 0 ? line : line.left(space));
        const QByteArray value = space < 0 ? QByteArray() : line.mid(space + 1);
        QString error;
        const bool isDone = stage.commands().run(
            name, QJsonDocument::fromJson('[' + value + ']').array().at(0), error);
        if (isDone != error.isEmpty() || error.contains(QLatin1Char('\n'))) {
            return name.toStdString() + " is neither done nor refused in one line";
        }
    }
    stage.update();
    return {};
}

std::string playArguments(Stage& stage, const QByteArray& line)
{
    CommandLine options;
    QString error;
    const QStringList arguments = QString::fromUtf8(line).split(QLatin1Char(' ')).mid(1);
    const bool isTaken =
        parseCommandLine(arguments, options, error) && checkCommandLine(options, error);
    if (isTaken != error.isEmpty()) {
        return "a command line is neither taken nor refused";
    }
    bool isRead = true;
    if (isTaken && !options.session.isEmpty()) {
        isRead = readSessionFile(options.session, error).has_value();
    } else if (isTaken && options.files.size() == 1 && isSceneFileName(options.files.first())) {
        isRead = openScene(stage, options.files.first(), error);
    }
    return isRead || !error.isEmpty() ? "" : "a file is refused without a word";
}

/// Plates with texts need fonts, and these an application.
void needFonts()
{
    static char name[] = "fuzz";
    static char* arguments[] = { name, nullptr };
    static int count = 1;
    if (QCoreApplication::instance() == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // It ends with the process, as its screens do.
        static const auto* const kApplication = new QGuiApplication(count, arguments);
        (void)kApplication;
    }
}

}  // namespace

std::string playCommands(const QByteArray& text)
{
    needFonts();
    constexpr int kMostLines = 60;
    nbOSGWidget view;
    Stage stage(view);
    TextureTool textures(stage);
    const PerspectiveMatchTool match(stage);
    const PlatesTool plates(stage);
    stage.resize(640, 480);
    stage.showStartScene();
    for (const QByteArray& line : text.split('\n').mid(0, kMostLines)) {
        const std::string fault =
            line.startsWith("nbviewer ") ? playArguments(stage, line) : playLine(stage, line);
        if (!fault.empty()) {
            return fault;
        }
    }
    const QDir folder(QStringLiteral("/scenes"));
    QString error;
    const std::optional<SceneDocument> captured = captureScene(stage, error);
    if (!captured) {
        return error.contains(QLatin1Char('\n')) ? "saving is refused in many lines" : "";
    }
    return parseScene(sceneText(*captured, folder), folder, error)
        ? std::string()
        : "a scene that commands made cannot be opened: " + error.toStdString();
}

std::string playModel(const QByteArray& bytes)
{
    ModelAssembly assembly;
    if (assembly.take(bytes) && assembly.isComplete() && assembly.failure().isEmpty()) {
        const BuiltModel built = buildModel(assembly.takeModel());
        if (built.root == osg::NullFC) {
            return "a model that was taken has no nodes";
        }
    }
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QString error;
    const QImage picture = decodePicture(buffer, QStringLiteral("picture"), error);
    return picture.isNull() == error.startsWith(QLatin1String("picture: "))
        ? std::string()
        : "a picture is refused without its name";
}

}  // namespace viewer::test
