// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/FieldRules.h"
#include "viewer/gui/ModelLoader.h"
#include "viewer/gui/Settings.h"
#include "viewer/replay/Session.h"
#include "viewer/scenes/SceneDocument.h"
#include "viewer/stage/GizmoController.h"
#include "viewer/texts/Language.h"

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGVector.h>

#include <QDir>
#include <QMainWindow>

#include <functional>
#include <memory>
#include <optional>

namespace viewer {

class MessageBar;
class PanelDocks;
class SceneFileActions;
class SessionPlayer;
class SessionTour;
class StatusLine;
class ViewWidget;
struct StageTools;
class WindowActions;

/// The viewer's window: view, menus, status line, opening of files, replaying.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// What becomes of the models shown when others are opened.
    enum class Opening
    {
        Replace,
        Add
    };

    /// Whether a person is there: alone, the window keeps no recent files and shows no messages
    /// over the view.
    enum class Attendance
    {
        Attended,
        Unattended
    };

    explicit MainWindow(Attendance attendance);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow() override;

    ViewWidget& view() { return *viewWidget; }

    PanelDocks& panels() { return *docks; }

    SceneFileActions& scenes() { return *sceneFiles; }

    // == Files

    /// Everything that replaces the scene first lets a person save it.
    void showStartScene();
    /// Reads files, models or one scene, in the background and shows them; answers with
    /// filesShown() or problem().
    void openFiles(const QStringList& files, Opening opening);
    void askForFiles(Opening opening);
    void askForPicture();
    /// Has a person name a file and writes it; tells of it, or of what hindered it.
    /// @param suggested  its ending completes a name without one
    void askAndWrite(const QString& title, const QString& suggested, const QString& filter,
                     const std::function<bool(const QString& path, QString& error)>& write);
    /// Writes a picture of the view. @return false with one line in `error`
    bool savePicture(const QString& path, QString& error);

    // == View

    /// Lets the view alone fill the screen, or shows the window as it was before.
    void showWhole(bool on);

    bool isWhole() const { return !stateBeforeWhole.isEmpty(); }

    void showSettings();

    /// Opens the manual in a window of its own.
    void showManual();

    /// Brings the panel of the active tool to the front, if a person uses the window.
    void showPanelOfTool();
    /// Makes the window as large as a view of this size needs; a person may change it afterwards.
    void suggestViewSize(const QSize& sizePx);

    // == Sessions

    /// Shows what the session starts with, then plays it; answers with replayFinished() or
    /// problem().
    /// @param pictures  where its pictures go; nothing: none are written
    void replay(const Session& session, const std::optional<QDir>& pictures);
    void stopReplay();
    bool isReplaying() const;

    void askForSession();

    /// Plays the sessions that come with the program, with their captions.
    /// @param pictures  folder for pictures; nothing: none are written
    /// @return ends by itself; null with a problem(), or where the scene may not go
    SessionTour* goOnTour(const std::optional<QDir>& pictures = std::nullopt);

    SessionPlayer& player() { return *sessionPlayer; }

signals:
    void filesShown();
    /// What could not be done, one line; everything is as it was.
    void problem(const QString& text);
    void replayFinished();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    /// Escape, where nothing else wants it: stops loading, or leaves the full screen.
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Moves what the active tool has by an arrow key. @return false if there is nothing
    bool nudge(const QKeyEvent& key);
    /// Makes docks, menus, toolbars and the status line.
    void addSurroundings();
    void connectParts();
    /// Makes them anew in the present language, arranged as they are.
    void renewSurroundings();
    void setShownTitle(const QString& file);
    /// Tells of what a file gave, and goes on with the session that asked for it.
    void concludeOpening(const QString& file);
    void updateStatus();
    void showLoadedModels();
    void showObjectMenu(const osg::Pnt2f& px, const QPoint& screenPlace);
    void addRecentFiles(const QStringList& files);
    void stopLoading();
    void handleDroppedFiles(const QStringList& files, const osg::Pnt2f& px);
    void replayFile(const QString& path);
    void beginReplay();
    void concludeReplay();

    Attendance mode;
    ViewWidget* viewWidget = nullptr;
    MessageBar* messageBar = nullptr;
    ModelLoader* loader = nullptr;
    SessionPlayer* sessionPlayer = nullptr;
    WindowActions* actions = nullptr;

    StatusLine* statusLine = nullptr;
    QByteArray stateBeforeWhole;  ///< of toolbars and docks; empty while the window is as usual
    FieldRules fieldRules;
    std::unique_ptr<StageTools> tools;
    PanelDocks* docks = nullptr;
    SceneFileActions* sceneFiles = nullptr;
    std::unique_ptr<Settings> settings;

    QStringList openingFiles;
    Opening openingMode = Opening::Replace;
    std::optional<Session> pendingSession;
    std::optional<QDir> pendingPictures;
    int sizeChecks = 0;
};

}  // namespace viewer
