// SPDX-License-Identifier: MIT
// Scene files in the window: opening, saving, and what has not been saved.
#include "viewer/gui/SceneFileActions.h"

#include "tests/viewer/support/ShownWindow.h"
#include "viewer/scenes/SceneCapture.h"

#include <QApplication>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

namespace viewer {
namespace {

class SceneFileActionsTest : public ShownWindow
{
protected:
    SceneFileActionsTest()
    {
        stage().commands().setOutputFolder(QDir(folder.path()));
        QObject::connect(&window, &MainWindow::filesShown, [this] { ++shown; });
    }

    void moveVase()
    {
        ASSERT_TRUE(stage().selectByName("Vase"));
        ASSERT_TRUE(run("object.translation", QJsonArray { 1, 2, 3 }));
    }

    QByteArray text() { return sceneText(*captureScene(stage(), error), QDir(folder.path())); }

    QTemporaryDir folder;
    QString scene = folder.filePath("table.nbscene");
    int shown = 0;
};

TEST_F(SceneFileActionsTest, TheTitleTellsWhatIsNotSaved)
{
    EXPECT_FALSE(window.isWindowModified());
    moveVase();
    EXPECT_TRUE(window.isWindowModified());
    stage().undo();
    EXPECT_FALSE(window.isWindowModified()) << "as opened";
    stage().redo();

    ASSERT_TRUE(run("scene.save", scene));

    EXPECT_FALSE(window.isWindowModified());
    EXPECT_EQ(window.windowTitle(), "table.nbscene[*] - nbviewer");
    EXPECT_EQ(stage().commands().value("scene.file"), QJsonValue("table.nbscene"));
    stage().undo();
    EXPECT_TRUE(window.isWindowModified()) << "no longer as saved";
    action("sceneSave")->trigger();
    EXPECT_FALSE(window.isWindowModified());
    ASSERT_TRUE(run("match.setVeil", 0.75));
    EXPECT_TRUE(window.isWindowModified()) << "an edit that is no step";
    EXPECT_EQ(problems, QStringList());
}

TEST_F(SceneFileActionsTest, ASceneWithModelsIsReadInTheBackground)
{
    window.openFiles({ NB_VIEWER_FOLDER "/models/tire.obj", NB_VIEWER_FOLDER "/models/boxes.obj" },
                     MainWindow::Opening::Replace);
    waitUntil([this] { return shown == 1; });
    stage().selectAll();
    ASSERT_TRUE(run("object.translation", QJsonArray { 1, 2, 3 }));
    ASSERT_TRUE(run("scene.save", scene));
    const QByteArray saved = text();
    window.showStartScene();

    window.openFiles({ scene }, MainWindow::Opening::Replace);
    EXPECT_NE(text(), saved) << "not before everything is there";
    waitUntil([this] { return shown == 2 || !problems.isEmpty(); });

    EXPECT_FALSE(window.isWindowModified());
    EXPECT_FALSE(stage().canUndo());
    EXPECT_EQ(window.windowTitle(), "table.nbscene[*] - nbviewer");
    EXPECT_EQ(text(), saved);
    EXPECT_EQ(problems, QStringList());
}

TEST_F(SceneFileActionsTest, WhatCannotBeOpenedLeavesEverything)
{
    moveVase();
    const QByteArray before = text();
    writeFile(scene, "{\"scene\": 1,\n \"camera\": }");

    window.openFiles({ scene }, MainWindow::Opening::Replace);
    window.openFiles({ scene }, MainWindow::Opening::Add);
    window.openFiles({ scene, scene }, MainWindow::Opening::Replace);
    waitForQuiet();

    ASSERT_EQ(problems.size(), 3);
    EXPECT_TRUE(problems[0].startsWith(scene + ": line 2, column")) << problems[0].toStdString();
    EXPECT_TRUE(problems[1].endsWith("a scene can only be opened by itself"));
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(stage().canUndo());
    EXPECT_TRUE(window.isWindowModified());
}

TEST_F(SceneFileActionsTest, EditsAreNotLostWithoutAQuestion)
{
    int asked = 0;
    QMessageBox::StandardButton answer = QMessageBox::Cancel;
    window.scenes().setQuestion([&](const QString& question, auto) {
        EXPECT_TRUE(question.contains("has been edited"));
        ++asked;
        return answer;
    });
    window.showStartScene();
    EXPECT_EQ(asked, 0) << "nothing to lose";
    ASSERT_TRUE(run("scene.save", scene));
    moveVase();
    const QByteArray edited = text();

    window.showStartScene();
    window.openFiles({ scene }, MainWindow::Opening::Replace);
    EXPECT_FALSE(window.close());
    waitForQuiet();
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(text(), edited);

    answer = QMessageBox::Save;
    window.showStartScene();
    EXPECT_EQ(asked, 4);
    EXPECT_NE(text(), edited);
    ASSERT_TRUE(run("scene.open", scene));
    EXPECT_EQ(text(), edited) << "it was saved";

    stage().selectByName("Vase");
    const QPointF arrow = placeOf(SessionTarget::Kind::Handle, "xaShape");
    press(arrow);
    move(arrow + QPointF(10, 0));
    move(arrow + QPointF(20, 0));
    answer = QMessageBox::Cancel;
    EXPECT_FALSE(window.close()) << "what is dragged now is an edit";
    EXPECT_EQ(steps(), 1);
    answer = QMessageBox::Discard;
    EXPECT_TRUE(window.close());
}

TEST_F(SceneFileActionsTest, AFileThatAnotherProgramChangedIsNotReplacedWithoutAQuestion)
{
    ASSERT_TRUE(run("scene.save", scene));
    moveVase();
    writeFile(scene, readFile(scene) + '\n');

    EXPECT_FALSE(run("scene.save", QJsonValue()));
    EXPECT_FALSE(window.scenes().save()) << "nobody is there";
    EXPECT_EQ(problems, QStringList({ scene + ": has been changed by another program" }));
    QMessageBox::StandardButton answer = QMessageBox::Cancel;
    window.scenes().setQuestion([&](const QString&, QMessageBox::StandardButtons answers) {
        EXPECT_FALSE(answers.testFlag(QMessageBox::Discard));
        return answer;
    });
    EXPECT_FALSE(window.scenes().save());
    EXPECT_TRUE(window.isWindowModified());
    answer = QMessageBox::Save;
    EXPECT_TRUE(window.scenes().save());
    EXPECT_TRUE(run("scene.save", QJsonValue())) << "it is this program's again";
    ASSERT_TRUE(QFile::remove(scene));
    EXPECT_TRUE(run("scene.save", QJsonValue())) << "nothing is replaced";
}

TEST_F(SceneFileActionsTest, WhatWasKeptIsOfferedWithItsPictureUntilItIsTakenOrDiscarded)
{
    moveVase();
    const QByteArray edited = text();
    const QString left = folder.filePath("recovery-7.nbscene");
    ASSERT_TRUE(saveScene(stage(), left, error));
    waitUntil([this] { return !window.view().lastFrame().isNull(); });
    ASSERT_TRUE(window.view().lastFrame().save(folder.filePath("recovery-7.png")));
    window.showStartScene();
    window.scenes().keepEdits(QDir(folder.path()), [] { return QImage(); });
    int asked = 0;
    const auto offer = [&](QMessageBox::StandardButton answer) {
        QTimer::singleShot(0, &window, [&, answer] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->iconPixmap().size(), window.view().sizePx());
            EXPECT_TRUE(box->defaultButton()->text().contains("Yes"));
            ++asked;
            box->button(answer)->click();
        });
        window.scenes().offerKept();
    };

    offer(QMessageBox::Cancel);
    EXPECT_NE(text(), edited);
    ASSERT_TRUE(QFile::copy(left, folder.filePath("sound")));
    writeFile(left, "{");
    offer(QMessageBox::Yes);
    EXPECT_TRUE(QFile::exists(left)) << "what cannot be opened today is offered again";
    EXPECT_FALSE(window.isWindowModified());
    ASSERT_TRUE(QFile::remove(left) && QFile::rename(folder.filePath("sound"), left));
    offer(QMessageBox::Yes);
    EXPECT_EQ(text(), edited);
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_FALSE(QFile::exists(left));
    ASSERT_TRUE(saveScene(stage(), left, error));
    ASSERT_TRUE(window.view().lastFrame().save(folder.filePath("recovery-7.png")));
    offer(QMessageBox::Discard);
    EXPECT_EQ(asked, 4);
    EXPECT_EQ(QDir(folder.path()).entryList({ "recovery-7.*" }), QStringList());
}

TEST_F(SceneFileActionsTest, ASessionWritesNothingButItsOwn)
{
    ASSERT_TRUE(run("scene.save", scene));
    const QDir out(folder.filePath("out"));
    ASSERT_TRUE(QDir(folder.path()).mkdir("out"));
    ASSERT_TRUE(QFile::link(folder.filePath("victim"), out.filePath("link.png")));
    Session session;
    session.sizePx = QSize(200, 150);
    session.files = QStringList { scene };
    const auto play = [&](SessionStep::Type type, const char* name, const QJsonValue& value) {
        SessionStep step;
        step.type = type;
        step.name = QLatin1String(name);
        step.value = value;
        step.key = QStringLiteral("Ctrl+S");
        step.screenshot = true;
        session.steps = { step };
        replay(session, out);
        return window.player().getFailures().isEmpty() && problems.isEmpty();
    };
    const auto kCommand = SessionStep::Type::Command;

    EXPECT_FALSE(play(kCommand, "scene.save", scene)) << "not in its folder";
    EXPECT_FALSE(play(kCommand, "scene.save", QJsonValue())) << "the session opened the scene";
    EXPECT_FALSE(play(SessionStep::Type::Checkpoint, "link", {}));
    EXPECT_TRUE(play(kCommand, "scene.save", "a.nbscene"));
    EXPECT_TRUE(play(SessionStep::Type::Checkpoint, "kept", {}));
    EXPECT_EQ(out.entryList(QDir::Files), QStringList({ "a.nbscene", "kept.png" }));
    EXPECT_FALSE(play(SessionStep::Type::Key, "", {})) << "nobody chose the file";
    problems.clear();
    session.areFilesChosen = true;
    EXPECT_TRUE(play(kCommand, "scene.save", QJsonValue()));
}

TEST_F(SceneFileActionsTest, AFailedSaveKeepsTheScene)
{
    window.scenes().setQuestion([](const QString&, auto) { return QMessageBox::Save; });
    const QDir base(folder.path());
    ASSERT_TRUE(base.mkdir("gone"));
    ASSERT_TRUE(run("scene.save", base.filePath("gone/table.nbscene")));
    ASSERT_TRUE(QDir(base.filePath("gone")).removeRecursively());
    moveVase();
    const QByteArray edited = text();

    window.showStartScene();

    EXPECT_EQ(text(), edited);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains("gone/table.nbscene: "));
    EXPECT_TRUE(window.isWindowModified());
}

}  // namespace
}  // namespace viewer
