// SPDX-License-Identifier: MIT
#include "viewer/core/PlatesTool.h"
#include "viewer/core/Stage.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/ViewWidget.h"

#include <nbKernelServices/nbUndoService.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QJsonArray>
#include <QJsonObject>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QToolButton>
#include <QUndoStack>

#include "support/GuiTest.h"

namespace viewer {
namespace {

/// A window without models, its view 800 x 600, with two plates of 100 x 80 pixels: "red" around
/// (150, 140), "blue" around (400, 300) over the large "ground" behind the scene.
class Plates : public GuiTest
{
protected:
    Plates()
        : window(MainWindow::Attendance::Unattended)
    {
        QObject::connect(&window, &MainWindow::problem,
                         [this](const QString& text) { problems.append(text); });
        window.show();
        window.view().fixSize({ 800, 600 });
        waitForQuiet();
        addColor("ground", "#404040", 400, 300, 800, 600, false);
        addColor("red", "#ff0000", 150, 140, 100, 80, true);
        addColor("blue", "#0000ff", 400, 300, 100, 80, true);
        run("plates.select", QJsonArray());
    }

    void addColor(const char* name, const char* color, double x, double y, double width,
                  double height, bool front)
    {
        run("plates.addColor",
            QJsonObject { { "name", name },
                          { "color", color },
                          { "front", front },
                          { "anchor", "topLeft" },
                          { "position", QJsonArray { x / 600, -y / 600 } },
                          { "size", QJsonArray { width / 600, height / 600 } } });
    }

    bool run(const char* command, const QJsonValue& value = {})
    {
        return stage().commands().run(command, value, lastError);
    }

    QJsonValue value(const char* name)
    {
        return stage().commands().value(name).value_or(QJsonValue());
    }

    QStringList selected()
    {
        QStringList names;
        for (const QJsonValue& name : value("plates.selected").toArray()) {
            names.append(name.toString());
        }
        return names;
    }

    void send(QEvent::Type type, const QPointF& place, Qt::MouseButton button,
              Qt::MouseButtons held)
    {
        QMouseEvent event(type, place, button, held, modifiers);
        QCoreApplication::sendEvent(&window.view(), &event);
    }

    void press(const QPointF& place)
    {
        send(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton);
        send(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
    }

    void move(const QPointF& place)
    {
        send(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton);
    }

    void release(const QPointF& place)
    {
        send(QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
    }

    void click(const QPointF& place)
    {
        press(place);
        release(place);
    }

    void drag(const QPointF& from, const QPointF& to)
    {
        press(from);
        move(from + 0.3 * (to - from));
        move(to);
        release(to);
    }

    void key(int code)
    {
        QKeyEvent down(QEvent::KeyPress, code, Qt::NoModifier);
        QCoreApplication::sendEvent(&window.view(), &down);
    }

    QPointF centre()
    {
        const QJsonArray place = value("plates.centre").toArray();
        return { place.at(0).toDouble(), place.at(1).toDouble() };
    }

    QColor colorAt(int x, int y)
    {
        QString error;
        const QImage picture = window.view().takePicture(error);
        EXPECT_EQ(error, QString());
        return picture.pixelColor(x, y);
    }

    void expectCentre(double x, double y)
    {
        EXPECT_NEAR(centre().x(), x, 1e-3);
        EXPECT_NEAR(centre().y(), y, 1e-3);
    }

    static int stepCount() { return nbUndoService::the()->getStack()->index(); }

    template <class Widget>
    Widget* child(const char* name)
    {
        auto* found = window.findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    Stage& stage() { return window.view().stage(); }

    MainWindow window;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    QStringList problems;
    QString lastError;
};

TEST_F(Plates, ClicksSelectByTheirModifiers)
{
    click({ 150, 140 });
    EXPECT_EQ(selected(), QStringList { "red" });
    modifiers = Qt::ShiftModifier;
    click({ 400, 300 });
    EXPECT_EQ(selected(), QStringList({ "red", "blue" }));
    modifiers = Qt::ControlModifier;
    click({ 150, 140 });
    EXPECT_EQ(selected(), QStringList { "blue" }) << "also on the body of the frame around both";
    modifiers = Qt::NoModifier;
    click({ 700, 500 });
    EXPECT_EQ(selected(), QStringList { "ground" });
    click({ 150, 140 });
    EXPECT_EQ(selected(), QStringList { "red" }) << "within the frame of the ground";
    EXPECT_EQ(stepCount(), 3) << "only the plates added";
}

TEST_F(Plates, BodyMovesTheSelectionInOneStepAndEscTakesItBack)
{
    drag({ 470, 350 }, { 90, 90 });
    drag({ 280, 200 }, { 310, 220 });

    expectCentre(430, 320);
    EXPECT_EQ(stepCount(), 4);
    press({ 280, 200 });
    move({ 250, 200 });
    move({ 200, 200 });
    expectCentre(350, 320);
    key(Qt::Key_Escape);
    release({ 200, 200 });
    expectCentre(430, 320);
    EXPECT_EQ(stepCount(), 4);
    EXPECT_TRUE(stage().undo());
    expectCentre(400, 300);
    EXPECT_EQ(selected(), QStringList({ "red", "blue" }));
}

TEST_F(Plates, TheToolTakesTurnsWithTheGizmoAndKeepsItsSelection)
{
    click({ 150, 140 });
    EXPECT_EQ(stage().manipulatorName(), "plates");
    EXPECT_NE(stage().handles(), osg::NullFC);
    const QColor outlined = colorAt(99, 140);

    run("plates.edit", false);
    EXPECT_EQ(selected(), QStringList());
    EXPECT_NE(colorAt(99, 140), outlined) << "no outlines in the picture";
    click({ 150, 140 });
    EXPECT_EQ(selected(), QStringList());
    run("plates.edit", true);
    EXPECT_EQ(selected(), QStringList { "red" });

    window.showStartScene();
    EXPECT_EQ(value("plates.list"), QJsonArray()) << "a new scene has no plates";
    EXPECT_EQ(problems, QStringList());
}

TEST_F(Plates, TheyKeepTheirPlaceRelativeToTheWindow)
{
    run("plates.select", QJsonArray { "red" });
    EXPECT_TRUE(run("plates.anchor", "bottomRight"));
    run("plates.edit", false);
    EXPECT_EQ(colorAt(100, 100), QColor(255, 0, 0)) << "a new anchor moves nothing";
    EXPECT_NE(colorAt(99, 100), QColor(255, 0, 0));

    window.view().fixSize({ 700, 450 });
    waitForQuiet();

    // 650 and 460 pixels from the right and lower edge, times 450 / 600; 75 by 60 pixels.
    const QPointF expected(700 - 0.75 * 650, 450 - 0.75 * 460);
    const auto x = static_cast<int>(expected.x());
    const auto y = static_cast<int>(expected.y());
    EXPECT_EQ(colorAt(x, y), QColor(255, 0, 0));
    EXPECT_EQ(colorAt(x + 35, y - 28), QColor(255, 0, 0));
    EXPECT_NE(colorAt(x + 39, y), QColor(255, 0, 0));
    EXPECT_NE(colorAt(x, y + 32), QColor(255, 0, 0));
}

TEST_F(Plates, ADroppedPictureBecomesAPlateThere)
{
    QTemporaryDir folder;
    const QString file = folder.filePath("green.png");
    QImage picture(60, 40, QImage::Format_RGB32);
    picture.fill(Qt::green);
    ASSERT_TRUE(picture.save(file));
    const auto drop = [&](const QString& dropped) {
        emit window.view().filesDropped({ dropped }, { 700.F, 500.F });
    };

    drop(file);
    EXPECT_EQ(selected(), QStringList { "green" });
    EXPECT_EQ(value("plates.anchor"), "bottomRight") << "the nearest place";
    drop(file);
    EXPECT_EQ(selected(), QStringList { "green 2" });
    run("plates.edit", false);
    EXPECT_EQ(colorAt(670, 480), QColor(0, 255, 0));
    EXPECT_EQ(colorAt(729, 519), QColor(0, 255, 0));
    EXPECT_NE(colorAt(730, 519), QColor(0, 255, 0));
    EXPECT_EQ(problems, QStringList());
    drop(file);
    EXPECT_EQ(problems.size(), 1) << "plates are not edited";
    run("plates.edit", true);

    ASSERT_TRUE(QFile::resize(file, 20));
    drop(file);
    EXPECT_EQ(problems.size(), 2);
    EXPECT_TRUE(problems.value(1).contains("green.png"));
    EXPECT_EQ(value("plates.list").toArray().size(), 5);
}

TEST_F(Plates, ThePanelListsStacksHidesAndRenames)
{
    child<QDockWidget>("platesDock")->show();
    auto* list = child<QListWidget>("plateList");
    const auto rows = [list] {
        QStringList texts;
        for (int i = 0; i < list->count(); ++i) {
            texts.append(list->item(i)->text());
        }
        return texts;
    };
    ASSERT_EQ(rows(), QStringList({ "blue", "red", "ground" }));

    list->item(1)->setSelected(true);
    EXPECT_EQ(selected(), QStringList { "red" });
    child<QToolButton>("plates.forward")->click();
    EXPECT_EQ(rows(), QStringList({ "red", "blue", "ground" }));
    EXPECT_TRUE(list->item(0)->isSelected());
    list->item(0)->setCheckState(Qt::Unchecked);
    EXPECT_EQ(value("plates.visible"), false);
    list->item(2)->setText("back");
    EXPECT_EQ(value("plates.list"), QJsonArray({ "red", "blue", "back" }));
    list->item(2)->setText("red");
    EXPECT_EQ(rows().value(2), "back") << "no two have one name";
    EXPECT_EQ(problems.size(), 1);
    while (stage().undo()) { }
    EXPECT_EQ(rows(), QStringList());
}

TEST_F(Plates, ThePanelEditsPropertiesWithUndo)
{
    child<QDockWidget>("platesDock")->show();
    auto* opacity = child<QSpinBox>("plates.opacity");
    EXPECT_FALSE(opacity->isEnabled());
    click({ 150, 140 });
    EXPECT_TRUE(opacity->isEnabled());

    opacity->setValue(50);
    EXPECT_EQ(value("plates.opacity"), 0.5);
    auto* side = child<QComboBox>("plates.front");
    side->setCurrentIndex(1);
    emit side->activated(1);
    EXPECT_EQ(value("plates.front"), false);
    child<QWidget>("plates.rotation")->findChild<QDoubleSpinBox*>()->setValue(30.0);
    EXPECT_EQ(value("plates.rotation"), 30.0);
    child<QCheckBox>("plates.snapping")->click();
    EXPECT_TRUE(stage().gizmo().isSnapping());
    EXPECT_EQ(stepCount(), 6);
    EXPECT_TRUE(stage().undo() && stage().undo() && stage().undo());
    EXPECT_EQ(opacity->value(), 100);
    EXPECT_EQ(side->currentIndex(), 0);
    EXPECT_EQ(problems, QStringList());
}

TEST_F(Plates, TextsBecomePicturesOfTheirColor)
{
    child<QDockWidget>("platesDock")->show();
    child<QLineEdit>("plateText")->setText("A title");
    child<QDoubleSpinBox>("plateTextHeight")->setValue(20.0);
    child<QToolButton>("plates.addText")->click();

    EXPECT_EQ(selected(), QStringList { "A title" });
    EXPECT_EQ(child<QLineEdit>("plateText")->text(), "");
    run("plates.edit", false);
    QString error;
    const QImage picture = window.view().takePicture(error);
    int white = 0;
    for (int y = 230; y < 370; ++y) {
        for (int x = 0; x < 800; ++x) {
            white += picture.pixelColor(x, y) == QColor(255, 255, 255) ? 1 : 0;
        }
    }
    EXPECT_GT(white, 3000);
    child<QToolButton>("plates.addText")->click();
    EXPECT_EQ(problems.size(), 1) << "an empty text is no plate";
}

TEST_F(Plates, CommandsRefuseWhatMakesNoSenseAndChangeNothing)
{
    click({ 150, 140 });

    const struct
    {
        const char* command;
        QJsonValue value;
    } rows[] = {
        { "plates.opacity", 1.5 },
        { "plates.opacity", "much" },
        { "plates.position", QJsonArray { 1 } },
        { "plates.size", QJsonArray { 0, 1 } },
        { "plates.scale", -1 },
        { "plates.rotation", QJsonValue() },
        { "plates.front", 1 },
        { "plates.color", "greenish" },
        { "plates.anchor", "middle" },
        { "plates.name", "blue" },
        { "plates.name", " " },
        { "plates.select", QJsonArray { "nobody" } },
        { "plates.select", "blue" },
        { "plates.visible", QJsonObject { { "name", "nobody" }, { "visible", false } } },
        { "plates.addPicture", QJsonObject { { "file", "/nowhere.png" } } },
        { "plates.addPicture", QJsonObject { { "files", "a.png" } } },
        { "plates.addText", QJsonObject { { "text", "a" }, { "height", 0 } } },
        { "plates.addText", QJsonObject { { "text", "a" }, { "height", "tall" } } },
        { "plates.addText", QJsonObject { { "text", "a" }, { "bold", 1 } } },
        { "plates.addText", QJsonObject { { "text", 1 } } },
        { "plates.addText", QJsonObject { { "text", "a" }, { "color", "greenish" } } },
        { "plates.addColor", QJsonObject { { "color", "red" }, { "size", QJsonArray { -1, 1 } } } },
        { "plates.forward", QJsonValue() },
    };

    run("plates.forward");
    const int steps = stepCount();
    for (const auto& row : rows) {
        lastError.clear();
        EXPECT_FALSE(run(row.command, row.value)) << row.command;
        EXPECT_NE(lastError, QString()) << row.command;
    }
    EXPECT_EQ(stepCount(), steps);
    EXPECT_EQ(selected(), QStringList { "red" });
    run("plates.select", QJsonArray());
    EXPECT_FALSE(run("plates.remove"));
}

}  // namespace
}  // namespace viewer
