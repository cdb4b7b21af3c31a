// SPDX-License-Identifier: MIT
// The main function of test programs that draw.
#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>

#include <OpenSG/OSGBaseFunctions.h>

#include <QtGui/QGuiApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    const QGuiApplication application(argc, argv);
    osg::osgInit(argc, argv);
    const int result = RUN_ALL_TESTS();
    nbController::clear();
    nbScenegraph::clear();
    osg::osgExit();
    return result;
}
