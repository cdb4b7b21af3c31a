// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>

#include <OpenSG/OSGBaseFunctions.h>

#include <gmock/gmock.h>

namespace nbtest {

/// Runs all tests of a program between the beginning and the end of the scene graph.
/// @return the program's exit status
inline int runTests(int argc, char** argv)
{
    osg::osgInit(argc, argv);
    const int result = RUN_ALL_TESTS();
    nbController::clear();
    nbScenegraph::clear();
    osg::osgExit();
    return result;
}

}  // namespace nbtest
