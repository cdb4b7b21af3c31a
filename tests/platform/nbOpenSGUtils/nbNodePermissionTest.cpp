// SPDX-License-Identifier: MIT
#include <nbOpenSGUtils/nbNodePermission.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <gtest/gtest.h>

TEST(nbNodePermission, EverythingIsAllowedUntilItIsDeniedForTheNodeItself)
{
    const osg::NodeRefPtr parent(osg::Node::create());
    const osg::NodePtr child = osg::Node::create();
    parent->addChild(child);
    EXPECT_TRUE(nbNodePermission::allows(parent, 19));

    nbNodePermission::setAllowed(parent, nbNodePermission::Transform, false);
    nbNodePermission::setAllowed(parent, 31, false);
    EXPECT_FALSE(nbNodePermission::allows(parent, 19));
    EXPECT_FALSE(nbNodePermission::allows(parent, 31));
    EXPECT_TRUE(nbNodePermission::allows(parent, 18));
    EXPECT_TRUE(nbNodePermission::allows(child, 19));

    nbNodePermission::setAllowed(parent, 19, true);
    EXPECT_TRUE(nbNodePermission::allows(parent, 19));
    EXPECT_FALSE(nbNodePermission::allows(parent, 31));
}
