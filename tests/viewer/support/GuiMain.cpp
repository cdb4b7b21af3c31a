// SPDX-License-Identifier: MIT
// The main function of test programs that open windows.
#include "tests/platform/support/RunTests.h"

#include <nbUtils/nbQt.h>

#include <QApplication>
#include <QSurfaceFormat>

#include <optional>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    // Naming the tests, as the build does, needs no display.
    std::optional<QApplication> application;
    if (!testing::GTEST_FLAG(list_tests)) {
        QSurfaceFormat format;
        format.setVersion(3, 3);
        format.setProfile(QSurfaceFormat::CoreProfile);
        QSurfaceFormat::setDefaultFormat(format);
        // As the program has it, see main.cpp.
        nbQt::useHighDpi();
        application.emplace(argc, argv);
    }
    return nbtest::runTests(argc, argv);
}
