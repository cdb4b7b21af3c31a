// SPDX-License-Identifier: MIT
#include "tests/platform/support/Plates.h"

#include <nbOpenSGSceneplate/nbSceneplateLayout.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGTransform.h>

#include <gmock/gmock.h>

#include <cmath>

using osg::Pnt2f;
using osg::Sceneplate;
using osg::Vec2f;
using Layout = nbSceneplateLayout;

namespace {

constexpr float kTolerancePx = 1e-3f;
const osg::Color4f kWhite(1.f, 1.f, 1.f, 1.f);

/// A plate with its fields as they are.
class Plate
{
public:
    explicit Plate(const std::function<void(const osg::SceneplatePtr&)>& change)
        : node(platetest::makePlate({}, 1, kWhite, change))
    { }

    operator osg::SceneplatePtr() const { return platetest::plateOf(node.get()); }

private:
    osg::NodeRefPtr node;
};

Plate anchored(osg::Int32 anchor, const Vec2f& position, const Vec2f& size, float rotation = 0.f)
{
    return Plate([&](const osg::SceneplatePtr& plate) {
        plate->setAnchor(anchor);
        plate->setPosition(position);
        plate->setSize(size);
        plate->setRotation(rotation);
    });
}

void expectAt(const Pnt2f& actual, float x, float y)
{
    EXPECT_NEAR(actual.x(), x, kTolerancePx);
    EXPECT_NEAR(actual.y(), y, kTolerancePx);
}

}  // namespace

TEST(nbSceneplateLayout, TurnedPlatesTurnCounterClockwiseOnScreen)
{
    const Plate plate = anchored(Sceneplate::Centre, Vec2f(0.f, 0.f), Vec2f(0.4f, 0.2f), 30.f);
    const Layout::Corners corners = Layout::corners(plate, 1000, 1000);
    const float c = std::cos(3.14159265f / 6.f);
    const float s = 0.5f;

    expectAt(corners[1], 500.f + 200.f * c + 100.f * s, 500.f - (200.f * s - 100.f * c));
    expectAt(corners[3], 500.f - 200.f * c - 100.f * s, 500.f - (-200.f * s + 100.f * c));
    EXPECT_FALSE(Layout::isOnPixels(plate));
}

TEST(nbSceneplateLayout, FramesAreTurnedForOnePlateAndUprightForSeveral)
{
    const Plate one = anchored(Sceneplate::Centre, Vec2f(0.1f, 0.f), Vec2f(0.2f, 0.1f), 45.f);
    const Plate other = anchored(Sceneplate::BottomLeft, Vec2f(0.1f, 0.2f), Vec2f(0.2f, 0.2f));

    const Layout::Frame single = Layout::frame({ one }, 1000, 1000);
    expectAt(single.centre, 600.f, 500.f);
    EXPECT_NEAR(single.size.x(), 200.f, kTolerancePx);
    EXPECT_EQ(single.rotation, 45.f);

    const Layout::Frame both = Layout::frame({ one, osg::SceneplatePtr(), other }, 1000, 1000);
    const float reach = 150.f / std::sqrt(2.f);
    const float right = 600.f + reach;
    const float top = 500.f - reach;
    expectAt(both.centre, 0.5f * right, 0.5f * (top + 900.f));
    EXPECT_NEAR(both.size.x(), right, kTolerancePx);
    EXPECT_EQ(both.rotation, 0.f);
    EXPECT_EQ(Layout::frame({}, 1000, 1000).size.x(), 0.f);
}

TEST(nbSceneplateLayout, OffsetsAndPositionsAreTheInverseOfPixels)
{
    const Vec2f offset = Layout::toOffset(Vec2f(60.f, 30.f), 600);
    EXPECT_FLOAT_EQ(offset.x(), 0.1f);
    EXPECT_FLOAT_EQ(offset.y(), -0.05f);
    const Plate plate = anchored(
        Sceneplate::Right, Layout::positionAt(Sceneplate::Right, Pnt2f(123.f, 45.f), 800, 600),
        Vec2f(0.1f, 0.1f));
    expectAt(Layout::centre(plate, 800, 600), 123.f, 45.f);
}

TEST(nbSceneplateList, FindsPlatesBelowGroupsInDrawingOrder)
{
    const auto plate = [](const char* name, bool front, int order) {
        const osg::NodePtr node =
            platetest::makePlate({ 1.f, 1.f, 1.f, 1.f }, 1, kWhite, [&](const auto& p) {
                p->setFront(front);
                p->setOrder(order);
            });
        nbNodeUtils::setName(node, name);
        return node;
    };
    const osg::NodePtr moved = osg::makeCoredNode<osg::Transform>();
    moved->addChild(plate("below a transform", true, 0));
    const osg::NodePtr hidden = osg::makeCoredNode<osg::Group>();
    hidden->setActive(false);
    hidden->addChild(plate("hidden", true, 9));
    const osg::NodePtr group = osg::makeCoredNode<osg::Group>();
    group->addChild(plate("front 2", true, 2));
    group->addChild(plate("front 1", true, 1));
    const osg::NodeRefPtr root(osg::makeCoredNode<osg::Group>());
    for (const osg::NodePtr& child :
         { moved, hidden, group, plate("back", false, 5), plate("front 1 again", true, 1) }) {
        root->addChild(child);
    }

    std::vector<std::string> names;
    for (const auto& entry : nbSceneplateList::collectShown(root.get())) {
        names.push_back(nbNodeUtils::getName(entry.node));
    }

    EXPECT_THAT(names, testing::ElementsAre("back", "front 1", "front 1 again", "front 2"));
    EXPECT_EQ(nbSceneplateList::collect(root.get()).size(), 5U);
    EXPECT_TRUE(nbSceneplateList::collectShown(osg::NullFC).empty());
}
