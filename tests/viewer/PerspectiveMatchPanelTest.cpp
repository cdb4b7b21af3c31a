// SPDX-License-Identifier: MIT
// The panel of the perspective match in the window. With NB_TEST_PICTURES set to a folder it leaves
// a picture there.
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/ViewWidget.h"

#include <nbKernelServices/nbUndoService.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QUndoStack>

#include "support/GuiTest.h"

namespace viewer {
namespace {

const QString kPhotograph = QStringLiteral(NB_VIEWER_FOLDER "/models/boxes-photograph.png");

class PerspectiveMatchPanelTest : public GuiTest
{
protected:
    PerspectiveMatchPanelTest()
        : window(MainWindow::Attendance::Unattended)
    {
        QObject::connect(&window, &MainWindow::problem,
                         [this](const QString& text) { problems.append(text); });
        window.show();
        window.showStartScene();
        find<QDockWidget>("matchDock")->show();
        waitForQuiet();
        find<QCheckBox>("matchActive")->click();
    }

    template <class Widget>
    Widget* find(const char* name)
    {
        return window.findChild<Widget*>(QLatin1String(name));
    }

    QImage picture()
    {
        QString error;
        return window.view().takePicture(error);
    }

    static int steps() { return nbUndoService::the()->getStack()->index(); }

    Stage& stage() { return window.view().stage(); }

    MainWindow window;
    QStringList problems;
};

TEST_F(PerspectiveMatchPanelTest, NumbersMoveALineAndTheCameraAndAreDrawn)
{
    ASSERT_EQ(stage().manipulatorName(), "match");
    auto* number = find<QDoubleSpinBox>("matchLine_x1_1");
    const QImage before = picture();
    const double valueBefore = number->value();

    number->setValue(valueBefore + 0.05);

    EXPECT_EQ(steps(), 1);
    EXPECT_NE(picture(), before);
    EXPECT_TRUE(stage().undo());
    EXPECT_EQ(number->value(), valueBefore);
    EXPECT_EQ(picture(), before);
    number->setValue(valueBefore);
    EXPECT_EQ(steps(), 0) << "the number shown is no edit";
}

TEST_F(PerspectiveMatchPanelTest, ShowsWhatIsSetElsewhereAndRefusesWithALock)
{
    QString error;
    Commands& commands = stage().commands();
    EXPECT_TRUE(commands.run("match.setPhotograph", kPhotograph, error)) << error.toStdString();
    const QJsonArray ends { 0.3, 0.7, 0.8, 0.75 };
    EXPECT_TRUE(
        commands.run("match.setLine", QJsonObject { { "line", "x1" }, { "ends", ends } }, error));
    EXPECT_TRUE(commands.run("match.setFovMode", "fixed", error));
    EXPECT_EQ(find<QLabel>("matchPhotograph")->text(), "boxes-photograph.png");
    EXPECT_EQ(find<QDoubleSpinBox>("matchLine_x1_3")->value(), 0.75);
    EXPECT_EQ(find<QComboBox>("matchFovMode")->currentIndex(), 1);
    waitForQuiet();
    const QString folder = QString::fromLocal8Bit(qgetenv("NB_TEST_PICTURES"));
    if (!folder.isEmpty()) {
        window.grab().save(folder + QStringLiteral("/PerspectiveMatchPanel.png"));
    }

    find<QCheckBox>("matchLocked")->click();
    EXPECT_FALSE(find<QDoubleSpinBox>("matchLine_x1_3")->isEnabled());
    EXPECT_FALSE(commands.run("match.solve", {}, error));
    find<QCheckBox>("matchActive")->click();
    EXPECT_EQ(stage().manipulatorName(), "universal");
    stage().setOrthographic(true);
    find<QCheckBox>("matchActive")->click();
    EXPECT_FALSE(find<QCheckBox>("matchActive")->isChecked());
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems.first().contains(QStringLiteral("orthographic")));
}

}  // namespace
}  // namespace viewer
