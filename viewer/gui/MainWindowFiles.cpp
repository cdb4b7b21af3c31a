// SPDX-License-Identifier: MIT
// Opening of files and saving of pictures, the part of the window that has to do with files.
#include "viewer/gui/LogPanel.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/MessageBar.h"
#include "viewer/gui/PanelDocks.h"
#include "viewer/gui/SceneFileActions.h"
#include "viewer/gui/StatusLine.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/gui/WindowActions.h"
#include "viewer/gui/WindowMemory.h"
#include "viewer/loading/ModelReader.h"
#include "viewer/loading/PictureFile.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace viewer {
namespace {

bool isSession(const QString& file)
{
    return file.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
}

bool isPicture(const QString& file)
{
    const QByteArray suffix = QFileInfo(file).suffix().toLatin1().toLower();
    return QImageReader::supportedImageFormats().contains(suffix);
}

}  // namespace

// == Files

void MainWindow::showStartScene()
{
    if (!pendingSession && !sceneFiles->mayReplace()) {
        return;
    }
    loader->cancel();
    shownFiles.clear();
    viewWidget->stage().showStartScene();
    sceneFiles->replaced();
    setShownTitle({});
    updateStatus();
}

void MainWindow::openFiles(const QStringList& files, Opening opening)
{
    const bool isScene = std::any_of(files.begin(), files.end(), &isSceneFileName);
    if (isScene && (files.size() > 1 || opening == Opening::Add)) {
        emit problem(tr("%1: a scene can only be opened by itself").arg(files.first()));
        return;
    }
    if (opening == Opening::Replace && !pendingSession && !sceneFiles->mayReplace()) {
        return;
    }
    openingFiles = files;
    openingMode = opening;
    statusLine->setProgress(ModelLoader::Phase::Reading, files.value(0), 0);
    sceneFiles->forget();
    if (isScene) {
        sceneFiles->open(files.first(), !pendingSession || pendingSession->areFilesChosen);
    } else {
        loader->start(files);
    }
    updateStatus();
}

void MainWindow::sceneOpened(const QString& path)
{
    shownFiles = QStringList { path };
    addRecentFiles(shownFiles);
    setShownTitle(QFileInfo(path).fileName());
    actions->update();
    updateStatus();
    if (pendingSession) {
        beginReplay();
    }
    emit filesShown();
}

void MainWindow::showLoadedModels()
{
    if (sceneFiles->isOpening()) {
        sceneFiles->conclude();
        return;
    }
    Stage& stage = viewWidget->stage();
    const bool replaced = openingMode == Opening::Replace || stage.isEmpty();
    if (openingMode == Opening::Replace) {
        stage.clear();
        shownFiles.clear();
    }
    QStringList warnings;
    osg::NodePtr last;
    for (const BuiltModel& model : loader->takeModels()) {
        last = stage.add(model);
        warnings.append(model.warnings);
    }
    for (const QString& file : openingFiles) {
        shownFiles.append(QFileInfo(file).absoluteFilePath());
    }
    addRecentFiles(openingFiles);
    if (openingMode == Opening::Replace) {
        sceneFiles->replaced();
    } else {
        sceneFiles->touch();
    }
    stage.frameAll(replaced);
    stage.select(last);
    if (stage.gizmo().shown() == Gizmo::None) {
        stage.showGizmo(Gizmo::Universal);
    }
    actions->update();
    updateStatus();
    setShownTitle(QFileInfo(openingFiles.value(0)).fileName());
    for (const QString& warning : warnings) {
        docks->log().append(nbLog::Level::Warning, warning);
    }
    if (!warnings.isEmpty() && mode == Attendance::Attended) {
        messageBar->showMessage(warnings.first());
    }
    if (pendingSession) {
        beginReplay();
    }
    emit filesShown();
}

void MainWindow::addRecentFiles(const QStringList& files)
{
    if (mode == Attendance::Attended) {
        actions->setRecentFiles(memory::addRecentFiles(files));
    }
}

void MainWindow::stopLoading()
{
    loader->cancel();
    sceneFiles->forget();
    pendingSession.reset();
    updateStatus();
}

void MainWindow::askForFiles(Opening opening)
{
    const QString scenes = opening == Opening::Replace
        ? QStringLiteral("*.") + QLatin1String(kSceneSuffix)
        : QString();
    const QStringList files =
        QFileDialog::getOpenFileNames(this, tr("Open"), {}, modelFileFilter(scenes));
    if (!files.isEmpty()) {
        openFiles(files, opening);
    }
}

void MainWindow::askForPicture()
{
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Save picture"), QStringLiteral("view.png"), tr("Pictures (*.png *.jpg *.bmp)"));
    QString error;
    if (!path.isEmpty() && !savePicture(path, error)) {
        emit problem(error);
    }
}

bool MainWindow::savePicture(const QString& path, QString& error)
{
    const QImage picture = viewWidget->takePicture(error);
    return !picture.isNull() && writePicture(path, picture, error);
}

void MainWindow::handleDroppedFiles(const QStringList& files, const osg::Pnt2f& px)
{
    const QString& file = files.first();
    if (files.size() > 1 || (!isPicture(file) && !isSession(file))) {
        openFiles(files, Opening::Replace);
    } else if (isSession(file)) {
        replayFile(file);
    } else {
        QString error;
        if (viewWidget->stage().takePicture(file, px, error)) {
            showPanelOfTool();
        } else {
            emit problem(error.isEmpty() ? tr("%1: drop pictures on an object").arg(file) : error);
        }
    }
}

}  // namespace viewer
