// SPDX-License-Identifier: MIT
// The main function of all benchmark programs: scene graph up, benchmarks, everything down.
#include <nbKernel/nbScenegraph.h>

#include <OpenSG/OSGBaseFunctions.h>

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    osg::osgInit(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    nbScenegraph::clear();
    return osg::osgExit() ? 0 : 1;
}
