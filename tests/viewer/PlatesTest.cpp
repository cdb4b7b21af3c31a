// SPDX-License-Identifier: MIT
#include "tests/viewer/support/ShownWindow.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QToolButton>

namespace viewer {
namespace {

class Plates : public ShownWindow
{
protected:
    Plates()
    {
        stage().clear();
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

    QStringList selected()
    {
        QStringList names;
        for (const QJsonValue& name : value("plates.selected").toArray()) {
            names.append(name.toString());
        }
        return names;
    }

    QColor colorAt(int x, int y) { return picture().pixelColor(x, y); }
};

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

TEST_F(Plates, ADroppedPictureBecomesAPlateThere)
{
    QTemporaryDir folder;
    const QString file = writePlainPicture(folder.filePath("green.png"), { 60, 40 }, Qt::green);
    const auto drop = [&](const QString& dropped) {
        emit window.view().filesDropped({ dropped }, { 700.0F, 500.0F });
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
    showPanel("platesDock");
    auto* list = find<QListWidget>("plateList");
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
    find<QToolButton>("plates.forward")->click();
    EXPECT_EQ(rows(), QStringList({ "red", "blue", "ground" }));
    EXPECT_TRUE(list->item(0)->isSelected());
    find<QDoubleSpinBox>("plates.opacity")->setValue(50);
    EXPECT_EQ(value("plates.opacity"), 0.5);
    EXPECT_TRUE(stage().undo());
    EXPECT_EQ(find<QDoubleSpinBox>("plates.opacity")->value(), 100);
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

TEST_F(Plates, TextsBecomePicturesOfTheirColor)
{
    showPanel("platesDock");
    find<QLineEdit>("plateText")->setText("A title");
    find<QDoubleSpinBox>("plateTextHeight")->setValue(20.0);
    find<QToolButton>("plates.addText")->click();

    EXPECT_EQ(selected(), QStringList { "A title" });
    find<QLineEdit>("plateText")->setText("Another");
    pressKey(*find<QLineEdit>("plateText"), Qt::Key_Return);
    EXPECT_EQ(value("plates.text")["text"], QJsonValue("Another"));
    EXPECT_EQ(selected(), QStringList { "Another" }) << "its text had named it";
    EXPECT_TRUE(stage().undo());
    EXPECT_EQ(selected(), QStringList { "A title" });
    EXPECT_EQ(value("plates.text")["text"], QJsonValue("A title"));
    EXPECT_EQ(find<QLineEdit>("plateText")->text(), "A title") << "what is shown can be edited";
    run("plates.edit", false);
    const QImage shown = picture();
    int white = 0;
    for (int y = 230; y < 370; ++y) {
        for (int x = 0; x < 800; ++x) {
            white += shown.pixelColor(x, y) == QColor(255, 255, 255) ? 1 : 0;
        }
    }
    EXPECT_GT(white, 3000);
    find<QLineEdit>("plateText")->clear();
    find<QToolButton>("plates.addText")->click();
    EXPECT_EQ(problems.size(), 1) << "an empty text is no plate";
}

TEST_F(Plates, CommandsRefuseWhatMakesNoSenseAndChangeNothing)
{
    click({ 150, 140 });

    run("plates.forward");
    const int stepsBefore = steps();
    const std::pair<const char*, QJsonValue> rows[] = {
        { "plates.opacity", 1.5 },
        { "plates.position", QJsonArray { 1 } },
        { "plates.size", QJsonArray { 0, 1 } },
        { "plates.scale", -1 },
        { "plates.front", 1 },
        { "plates.color", "greenish" },
        { "plates.anchor", "middle" },
        { "plates.name", "blue" },
        { "plates.select", QJsonArray { "nobody" } },
        { "plates.visible", QJsonObject { { "name", "nobody" }, { "visible", false } } },
        { "plates.addPicture", QJsonObject { { "file", "/nowhere.png" } } },
        { "plates.addText", QJsonObject { { "text", "a" }, { "height", 0 } } },
        { "plates.addText", QJsonObject { { "text", "a" }, { "color", "greenish" } } },
        { "plates.addColor", QJsonObject { { "color", "red" }, { "size", QJsonArray { -1, 1 } } } },
        { "plates.forward", QJsonValue() },
    };
    for (const auto& [command, typed] : rows) {
        EXPECT_FALSE(run(command, typed)) << command;
    }
    EXPECT_EQ(steps(), stepsBefore);
    EXPECT_EQ(selected(), QStringList { "red" });
    run("plates.select", QJsonArray());
    EXPECT_FALSE(run("plates.remove"));
}

}  // namespace
}  // namespace viewer
