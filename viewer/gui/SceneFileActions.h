// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/scenes/SceneDocument.h"

#include <QDateTime>
#include <QImage>
#include <QMessageBox>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace viewer {

class ModelLoader;
class Recovery;
class Stage;

/// Asks a person for a file to write. @param suggested  its ending completes a name without one
/// @return "" for none
QString askWhereToSave(QWidget& window, const QString& title, const QString& suggested,
                       const QString& filter);

/// Opening and saving of scene files in the window, and what has not been saved.
///
/// A scene counts as modified after every step of undo that was not taken back, and after edits
/// that are no steps: another photograph, models that were added. Moving the camera is no edit,
/// though the file keeps it.
///
/// Gives the stage the commands "scene.open" (a file) and "scene.save" (a file in the folder for
/// output; null: that of the scene, unless a session opened it), which do everything at once, and
/// the values "scene.file" (without folder, "" for none) and "scene.modified".
class SceneFileActions : public QObject
{
    Q_OBJECT

public:
    /// Asks a person what is to be done: Save, Cancel, or Discard where edits may be let go.
    using Question = std::function<QMessageBox::StandardButton(
        const QString& text, QMessageBox::StandardButtons answers)>;

    /// @param targetWindow  the dialogs' parent; owns this
    /// @param modelLoader   reads the models of a scene; outlives this
    SceneFileActions(QWidget& targetWindow, Stage& targetStage, ModelLoader& modelLoader);
    SceneFileActions(const SceneFileActions&) = delete;
    SceneFileActions& operator=(const SceneFileActions&) = delete;
    ~SceneFileActions() override;

    // == Opening

    /// Begins to open a scene file: its models are read in the background, and nothing changes
    /// before all is there. Answers with opened() or problem().
    /// @param isByPerson  and not by a session: only then the file may be saved to without a name
    void open(const QString& path, bool isByPerson = true);

    /// Whether what the loader reads belongs to a scene that is being opened.
    bool isOpening() const { return document.has_value(); }

    /// Shows the scene whose models the loader has read.
    void conclude();

    /// Gives the scene that is being opened up.
    void forget() { document.reset(); }

    // == Saving

    /// Saves to the scene's file, or asks for one; asks before it replaces a file that another
    /// program has changed. @return whether it is saved
    bool save();
    /// The same in another file. With nobody to ask this is a problem.
    bool saveAs();
    /// @return false with one line in `error`; the file is as it was
    bool saveTo(const QString& path, QString& error);

    // == What has not been saved

    bool isModified() const;

    /// Whether the scene may go: it is as saved, or the person saves it now or lets it go.
    bool mayReplace();

    /// Tells that the scene was replaced by something without a scene file.
    void replaced() { adopt(QString(), false, {}); }

    /// Tells of an edit that is no step of undo.
    void touch();

    /// Tells of a command that was done.
    void noteCommand(const QString& name);

    /// Sets who is asked; empty: nobody, edits are let go.
    void setQuestion(Question newQuestion) { question = std::move(newQuestion); }

    /// Asks in a dialog of the window.
    Question dialog();

    // == What is not lost when the program is killed

    /// Keeps edits in a file in that folder, every two minutes (the setting "keepSeconds") and
    /// before the scene is replaced. @param shown  gives the picture that is shown
    void keepEdits(const QDir& folder, std::function<QImage()> shown);

    int keepSeconds() const { return keepTimer.interval() / 1000; }

    void setKeepSeconds(int seconds) { keepTimer.setInterval(1000 * seconds); }

    /// Shows what a killed program kept, with its time and picture, and asks whether it is to be
    /// opened; what is neither opened nor discarded is offered again at the next start.
    void offerKept();

    /// Absolute path of the scene's file; "" for none.
    const QString& file() const { return sceneFile; }

signals:
    /// A scene is shown that came from this file.
    void opened(const QString& path);
    void saved(const QString& path);
    void modifiedChanged(bool modified);
    /// What could not be done, one line; everything is as it was.
    void problem(const QString& text);

private:
    /// Tells a file from what another program makes of it.
    using Stamp = std::pair<QDateTime, qint64>;
    static Stamp stampOf(const QString& path);

    void addCommands();
    /// Tells what could not be done. @return isDone
    bool tell(bool isDone, const QString& error);
    /// @return false with one line in `error`: another program has changed the scene's file
    bool isAsLeft(QString& error) const;
    void keepNow();
    void adopt(const QString& path, bool isByPerson, const Stamp& newStamp);

    QWidget& window;
    Stage& stage;
    ModelLoader& loader;
    Question question;
    QString sceneFile;
    Stamp stamp;  ///< of the scene's file when it was read or written
    bool isChosen = false;  ///< the scene's file, by a person or the name given when it was saved
    bool touched = false;
    std::optional<SceneDocument> document;  ///< that is being opened
    QString documentFile;
    bool isDocumentChosen = false;
    Stamp documentStamp;
    QTimer keepTimer;
    std::unique_ptr<Recovery> recovery;  ///< null: nothing is kept
    std::function<QImage()> shownPicture;
    QString keepingFault;  ///< that was told last
    osg::UInt64 keptEdits = 0;
};

}  // namespace viewer
