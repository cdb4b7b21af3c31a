// SPDX-License-Identifier: MIT
#include "tests/platform/nbInteraction/PickerTestSupport.h"
#include "tests/platform/support/Plates.h"

#include <gmock/gmock.h>

using nbec::interaction::Picker;
using platetest::PlatePx;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const osg::Color4f kWhite(1.f, 1.f, 1.f, 1.f);

}  // namespace

/// A view of 800 x 600 pixels with plates, picked by a picker of plates.
class PickerPlateTest : public PickerTest
{
protected:
    PickerPlateTest() { picker.setFilter(Picker::SceneplateFilter); }

    static osg::NodePtr add(const std::string& name, const PlatePx& place,
                            const std::function<void(const osg::SceneplatePtr&)>& change = {})
    {
        const osg::NodePtr node = named(name, platetest::makePlate(place, 600, kWhite, change));
        hang(nbScenegraph::getSceneplateRoot(), node);
        return node;
    }

    std::vector<std::string> namesIn(const QRect& rect)
    {
        std::vector<std::string> names;
        for (const osg::NodePtr& node : picker.pickRectangle(rect)) {
            names.push_back(nbNodeUtils::getName(node));
        }
        return names;
    }
};

TEST_F(PickerPlateTest, ForemostPlateIsHitWhateverTheSceneHides)
{
    hang(nbScenegraph::getRootNode(), named("box", box(4.f)));
    const auto front = [](bool isFront, int order) {
        return [=](const osg::SceneplatePtr& plate) {
            plate->setFront(isFront);
            plate->setOrder(order);
        };
    };
    add("back", { 400.f, 300.f, 300.f, 300.f }, front(false, 100));
    const osg::NodePtr high = add("high", { 400.f, 300.f, 100.f, 100.f }, front(true, 2));
    add("low", { 400.f, 300.f, 200.f, 200.f }, front(true, 1));

    EXPECT_EQ(nameAt(400.f, 300.f), "high");
    EXPECT_EQ(picker.getHitNode(), high);
    EXPECT_EQ(nameAt(340.f, 300.f), "low");
    EXPECT_EQ(nameAt(290.f, 300.f), "back");
    EXPECT_EQ(nameAt(200.f, 300.f), "");
    EXPECT_EQ(picker.getHitNode(), osg::NullFC);
    setActive(high, false);
    EXPECT_EQ(nameAt(400.f, 300.f), "low");
    picker.setFilter(Picker::SceneFilter);
    EXPECT_EQ(nameAt(400.f, 300.f), "box") << "the scene does not know plates";
}

TEST_F(PickerPlateTest, RectangleTakesPlatesThatLieInsideAsFarAsTheyAreInView)
{
    add("left", { 100.f, 100.f, 40.f, 40.f });
    add("turned", { 200.f, 100.f, 40.f, 40.f, 45.f });  // 56.6 wide
    add("ground", { 400.f, 300.f, 800.f, 600.f }, [](const auto& p) { p->setFront(false); });
    add("half out", { 0.f, 300.f, 100.f, 40.f });
    add("outside", { -200.f, 300.f, 100.f, 40.f });
    add("hidden", { 100.f, 100.f, 10.f, 10.f }, [](const auto& p) { p->setVisible(false); });
    hang(nbScenegraph::getSceneplateRoot(),
         placed(0.f, 0.f, 0.f, add("below a transform", { 300.f, 100.f, 40.f, 40.f })));

    EXPECT_THAT(namesIn(QRect(70, 60, 200, 80)), ElementsAre("left", "turned"));
    EXPECT_THAT(namesIn(QRect(QPoint(269, 139), QPoint(70, 60))), ElementsAre("left", "turned"))
        << "drawn up and to the left";
    EXPECT_THAT(namesIn(QRect(80, 80, 40, 40)), ElementsAre("left")) << "exactly its pixels";
    EXPECT_THAT(namesIn(QRect(81, 80, 39, 40)), IsEmpty());
    EXPECT_THAT(namesIn(QRect(175, 75, 50, 50)), IsEmpty()) << "the corners of the turned one";
    EXPECT_THAT(namesIn(QRect(0, 250, 120, 100)), ElementsAre("half out"));
    EXPECT_THAT(namesIn(QRect(0, 0, 800, 600)),
                ElementsAre("ground", "left", "turned", "half out"));
    EXPECT_THAT(namesIn(QRect()), IsEmpty());
}
