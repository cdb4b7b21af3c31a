// SPDX-License-Identifier: MIT
// A person's input to the windows of the manual.
#define main firstWindowMain
#include "examples/FirstWindow.cpp"
#undef main
#define main twoViewsMain
#include "examples/TwoViews.cpp"
#undef main

#include "tests/manipulator/support/GizmoScene.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QUndoStack>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace {

using nbec::manipulator::View;

void move(QWidget& window, const QPoint& place, Qt::MouseButton held = Qt::NoButton)
{
    QMouseEvent event(QEvent::MouseMove, place, window.mapToGlobal(place), Qt::NoButton, held,
                      Qt::NoModifier);
    QApplication::sendEvent(&window, &event);
}

/// Drags to the right and somewhat up, as far as before the release.
void drag(QWidget& window, Qt::MouseButton button, const QPoint& from)
{
    move(window, from);
    QTest::mousePress(&window, button, Qt::NoModifier, from);
    for (int x = 0; x <= 80; x += 20) {
        move(window, from + QPoint(x, -x / 4), button);
    }
}

/// Counts the pictures of a widget.
class Pictures : public QObject
{
public:
    explicit Pictures(nbViewWidget& drawn)
        : view(drawn)
    {
        view.installEventFilter(this);
        view.setCoarseWhileMoving(false);  // a whole picture would follow each
    }

    /// Where a point of the x arrow is drawn, and how long the arrow is from the side; logical
    /// pixels.
    std::pair<QPoint, double> arrow()
    {
        view.takePicture();
        const nbOSGWidget::Drawing drawing(view.view());
        const osg::NodePtr part =
            nbec::manipulator::test::findNode(nbScenegraph::getInternalRoot(), "xaShape");
        const osg::Matrix world = part->getParent()->getToWorld();
        osg::Pnt3f centre;
        world.multMatrixPnt(centre);
        osg::Pnt3f tip(2, 0, 0);
        world.multMatrixPnt(tip);
        const View seen;
        const double length = (tip - centre).length() / seen.unitsPerPixel(centre);
        const osg::Vec2f px = seen.project(centre + (tip - centre) * 0.6F);
        const auto height = static_cast<float>(view.sizePx().height());
        return { view.toLogical({ px.x(), height - px.y() }).toPoint(),
                 length / view.devicePixelRatioF() };
    }

    /// Since the last call.
    int taken()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !view.view().isRedrawPending(); }));
        QCoreApplication::processEvents();
        return std::exchange(count, 0);
    }

    nbViewWidget& view;

private:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};

/// What the windows show and leave.
class WindowsOfTheManual : public testing::Test
{
protected:
    WindowsOfTheManual() { nbScenegraph::getRootNode()->addChild(torus); }

    ~WindowsOfTheManual() override
    {
        nbec::manipulator::setSizePolicy({});
        nbSelection::clear();
        nbUndoService::the()->clear();
        nbScenegraph::clear();
    }

    float place() const { return nbNodeUtils::getTransformNodeTranslation(torus)[0]; }

    const osg::NodePtr torus = osg::makeTorus(0.4F, 1.2F, 32, 64);
};

}  // namespace

TEST_F(WindowsOfTheManual, FirstOneSelectsDragsCancelsTakesBackAndOrbits)
{
    FirstWindow window;
    window.fixSize(QSize(800, 600));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QApplication::setActiveWindow(&window);
    const QImage unselected = window.takePicture();
    const QPoint onTorus = window.toLogical(osg::Pnt2f(400, 215)).toPoint();
    QTest::mouseClick(&window, Qt::LeftButton, Qt::NoModifier, onTorus);
    ASSERT_EQ(nbSelection::getLast(), torus);
    const QImage selected = window.takePicture();
    EXPECT_NE(selected, unselected) << "the gizmo is drawn";

    const QPoint arrow = window.toLogical(osg::Pnt2f(497, 300)).toPoint();
    drag(window, Qt::LeftButton, arrow);
    EXPECT_GT(place(), 0.5F);
    QTest::keyClick(&window, Qt::Key_Escape);
    QTest::mouseRelease(&window, Qt::LeftButton, Qt::NoModifier, arrow);
    EXPECT_EQ(place(), 0.0F) << "cancelled";
    EXPECT_FALSE(nbUndoService::the()->getStack()->canUndo());

    drag(window, Qt::LeftButton, arrow);
    QTest::mouseRelease(&window, Qt::LeftButton, Qt::NoModifier, arrow + QPoint(80, 0));
    const float after = place();
    EXPECT_GT(after, 0.5F);
    EXPECT_EQ(nbUndoService::the()->getStack()->count(), 1);
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(place(), 0.0F);
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(place(), after);

    const osg::Pnt3f eye = nbOSGWidget::getFrom(-1);
    drag(window, Qt::RightButton, arrow);
    QTest::mouseRelease(&window, Qt::RightButton, Qt::NoModifier, arrow + QPoint(80, 0));
    EXPECT_GT((nbOSGWidget::getFrom(-1) - eye).length(), 1.0F);
}

TEST_F(WindowsOfTheManual, TwoViewsHaveAndMoveTheGizmoEachAndAreDrawnOnceForAChange)
{
    TwoViews window;
    window.resize(900, 400);
    window.setSizes({ 600, 300 });
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QApplication::setActiveWindow(&window);
    nbSelection::set(torus);
    Pictures first(dynamic_cast<nbViewWidget&>(*window.widget(0)));
    Pictures above(dynamic_cast<nbViewWidget&>(*window.widget(1)));
    const QImage before[] = { first.view.takePicture(), above.view.takePicture() };
    for (Pictures* const each : { &first, &above }) {
        const auto [arrow, length] = each->arrow();
        EXPECT_NEAR(length, 80.0, 1.0);
        first.taken();
        above.taken();
        for (const int expected : { 1, 0 }) {  // lit, and nothing new
            move(each->view, arrow + QPoint(expected, 0));
            EXPECT_EQ(first.taken(), expected);
            EXPECT_EQ(above.taken(), expected);
        }
        EXPECT_NE(first.view.takePicture(), before[0]) << "lit in both";
        EXPECT_NE(above.view.takePicture(), before[1]);

        drag(each->view, Qt::LeftButton, arrow);
        EXPECT_GT(place(), 0.3F);
        EXPECT_NEAR(first.arrow().second, 80.0, 1.0) << "in the drag";
        EXPECT_NEAR(above.arrow().second, 80.0, 1.0);
        QTest::mouseRelease(&each->view, Qt::LeftButton, Qt::NoModifier, arrow);
        QTest::keyClick(&each->view, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(place(), 0.0F);
        QEvent left(QEvent::Leave);
        QApplication::sendEvent(&each->view, &left);
    }
    EXPECT_EQ(first.view.takePicture(), before[0]);
    EXPECT_EQ(above.view.takePicture(), before[1]);
}
