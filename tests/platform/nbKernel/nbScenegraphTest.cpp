// SPDX-License-Identifier: MIT
#include <nbKernel/nbScenegraph.h>

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGRefPtr.h>

#include <gtest/gtest.h>

TEST(nbScenegraph, ClearLeavesWhatOthersHoldAndSwitchesPreselectionOn)
{
    const osg::NodeRefPtr held(osg::makeCoredNode<osg::Group>());
    nbScenegraph::getRootNode()->addChild(held.get());
    nbScenegraph::setPreselectionEnabled(false);

    nbScenegraph::clear();

    EXPECT_EQ(held->getParent(), osg::NullFC);
    EXPECT_TRUE(nbScenegraph::isPreselectionEnabled());
    EXPECT_EQ(nbScenegraph::getRootNode()->getNChildren(), 0u);
}
