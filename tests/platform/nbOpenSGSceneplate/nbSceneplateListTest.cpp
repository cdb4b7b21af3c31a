// SPDX-License-Identifier: MIT
#include "tests/platform/support/Plates.h"

#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGTransform.h>

#include <gmock/gmock.h>

TEST(nbSceneplateList, FindsPlatesBelowGroupsInDrawingOrder)
{
    const auto plate = [](const char* name, bool front, int order) {
        const osg::NodePtr node =
            platetest::makePlate({ 1.f, 1.f, 1.f, 1.f }, 1, osg::Color4f(), [&](const auto& p) {
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
