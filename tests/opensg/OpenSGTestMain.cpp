// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGLog.h>

#include <gtest/gtest.h>

/// The scene graph has to be up before any container is made; its warnings are part of the tests.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    osg::osgLog().setLogLevel(osg::LOG_FATAL);
    osg::osgInit(argc, argv);
    return RUN_ALL_TESTS();
}
