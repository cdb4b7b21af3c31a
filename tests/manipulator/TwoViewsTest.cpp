// SPDX-License-Identifier: MIT
// A person's input to the window with two views of the manual.
#define main twoViewsMain
#include "examples/TwoViews.cpp"
#undef main

#include "tests/manipulator/support/GizmoScene.h"
#include "tests/manipulator/support/WindowInput.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QUndoStack>

#include <gtest/gtest.h>

namespace nbec::manipulator::test {

namespace {

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
        const osg::NodePtr part = findNode(nbScenegraph::getInternalRoot(), "xaShape");
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

    int taken()
    {
        QTest::qWait(60);
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

}  // namespace

TEST(TwoViews, TheGizmoHasItsSizeIsHoveredAndDraggedInEachAndEachIsDrawnOnceForAChange)
{
    const osg::NodePtr torus = osg::makeTorus(0.4F, 1.2F, 32, 64);
    nbScenegraph::getRootNode()->addChild(torus);
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
            const auto [place, length] = each->arrow();
            EXPECT_NEAR(length, 80.0, 1.0);
            first.taken();
            above.taken();
            for (const int expected : { 1, 0 }) {  // lit, and nothing new
                move(each->view, place + QPoint(expected, 0));
                EXPECT_EQ(first.taken(), expected);
                EXPECT_EQ(above.taken(), expected);
            }
            EXPECT_NE(first.view.takePicture(), before[0]) << "lit in both";
            EXPECT_NE(above.view.takePicture(), before[1]);

            drag(each->view, Qt::LeftButton, place);
            EXPECT_GT(nbNodeUtils::getTransformNodeTranslation(torus)[0], 0.3F);
            EXPECT_NEAR(first.arrow().second, 80.0, 1.0) << "in the drag";
            EXPECT_NEAR(above.arrow().second, 80.0, 1.0);
            QTest::mouseRelease(&each->view, Qt::LeftButton, Qt::NoModifier, place);
            EXPECT_EQ(nbUndoService::the()->getStack()->index(), 1);
            QTest::keyClick(&each->view, Qt::Key_Z, Qt::ControlModifier);
            EXPECT_EQ(nbNodeUtils::getTransformNodeTranslation(torus)[0], 0.0F);
            QEvent left(QEvent::Leave);
            QApplication::sendEvent(&each->view, &left);
        }
        EXPECT_EQ(first.view.takePicture(), before[0]);
        EXPECT_EQ(above.view.takePicture(), before[1]);
    }
    setSizePolicy({});
    nbSelection::clear();
    nbUndoService::the()->clear();
    nbScenegraph::clear();
}

}  // namespace nbec::manipulator::test
