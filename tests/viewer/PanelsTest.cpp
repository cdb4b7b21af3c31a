// SPDX-License-Identifier: MIT
#include "viewer/core/StartScene.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/ViewWidget.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QTreeWidget>

#include "support/GuiTest.h"

namespace viewer {
namespace {

class Panels : public GuiTest
{
protected:
    Panels()
        : window(MainWindow::Attendance::Unattended)
    {
        QObject::connect(&window, &MainWindow::problem,
                         [this](const QString& text) { problems.append(text); });
        window.show();
        window.showStartScene();
    }

    void showPanel(const char* name)
    {
        auto* dock = window.findChild<QDockWidget*>(QLatin1String(name));
        ASSERT_NE(dock, nullptr);
        dock->show();
        waitForQuiet();
    }

    Stage& stage() { return window.view().stage(); }

    MainWindow window;
    QStringList problems;
};

TEST_F(Panels, NumbersTypedMoveTheObjectAndFollowIt)
{
    showPanel("objectDock");
    auto* edit = window.findChild<QWidget*>(QStringLiteral("object.translation"));
    ASSERT_NE(edit, nullptr);
    const QList<QDoubleSpinBox*> boxes = edit->findChildren<QDoubleSpinBox*>();
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
    auto* tree = window.findChild<QTreeWidget*>(QStringLiteral("sceneTree"));
    ASSERT_NE(tree, nullptr);
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

}  // namespace
}  // namespace viewer
