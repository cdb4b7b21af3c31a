// SPDX-License-Identifier: MIT
#include "tests/viewer/support/ShownWindow.h"
#include "viewer/loading/StartScene.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QTreeWidget>

namespace viewer {
namespace {

class Panels : public ShownWindow
{ };

TEST_F(Panels, NumbersTypedMoveTheObjectAndFollowIt)
{
    showPanel("objectDock");
    const QList<QDoubleSpinBox*> boxes =
        find<QWidget>("object.translation")->findChildren<QDoubleSpinBox*>();
    ASSERT_EQ(boxes.size(), 3);

    boxes[0]->setValue(2.5);

    EXPECT_FLOAT_EQ(nbNodeUtils::getTransformNodeTranslation(stage().selectedObject())[0], 2.5F);
    EXPECT_TRUE(stage().undo());
    EXPECT_EQ(boxes[0]->value(), 0.0);
    stage().select(osg::NullFC);
    EXPECT_FALSE(boxes[0]->isEnabled());
    EXPECT_EQ(problems, QStringList());
}

TEST_F(Panels, TheTreeSelectsAndShowsWhatIsSelected)
{
    showPanel("sceneDock");
    auto* tree = find<QTreeWidget>("sceneTree");
    ASSERT_EQ(tree->selectedItems().size(), 1);
    EXPECT_EQ(tree->selectedItems().first()->text(0), kStartSceneMainObject);

    const QList<QTreeWidgetItem*> vases = tree->findItems("Vase", Qt::MatchRecursive);
    ASSERT_EQ(vases.size(), 1);
    tree->setCurrentItem(vases.first());
    EXPECT_EQ(stage().selectedName(), "Vase");

    stage().clear();
    EXPECT_EQ(tree->topLevelItemCount(), 0);
    EXPECT_EQ(problems, QStringList());
}

TEST_F(Panels, NumbersOfTheMatchMoveALineAndTheCameraAndAreDrawn)
{
    showPanel("matchDock");
    find<QCheckBox>("matchActive")->click();
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
