// SPDX-License-Identifier: MIT
// Entry of libFuzzer for one target, which the build names in NB_FUZZ_TARGET.
#include "tests/fuzz/Play.h"

#include <OpenSG/OSGBaseFunctions.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace test = nbec::manipulator::test;

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    osg::osgInit(*argc, *argv);
    test::preparePlays();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const auto kTarget =
        std::find_if(test::playTargets().begin(), test::playTargets().end(),
                     [](const auto& target) { return target.name == NB_FUZZ_TARGET; });
    const std::string fault = test::play(*kTarget, data, size);
    if (!fault.empty()) {
        std::fprintf(stderr, "%s\n", fault.c_str());
        std::abort();
    }
    return 0;
}
