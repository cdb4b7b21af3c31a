// SPDX-License-Identifier: MIT
// A person's input to the first window of the manual.
#define main firstWindowMain
#include "examples/FirstWindow.cpp"
#undef main

#include "tests/manipulator/support/WindowInput.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QUndoStack>

#include <gtest/gtest.h>

using nbec::manipulator::test::drag;

TEST(FirstWindow, SelectsDragsCancelsTakesBackAndOrbits)
{
    const osg::NodePtr torus = osg::makeTorus(0.4F, 1.2F, 32, 64);
    nbScenegraph::getRootNode()->addChild(torus);
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
        const auto place = [&torus] { return nbNodeUtils::getTransformNodeTranslation(torus)[0]; };
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
        QTest::mouseRelease(&window, Qt::RightButton, Qt::NoModifier, arrow);
        EXPECT_GT((nbOSGWidget::getFrom(-1) - eye).length(), 1.0F);
    }
    nbSelection::clear();
    nbUndoService::the()->clear();
    nbScenegraph::clear();
}
