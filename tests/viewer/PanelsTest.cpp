// SPDX-License-Identifier: MIT
#include "tests/viewer/support/ShownWindow.h"
#include "viewer/loading/StartScene.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>
#include <QWheelEvent>

namespace viewer {
namespace {

class Panels : public ShownWindow
{
protected:
    /// A row of fields of the object's panel, which is shown.
    QWidget* fields(const char* name)
    {
        window.activateWindow();
        showPanel("objectDock");
        return find<QWidget>(name);
    }
};

TEST_F(Panels, FieldsReadWhatIsTypedAndSayWhatTheyRefuse)
{
    auto* box = fields("object.translation")->findChild<QDoubleSpinBox*>();
    const auto type = [&](const char* text) {
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Return);
        waitForQuiet();
        return nbNodeUtils::getTransformNodeTranslation(stage().selectedObject())[0];
    };
    EXPECT_FLOAT_EQ(type("1,5"), 1.5F);
    EXPECT_EQ(QApplication::focusWidget(), &window.view()) << "Enter gives the keys back";
    EXPECT_FLOAT_EQ(type("2*1.5"), 3.0F);
    EXPECT_FLOAT_EQ(type("20 cm + .05 mm"), 0.20005F);
    EXPECT_EQ(box->text(), "0.2");
    EXPECT_FLOAT_EQ(type("0.2"), 0.20005F) << "decimals that are not shown are kept";
    EXPECT_EQ(steps(), 3);
    EXPECT_FLOAT_EQ(type("1.234,5"), 0.20005F);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems.first().startsWith("\"1.234,5\"")) << problems.first().toStdString();
    EXPECT_FLOAT_EQ(type("2e6"), 0.20005F) << "beyond the bounds";
    EXPECT_EQ(steps(), 3);
    EXPECT_EQ(problems.size(), 2);
}

TEST_F(Panels, TheWheelAndUndoOfAFieldThatIsNotTypedInAreNotTheFields)
{
    auto* box = fields("object.translation")->findChild<QDoubleSpinBox*>();
    const QPointF middle = box->rect().center();
    QWheelEvent wheel(middle, box->mapToGlobal(middle.toPoint()), {}, { 0, 120 }, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(box, &wheel);
    EXPECT_EQ(box->value(), 0.0);
    EXPECT_NE(box->focusPolicy(), Qt::WheelFocus);

    box->setValue(1.0);
    ASSERT_EQ(steps(), 1);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(steps(), 0);
    QTest::keyClicks(box, "2");
    QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box->text(), "0");
    EXPECT_EQ(steps(), 0);
}

TEST_F(Panels, ADragInAFieldStepsItAsOneStepAndLinkedScalesKeepTheirRatio)
{
    auto* scale = fields("object.scale");
    scale->findChild<QToolButton*>()->click();
    auto* line = scale->findChild<QDoubleSpinBox*>()->findChild<QLineEdit*>();
    QTest::mousePress(line, Qt::LeftButton, {}, { 5, 5 });
    for (const int x : { 30, 65 }) {
        QMouseEvent moved(QEvent::MouseMove, QPoint(x, 5), line->mapToGlobal(QPoint(x, 5)),
                          Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(line, &moved);
    }
    QTest::mouseRelease(line, Qt::LeftButton, {}, { 65, 5 });
    EXPECT_EQ(nbNodeUtils::getTransformNodeScale(stage().selectedObject()), osg::Vec3f(2, 2, 2));
    EXPECT_EQ(steps(), 1);
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
    vases.first()->setText(0, " ");
    EXPECT_EQ(vases.first()->text(0), "Vase") << "a name that is refused is not shown";
    EXPECT_EQ(problems.size(), 1);

    stage().clear();
    EXPECT_EQ(tree->topLevelItemCount(), 0);
    EXPECT_EQ(problems.size(), 1);
}

TEST_F(Panels, NumbersOfTheMatchMoveALineAndTheCameraAndAreDrawn)
{
    showPanel("matchDock");
    find<QCheckBox>("match.setActive")->click();
    ASSERT_EQ(stage().manipulatorName(), "match");
    auto* number = find<QWidget>("matchLine_x1")->findChildren<QDoubleSpinBox*>().value(1);
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
