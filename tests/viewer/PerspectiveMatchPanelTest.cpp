// SPDX-License-Identifier: MIT
// The panel of the perspective match in the window. With NB_TEST_PICTURES set to a folder it leaves
// a picture there.
#include "tests/viewer/support/ShownWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>

namespace viewer {
namespace {

const QString kPhotograph = QStringLiteral(NB_VIEWER_FOLDER "/models/boxes-photograph.png");

class PerspectiveMatchPanelTest : public ShownWindow
{
protected:
    PerspectiveMatchPanelTest()
    {
        showPanel("matchDock");
        find<QCheckBox>("matchActive")->click();
    }
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
    EXPECT_TRUE(run("match.setPhotograph", kPhotograph));
    const QJsonArray ends { 0.3, 0.7, 0.8, 0.75 };
    EXPECT_TRUE(run("match.setLine", QJsonObject { { "line", "x1" }, { "ends", ends } }));
    EXPECT_TRUE(run("match.setFovMode", "fixed"));
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
    EXPECT_FALSE(run("match.solve"));
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
