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

}  // namespace
}  // namespace viewer
