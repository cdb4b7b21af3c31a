// SPDX-License-Identifier: MIT
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGWindow.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <utility>
#include <vector>

using testing::ElementsAre;

namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kTolerance = 1e-5f;

int firstCalls = 0;
int secondCalls = 0;

void countFirst()
{
    ++firstCalls;
}

void countSecondOnce()
{
    ++secondCalls;
    nbOSGWidget::subMGLWResizeCB(&countSecondOnce);
}

void removeFirst()
{
    nbOSGWidget::subMGLWResizeCB(&countFirst);
}

class RecordingObserver : public nbOSGWidget::Observer
{
public:
    void redrawRequested() override { ++redraws; }

    void cursorChanged(Qt::CursorShape shape) override { cursors.push_back(shape); }

    int redraws = 0;
    std::vector<Qt::CursorShape> cursors;
};

}  // namespace

TEST(nbOSGWidget, WithoutAWidgetThereAreDefaults)
{
    ASSERT_EQ(nbOSGWidget::getMGLW(-1), nullptr);
    osg::Pnt3f from(1.f, 1.f, 1.f);
    osg::Pnt3f at;
    osg::Vec3f up;

    nbOSGWidget::getFromAtUp(-1, from, at, up);

    EXPECT_EQ(nbOSGWidget::getFov(-1), 45.f);
    EXPECT_EQ(nbOSGWidget::getFrom(-1), osg::Pnt3f(0.f, 0.f, 0.f));
    EXPECT_EQ(from, osg::Pnt3f(0.f, 0.f, 0.f));
    EXPECT_EQ(up, osg::Vec3f(0.f, 1.f, 0.f));
    EXPECT_FALSE(nbOSGWidget::isCameraZUp());
}

TEST(nbOSGWidget, FirstLiveWidgetIsTheMainOneUnlessAnotherIsChosen)
{
    auto first = std::make_unique<nbOSGWidget>();
    auto second = std::make_unique<nbOSGWidget>();
    nbOSGWidget third;
    EXPECT_EQ(nbOSGWidget::getMGLW(-1), first.get());
    EXPECT_EQ(nbOSGWidget::getMGLW(1), second.get());
    EXPECT_EQ(nbOSGWidget::getMGLW(3), nullptr);
    EXPECT_EQ(nbOSGWidget::getMGLW(-2), nullptr);

    second->setMain();
    EXPECT_EQ(nbOSGWidget::getMGLW(-1), second.get());
    EXPECT_EQ(nbOSGWidget::getMGLW(0), first.get());

    second.reset();
    EXPECT_EQ(nbOSGWidget::getMGLW(-1), first.get());
    first.reset();
    EXPECT_EQ(nbOSGWidget::getMGLW(-1), &third);
}

TEST(nbOSGWidget, ReportsExactlyTheCamerasFieldOfView)
{
    const nbOSGWidget widget;
    for (const float fov : { 1.f, 3.f, 3.2f, 45.f, 60.1f, 0.f }) {
        widget.getUberCamera()->setFov(fov);
        EXPECT_EQ(nbOSGWidget::getFov(-1), fov);
    }
}

TEST(nbOSGWidget, ViewRayOfAWidgetWithoutAWindow)
{
    nbOSGWidget widget;
    widget.resize(800, 600);
    widget.getUberCamera()->setFov(90.f);
    widget.getUberCamera()->setNear(1.f);
    osg::Line ray;

    ASSERT_TRUE(widget.getCamera()->calcViewRay(ray, 400, 301, *widget.getViewport()));

    // The eye is at (0, 0, 10); y = 301 is the exact middle of 600 rows.
    EXPECT_TRUE(ray.getPosition().equals(osg::Pnt3f(0.f, 0.f, 9.f), kTolerance));
    EXPECT_TRUE(ray.getDirection().equals(osg::Vec3f(0.f, 0.f, -1.f), kTolerance));
    EXPECT_FLOAT_EQ(widget.getUberCamera()->getRight(), 4.f / 3.f);
}

TEST(nbOSGWidget, SizeZeroIsAViewWithoutArea)
{
    nbOSGWidget widget;
    osg::Line ray;
    for (const auto& [width, height] :
         std::vector<std::pair<int, int>> { { 0, 0 }, { 800, 0 }, { 0, 600 }, { -5, 600 } }) {
        widget.resize(width, height);
        EXPECT_FALSE(widget.getCamera()->calcViewRay(ray, 1, 1, *widget.getViewport()))
            << width << " x " << height;
        EXPECT_EQ(widget.getUberCamera()->getViewAspect(), 1.f);
    }

    widget.resize(1, 1);
    EXPECT_TRUE(widget.getCamera()->calcViewRay(ray, 0, 0, *widget.getViewport()));
    widget.resize(100000, 10);
    EXPECT_EQ(widget.getWidth(), 65535);
    EXPECT_EQ(widget.getViewport()->getPixelWidth(), 65535);
}

TEST(nbOSGWidget, ResizeCallbacksMayTakeThemselvesAway)
{
    nbOSGWidget widget;
    firstCalls = 0;
    secondCalls = 0;
    nbOSGWidget::addMGLWResizeCB(&countSecondOnce);
    nbOSGWidget::addMGLWResizeCB(&countFirst);
    nbOSGWidget::addMGLWResizeCB(&countFirst);
    nbOSGWidget::addMGLWResizeCB(nullptr);

    widget.resize(10, 10);
    widget.resize(10, 10);  // nothing changed
    widget.resize(20, 10);
    EXPECT_EQ(secondCalls, 1);
    EXPECT_EQ(firstCalls, 2) << "added twice, still called once each time";

    nbOSGWidget::subMGLWResizeCB(&countFirst);
    widget.resize(30, 10);
    EXPECT_EQ(firstCalls, 3) << "one of its two registrations is left";

    nbOSGWidget::subMGLWResizeCB(&countFirst);
    nbOSGWidget::addMGLWResizeCB(&removeFirst);
    nbOSGWidget::addMGLWResizeCB(&countFirst);
    widget.resize(40, 10);
    EXPECT_EQ(firstCalls, 3) << "removed by the callback before it";
    nbOSGWidget::subMGLWResizeCB(&removeFirst);
}

TEST(nbOSGWidget, IgnoresPositionsThatAreNoNumbers)
{
    nbOSGWidget widget;
    widget.setMousePosition(osg::Pnt2f(3.f, 4.f));
    widget.setMousePosition(osg::Pnt2f(kNan, 4.f));
    widget.setMousePosition(osg::Pnt2f(1.f, std::numeric_limits<float>::infinity()));
    EXPECT_EQ(widget.getMousePosition(), osg::Pnt2f(3.f, 4.f));
    // Still a whole number of pixels for rays and rectangles.
    widget.setMousePosition(osg::Pnt2f(-1e30f, 2e6f));
    EXPECT_EQ(widget.getMousePosition(), osg::Pnt2f(-1e6f, 1e6f));

    widget.setPressPosition(osg::Pnt2f(kNan, 0.f));
    EXPECT_TRUE(widget.getMouseRect().isNull());
}

TEST(nbOSGWidget, MouseRectangleIsTheSameWhicheverWayItIsDrawn)
{
    nbOSGWidget widget;

    const struct
    {
        const char* name;
        osg::Pnt2f press;
        osg::Pnt2f pointer;
        QRect expected;
    } rows[] = {
        { "down right", { 10.f, 20.f }, { 12.f, 25.f }, QRect(10, 20, 3, 6) },
        { "up left", { 12.f, 25.f }, { 10.f, 20.f }, QRect(10, 20, 3, 6) },
        { "down left", { 12.f, 20.f }, { 10.f, 25.f }, QRect(10, 20, 3, 6) },
        { "one pixel back", { 11.f, 20.f }, { 10.f, 20.f }, QRect(10, 20, 2, 1) },
        { "a point", { 10.9f, 20.1f }, { 10.2f, 20.8f }, QRect(10, 20, 1, 1) },
        { "past the edge", { 5.f, 5.f }, { -0.5f, -3.f }, QRect(-1, -3, 7, 9) },
    };

    for (const auto& row : rows) {
        widget.setPressPosition(row.press);
        widget.setMousePosition(row.pointer);
        EXPECT_EQ(widget.getMouseRect(), row.expected) << row.name;
    }
    widget.clearPressPosition();
    EXPECT_EQ(widget.getMouseRect().width(), 0);
}

TEST(nbOSGWidget, TellsItsObserverNoMoreThanNeeded)
{
    nbOSGWidget widget;
    RecordingObserver observer;
    widget.update();
    widget.setObserver(&observer);
    EXPECT_EQ(observer.redraws, 1) << "asked for before there was an observer";
    widget.update();
    widget.resize(10, 10);
    EXPECT_EQ(observer.redraws, 1);

    widget.redrawDone();
    EXPECT_EQ(observer.redraws, 1) << "nothing changed";
    widget.update();
    EXPECT_EQ(observer.redraws, 2);

    widget.setCursor(Qt::CrossCursor);
    widget.setCursor(Qt::CrossCursor);
    widget.setCursor(Qt::ArrowCursor);
    EXPECT_THAT(observer.cursors, ElementsAre(Qt::CrossCursor, Qt::ArrowCursor));
}

TEST(nbOSGWidget, GivesEverythingBack)
{
    nbScenegraph::getWorldRoot();
    osg::UInt32 ids[3];
    {
        nbOSGWidget widget;
        widget.resize(10, 10);
        ids[0] = widget.getUberCamera().getFieldContainerId();
        ids[1] = widget.getViewport().getFieldContainerId();
        ids[2] = widget.getUberCamera()->getInternalParentNode().getFieldContainerId();
    }
    for (const osg::UInt32 id : ids) {
        EXPECT_EQ(osg::FieldContainerFactory::the()->getContainer(id), osg::NullFC);
    }
}
