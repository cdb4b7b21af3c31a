// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>
#include <QList>
#include <QObject>
#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

class QAction;
class QMainWindow;
class QMenu;

namespace viewer {

class MainWindow;
class Stage;

/// Menus and shortcuts of the window. An action is found by its object name, which is that of its
/// icon.
class WindowActions : public QObject
{
    Q_OBJECT

public:
    /// @param targetWindow  gets the menus and does what the actions ask; outlives this
    WindowActions(MainWindow& targetWindow, Stage& targetStage);

    /// Ticks what is on.
    void update();

    /// What can be done with the selected objects, for menus of the view and the tree.
    const QList<QAction*>& objectActions() const { return forObjects; }

    /// Fills the menu of recent files.
    void setRecentFiles(const QStringList& files);

private:
    using Condition = std::function<bool()>;

    QAction* make(QMenu* menu, const char* name, const QString& text, const QString& keys);
    /// Sets the tip, with the shortcut if there is one.
    void describe(QAction* action, const QString& tip);
    QAction* add(QMenu* menu, const char* name, const QString& text, const QString& keys,
                 std::function<void()> run);
    /// One whose shortcut cannot be played: it opens a dialog or ends the replay.
    QAction* addUnplayed(QMenu* menu, const char* name, const QString& text, const QString& keys,
                         std::function<void()> run);
    /// One that is ticked while something is on. @param isOn  empty: while it has been chosen
    QAction* addSwitch(QMenu* menu, const char* name, const QString& text, const QString& keys,
                       const Condition& isOn, std::function<void(bool)> set);
    /// One that runs a command of the stage. @param command  literal
    QAction* addCommand(QMenu* menu, const char* command, const QString& text, const QString& keys);
    /// One that runs a command which takes true or false. @param value  that tells it, literal
    QAction* addCommandSwitch(QMenu* menu, const char* command, const char* value,
                              const QString& text, const QString& keys);
    /// Runs a command of the stage; a refusal becomes a problem of the window.
    void run(const QString& command, const QJsonValue& value = {});
    /// Whether a value of the stage is true.
    bool isOn(const char* value) const;

    void addFileMenu();
    void addEditMenu();
    void addObjectActions(QMenu* menu);
    void addViewMenu();
    void addManipulatorMenu();
    void addSessionMenu();
    void addTransformSettings(QMenu* menu);
    void addHelpMenu();

    MainWindow& window;
    Stage& stage;
    QList<QAction*> forObjects;
    QMenu* recentMenu = nullptr;
    QAction* undo = nullptr;
    QAction* redo = nullptr;
    QAction* localSpace = nullptr;
    std::vector<std::pair<QAction*, Condition>> ticks;
    std::vector<std::pair<QAction*, Condition>> conditions;  ///< of being enabled
};

}  // namespace viewer
