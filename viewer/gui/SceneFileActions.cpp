// SPDX-License-Identifier: MIT
#include "viewer/gui/SceneFileActions.h"

#include "viewer/commands/JsonReader.h"
#include "viewer/gui/ModelLoader.h"
#include "viewer/scenes/PreparedScene.h"
#include "viewer/scenes/Recovery.h"
#include "viewer/scenes/SceneCapture.h"
#include "viewer/stage/Stage.h"

#include <nbKernelServices/nbUndoService.h>

#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>
#include <QUndoStack>

#include <algorithm>
#include <array>
#include <utility>

#include <ChangeCount.h>

namespace viewer {
namespace {

const char* const kSceneFilter =
    QT_TRANSLATE_NOOP("viewer::SceneFileActions", "Scenes (*.nbscene)");

/// Commands whose edits are kept in the file but are no steps of undo.
constexpr std::array<const char*, 4> kUnrecorded { "match.setPhotograph", "match.setVeil",
                                                   "match.showLines", "match.setLocked" };

constexpr int kMsOfASecond = 1000;
constexpr int kUsualSeconds = 120;
constexpr int kMostSeconds = 3600;

QUndoStack& steps()
{
    return *nbUndoService::the()->getStack();
}

/// Hands out models that were read before, in the order of the document, each file once.
SceneAssets assetsOf(std::vector<BuiltModel> models)
{
    SceneAssets assets = SceneAssets::fromDisk();
    const auto source = std::make_shared<std::vector<BuiltModel>>(std::move(models));
    assets.model = [source, next = std::size_t(0)](const QString&, QString&) mutable {
        return std::make_optional(std::move((*source)[next++]));
    };
    return assets;
}

}  // namespace

QString askWhereToSave(QWidget& window, const QString& title, const QString& suggested,
                       const QString& filter)
{
    QFileDialog dialog(&window, title, {}, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // Completes the name before it asks whether a file may be replaced.
    dialog.setDefaultSuffix(QFileInfo(suggested).suffix());
    dialog.selectFile(suggested);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

SceneFileActions::SceneFileActions(QWidget& targetWindow, Stage& targetStage,
                                   ModelLoader& modelLoader)
    : QObject(&targetWindow)
    , window(targetWindow)
    , stage(targetStage)
    , loader(modelLoader)
{
    setKeepSeconds(kUsualSeconds);
    addCommands();
    connect(&steps(), &QUndoStack::cleanChanged, this,
            [this] { emit modifiedChanged(isModified()); });
}

SceneFileActions::~SceneFileActions()
{
    for (const char* name : { "scene.open", "scene.save", "scene.file", "scene.modified" }) {
        stage.commands().remove(QLatin1String(name));
    }
}

void SceneFileActions::addCommands()
{
    Commands& commands = stage.commands();
    commands.add("scene.open", [this](const QJsonValue& value, QString& error) {
        QString name;
        if (!JsonReader(error).readString(value, "scene.open", name)) {
            return false;
        }
        const QString path = stage.commands().filePath(name);
        const Stamp read = stampOf(path);
        if (!openScene(stage, path, error)) {
            return false;
        }
        adopt(path, false, read);
        emit opened(path);
        return true;
    });
    commands.add("scene.save", [this](const QJsonValue& value, QString& error) {
        if (value.isNull() && isChosen) {
            return isAsLeft(error) && saveTo(sceneFile, error);
        }
        QString name;
        if (!JsonReader(error).readString(value, "scene.save", name)) {
            return false;
        }
        const QString path =
            stage.commands().outputPath(name, '.' + QLatin1String(kSceneSuffix), error);
        return !path.isEmpty() && saveTo(path, error);
    });
    commands.addValue("scene.file", [this] { return QFileInfo(sceneFile).fileName(); });
    commands.addValue("scene.modified", [this] { return isModified(); });
}

// == Opening

void SceneFileActions::open(const QString& path, bool isByPerson)
{
    isDocumentChosen = isByPerson;
    QString error;
    loader.cancel();
    documentStamp = stampOf(path);
    document = readSceneFile(path, error);
    documentFile = QFileInfo(path).absoluteFilePath();
    if (!document) {
        emit problem(error);
        return;
    }
    QStringList files;
    for (const SceneModel& model : document->models) {
        files.append(model.file);
    }
    files.removeAll(QString());  // built in
    files.removeDuplicates();
    if (files.isEmpty()) {
        conclude();
    } else {
        loader.start(files);
    }
}

void SceneFileActions::conclude()
{
    const SceneDocument opening = *std::exchange(document, std::nullopt);
    QString error;
    // What is dragged now belongs to the scene that goes.
    stage.interaction().endDrag();
    const std::unique_ptr<PreparedScene> scene =
        PreparedScene::prepare(opening, assetsOf(loader.takeModels()), error);
    if (!scene) {
        emit problem(QStringLiteral("%1: %2").arg(documentFile, error));
        return;
    }
    scene->show(stage);
    adopt(documentFile, isDocumentChosen, documentStamp);
    emit opened(documentFile);
}

// == Saving

bool SceneFileActions::save()
{
    if (!isChosen) {
        return saveAs();
    }
    QString error;
    bool mayWrite = isAsLeft(error);
    if (!mayWrite && question) {
        const QString text = tr("%1 has been changed by another program. Replace it?");
        if (question(text.arg(sceneFile), QMessageBox::Save | QMessageBox::Cancel) !=
            QMessageBox::Save) {
            return false;
        }
        mayWrite = true;
    }
    return tell(mayWrite && saveTo(sceneFile, error), error);
}

bool SceneFileActions::tell(bool isDone, const QString& error)
{
    if (!isDone) {
        emit problem(error);
    }
    return isDone;
}

SceneFileActions::Stamp SceneFileActions::stampOf(const QString& path)
{
    const QFileInfo info(path);
    return { info.lastModified(), info.size() };
}

bool SceneFileActions::isAsLeft(QString& error) const
{
    if (!QFileInfo::exists(sceneFile) || stampOf(sceneFile) == stamp) {
        return true;
    }
    error = tr("%1: has been changed by another program").arg(sceneFile);
    return false;
}

bool SceneFileActions::saveAs()
{
    if (!question) {
        return tell(false, "the scene has no file to be saved to");
    }
    const QString suggested =
        sceneFile.isEmpty() ? QStringLiteral("scene.") + QLatin1String(kSceneSuffix) : sceneFile;
    QString path = askWhereToSave(window, tr("Save scene"), suggested, tr(kSceneFilter));
    if (path.isEmpty()) {
        return false;
    }
    if (!isSceneFileName(path)) {
        path += '.' + QLatin1String(kSceneSuffix);
    }
    QString error;
    return tell(saveTo(path, error), error);
}

bool SceneFileActions::saveTo(const QString& path, QString& error)
{
    stage.interaction().endDrag();  // as a step, so that what is saved is what undo calls clean
    if (!saveScene(stage, path, error)) {
        return false;
    }
    sceneFile = QFileInfo(path).absoluteFilePath();
    stamp = stampOf(path);
    isChosen = true;
    touched = false;
    steps().setClean();
    emit modifiedChanged(false);
    emit saved(sceneFile);
    return true;
}

// == What is not lost when the program is killed

void SceneFileActions::keepEdits(const QDir& folder, std::function<QImage()> shown)
{
    recovery = std::make_unique<Recovery>(folder);
    shownPicture = std::move(shown);
    connect(&keepTimer, &QTimer::timeout, this, &SceneFileActions::keepNow);
    keepTimer.start(
        kMsOfASecond *
        qBound(1, QSettings().value("keepSeconds", kUsualSeconds).toInt(), kMostSeconds));
    connect(this, &SceneFileActions::modifiedChanged, this, [this](bool modified) {
        if (!modified) {
            recovery->forget();
        }
    });
}

void SceneFileActions::keepNow()
{
    if (!recovery || recovery->isWriting()) {
        return;
    }
    const QString fault = recovery->wait();
    if (!fault.isEmpty()) {
        keptEdits = 0;  // of which nothing is on the disk
    }
    if (std::exchange(keepingFault, fault) != fault && !fault.isEmpty()) {
        emit problem(fault);
    }
    if (!isModified() || keptEdits == osg::getEditCount()) {
        return;
    }
    if (stage.isDragging()) {
        QTimer::singleShot(kMsOfASecond, this, &SceneFileActions::keepNow);
        return;
    }
    QString error;
    std::optional<SceneDocument> edited = captureScene(stage, error);
    if (edited && recovery->keep(std::move(*edited), shownPicture())) {
        keptEdits = osg::getEditCount();
    }
}

void SceneFileActions::offerKept()
{
    const std::optional<Recovery::Kept> kept = recovery ? recovery->find() : std::nullopt;
    if (!kept) {
        return;
    }
    QMessageBox box(
        QMessageBox::Question, tr("Recover"),
        tr("The program ended unexpectedly. Edits up to %1 have been kept. Recover them?")
            .arg(QLocale().toString(kept->time, QLocale::ShortFormat)),
        QMessageBox::Yes | QMessageBox::Discard | QMessageBox::Cancel, &window);
    box.setInformativeText(
        tr("What is neither recovered nor discarded is offered again at the next start."));
    box.setDefaultButton(QMessageBox::Yes);
    if (!kept->picture.isNull()) {
        box.setIconPixmap(QPixmap::fromImage(kept->picture));
    }
    const int answer = box.exec();
    if (answer == QMessageBox::Discard) {
        Recovery::discard(kept->file);
    } else if (QString error;
               answer == QMessageBox::Yes && tell(openScene(stage, kept->file, error), error)) {
        // Only now: what cannot be opened, as when a disk with a model is away, is offered again.
        recovery->takeUp(*kept);
        touch();
    }
}

// == What has not been saved

bool SceneFileActions::isModified() const
{
    return touched || !steps().isClean();
}

bool SceneFileActions::mayReplace()
{
    // What is dragged now is an edit, too.
    stage.interaction().endDrag();
    keepNow();
    if (!isModified() || !question) {
        return true;
    }
    const QString name = sceneFile.isEmpty() ? tr("The scene") : QFileInfo(sceneFile).fileName();
    switch (question(tr("%1 has been edited. Save it?").arg(name),
                     QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel)) {
    case QMessageBox::Save:
        return save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

SceneFileActions::Question SceneFileActions::dialog()
{
    return [this](const QString& text, QMessageBox::StandardButtons answers) {
        QMessageBox box(QMessageBox::Warning, tr("Save scene"), text, answers, &window);
        if (answers.testFlag(QMessageBox::Discard)) {
            box.setInformativeText(tr("Edits that are not saved will be lost."));
        }
        box.setDefaultButton(QMessageBox::Save);
        return static_cast<QMessageBox::StandardButton>(box.exec());
    };
}

void SceneFileActions::touch()
{
    touched = true;
    emit modifiedChanged(true);
}

void SceneFileActions::noteCommand(const QString& name)
{
    if (std::find(kUnrecorded.begin(), kUnrecorded.end(), name) != kUnrecorded.end()) {
        touch();
    }
}

void SceneFileActions::adopt(const QString& path, bool isByPerson, const Stamp& newStamp)
{
    document.reset();
    sceneFile = path;
    stamp = newStamp;
    isChosen = isByPerson;
    touched = false;
    emit modifiedChanged(isModified());
}

}  // namespace viewer
