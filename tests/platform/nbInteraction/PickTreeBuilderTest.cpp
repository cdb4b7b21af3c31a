// SPDX-License-Identifier: MIT
// Search trees that another thread builds.
#include "tests/platform/support/Edited.h"

#include <nbInteraction/PickTreeBuilder.h>

#include <thread>
#include <vector>

#include "PickerTestSupport.h"

namespace {

using nbec::interaction::PickTreeBuilder;

class PickTreeBuilding : public PickerTest
{
protected:
    /// A ball large enough for Embree to report often.
    osg::NodePtr hangBall(int depth = 7)
    {
        const osg::NodePtr ball = osg::makeSphere(depth, 1.0f);
        hang(nbScenegraph::getRootNode(), ball);
        return ball;
    }
};

TEST_F(PickTreeBuilding, TreesOfAnotherThreadAreThoseThatPicksUse)
{
    const osg::NodePtr ball = hangBall();
    PickTreeBuilder builder({ ball, osg::NodePtr() });
    std::vector<double> told;
    bool isBuilt = false;

    std::thread([&] {
        isBuilt = builder.build([&told](double fraction) {
            told.push_back(fraction);
            return true;
        });
    }).join();
    builder.adopt();

    EXPECT_TRUE(isBuilt);
    ASSERT_FALSE(told.empty());
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_DOUBLE_EQ(told.back(), 1.0);
    EXPECT_EQ(pickAt(400.0f, 300.0f), ball);
    EXPECT_NEAR(picker.getHitPoint()[2], 1.0f, 1e-3f);
    // What has its tree is not built again.
    PickTreeBuilder again({ ball });
    bool isTold = false;
    EXPECT_TRUE(again.build([&isTold](double) { return isTold = true; }));
    EXPECT_FALSE(isTold);
}

TEST_F(PickTreeBuilding, ANoEndsBuildingAndLeavesNoTree)
{
    const osg::NodePtr ball = hangBall();
    PickTreeBuilder builder({ ball });
    int calls = 0;

    EXPECT_FALSE(builder.build([&calls](double) { return ++calls < 2; }));
    builder.adopt();

    EXPECT_EQ(calls, 2) << "asked again after a no";
    EXPECT_EQ(pickAt(400.0f, 300.0f), ball) << "the pick builds its own";
}

TEST_F(PickTreeBuilding, ATreeOfWhatHasChangedOrGoneSinceIsNotTaken)
{
    const osg::NodePtr ball = hangBall(3);
    const osg::NodePtr gone = hangBall(3);
    PickTreeBuilder builder({ ball, gone });
    const osg::NodePtr root = nbScenegraph::getRootNode();
    nbtest::edited(root, osg::Node::ChildrenFieldMask)->subChild(gone);
    nbtest::changePoints(ball,
                         [](const osg::Pnt3f& p) { return p + osg::Vec3f(3.0f, 0.0f, 0.0f); });

    EXPECT_TRUE(builder.build({}));
    builder.adopt();

    EXPECT_EQ(pickAt(400.0f, 300.0f), osg::NullFC);
    EXPECT_EQ(pickAt(490.0f, 300.0f), ball);
}

}  // namespace
