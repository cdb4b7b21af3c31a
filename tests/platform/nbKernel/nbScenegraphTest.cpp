// SPDX-License-Identifier: MIT
#include <nbKernel/nbScenegraph.h>

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGRefPtr.h>

#include <gtest/gtest.h>

namespace {

bool isAlive(osg::UInt32 id)
{
    return osg::FieldContainerFactory::the()->getContainer(id) != osg::NullFC;
}

}  // namespace

TEST(nbScenegraph, ClearFreesAllButWhatOthersHold)
{
    const osg::UInt32 worldId = nbScenegraph::getWorldRoot().getFieldContainerId();
    const osg::NodeRefPtr held(osg::makeCoredNode<osg::Group>());
    const osg::NodePtr loose = osg::makeCoredNode<osg::Group>();
    const osg::UInt32 looseId = loose.getFieldContainerId();
    nbScenegraph::getRootNode()->addChild(held.get());
    nbScenegraph::getRootNode()->addChild(loose);
    nbScenegraph::setPreselectionEnabled(false);

    nbScenegraph::clear();

    EXPECT_FALSE(isAlive(worldId));
    EXPECT_FALSE(isAlive(looseId));
    EXPECT_EQ(held->getParent(), osg::NullFC);
    EXPECT_TRUE(nbScenegraph::isPreselectionEnabled());
    EXPECT_EQ(nbScenegraph::getRootNode()->getNChildren(), 0u);
}
