// SPDX-License-Identifier: MIT
// Entry of libFuzzer for the transform gizmo: ./nb fuzz SECONDS.
#include "manipulator/UniversalTransformManipulator2.h"
#include "tests/fuzz/GizmoPlay.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    osg::osgInit(*argc, *argv);
    const nbec::manipulator::UniversalTransformManipulator2 first;
    osg::getDefaultMaterial();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string fault = nbec::manipulator::test::playGizmo(data, size);
    if (!fault.empty()) {
        std::fprintf(stderr, "%s\n", fault.c_str());
        std::abort();
    }
    return 0;
}
