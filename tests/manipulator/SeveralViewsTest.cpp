// SPDX-License-Identifier: MIT
// Two views of one scene, of different size, camera and pixel ratio.
#include "tests/manipulator/support/AnyManipulator.h"

#include <EditStamp.h>

namespace nbec::manipulator::test {

template <class Gizmo>
class SeveralViews : public AnyManipulator<Gizmo>
{
protected:
    SeveralViews()
    {
        other.resize(360, 900);
        other.setPixelRatio(1.5F);
        other.getUberCamera()->setFromAtUp(Pnt3f(-9, 4, 2), Pnt3f(0, 0, 1), Vec3f(0, 1, 0));
        nbtest::edited(other.getUberCamera())->setOrthographic(true);
    }

    ~SeveralViews() override { setSizePolicy({}); }

    void draw(nbOSGWidget& view)
    {
        const nbOSGWidget::Drawing drawing(view);
        this->gizmo->update(false);
    }

    void drawBoth()
    {
        draw(other);
        draw(*this->stage.view);
    }

    /// Where a view shows each part, and whether.
    std::vector<osg::Matrix> drawnIn(nbOSGWidget& view)
    {
        draw(view);
        std::vector<osg::Matrix> places;
        for (const osg::NodePtr& part : partsOf(this->gizmo->getVisualisation())) {
            places.push_back(isShown(part) ? part->getToWorld() : osg::Matrix());
        }
        return places;
    }

    /// What a drag edits, and how it is drawn in the end. @param between  before each event
    template <class Between>
    auto dragged(Between between)
    {
        for (const char* const event : { "hover", "start", "process", "process", "process" }) {
            between();
            this->point(this->pointer + Vec2f(event[0] == 'p' ? 9 : 0, 0));
            EXPECT_TRUE(this->say(event)) << event;
        }
        const auto result = std::make_pair(this->edited(), drawnIn(*this->stage.view));
        EXPECT_TRUE(this->gizmo->cancelDrag());
        this->point(this->pointer - Vec2f(27, 0));
        return result;
    }

    nbOSGWidget other;
};

TYPED_TEST_SUITE(SeveralViews, AllKinds, );

TYPED_TEST(SeveralViews, EachShowsTheGizmoAsIfItWereAlone)
{
    for (const float arrowPx : { 0.0F, 96.0F }) {
        setSizePolicy({ arrowPx });
        const auto first = this->drawnIn(*this->stage.view);
        const auto inOther = this->drawnIn(this->other);
        EXPECT_NE(first, inOther);
        EXPECT_EQ(this->drawnIn(*this->stage.view), first);

        this->other.setMain();
        this->gizmo->update(true);
        EXPECT_EQ(this->drawnIn(this->other), inOther);
        this->stage.view->setMain();
    }
}

TYPED_TEST(SeveralViews, DrawingOneIsNoReasonToDrawAnotherAndDoesNotDisturbThePointer)
{
    ASSERT_TRUE(this->hover(this->kTraits.handle));
    this->drawBoth();
    const osg::UInt64 stamp = osg::glue::viewStamp();
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(this->say("hover"));
        EXPECT_TRUE(this->isLit(this->kTraits.handle));
        this->drawBoth();
        this->draw(this->other);
    }
    EXPECT_EQ(osg::glue::viewStamp(), stamp);
    this->say("stopHover");
    EXPECT_NE(osg::glue::viewStamp(), stamp);
}

TYPED_TEST(SeveralViews, ADragIsThatOfTheViewItBeganIn)
{
    ASSERT_TRUE(this->hover(this->kTraits.handle));
    const auto alone = this->dragged([] {});
    EXPECT_EQ(this->dragged([this] { this->draw(this->other); }), alone);
}

}  // namespace nbec::manipulator::test
