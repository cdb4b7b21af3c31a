// SPDX-License-Identifier: MIT
#include <nbKernel/nbOSGWidget.h>

#include <OpenSG/OSGLine.h>

#include <gmock/gmock.h>

#include <memory>
#include <utility>
#include <vector>

using testing::ElementsAre;

namespace {

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
    {
        const nbOSGWidget::Drawing drawing(third);
        EXPECT_EQ(nbOSGWidget::getMGLW(-1), &third);
        {
            const nbOSGWidget::Drawing within(*first);
            EXPECT_EQ(nbOSGWidget::getMGLW(-1), first.get());
        }
        EXPECT_EQ(nbOSGWidget::getMGLW(-1), &third);
        EXPECT_TRUE(second->isMain());
    }
    EXPECT_EQ(nbOSGWidget::getMGLW(-1), second.get());

    second.reset();
    EXPECT_EQ(nbOSGWidget::getMGLW(-1), first.get());
    const nbOSGWidget::Drawing ofOneThatGoes(*first);
    first.reset();
    EXPECT_EQ(nbOSGWidget::getMGLW(-1), &third);
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
