// SPDX-License-Identifier: MIT
// Entry of libFuzzer for what comes from outside into the viewer; NB_FUZZ_TARGET says which.
#include "tests/fuzz/FilePlay.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    // Texts of plates are painted, which needs fonts. It ends with the process, as its screens do.
    static const auto* const kApplication = new QGuiApplication(*argc, *argv);
    (void)kApplication;
    osg::osgInit(*argc, *argv);
    osg::getDefaultMaterial();
    // What is made once per process and kept.
    viewer::test::playFile(
        R"({"scene": 1, "camera": {"from": [0,0,9], "at": [0,0,0], "up": [0,1,0], "pivot": [0,0,0],
        "fov": 40}, "models": [{"file": "a"}]})");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace viewer::test;
    const std::string target = NB_FUZZ_TARGET;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const std::string fault = target == "commands" ? playCommands(bytes)
        : target == "models"                       ? playModel(bytes)
                                                   : playFile(bytes);
    if (!fault.empty()) {
        std::fprintf(stderr, "%s\n", fault.c_str());
        std::abort();
    }
    return 0;
}
