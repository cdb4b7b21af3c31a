// SPDX-License-Identifier: MIT
// The main function of test programs that draw.
#include "tests/platform/support/RunTests.h"

#include <QtGui/QGuiApplication>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    const QGuiApplication application(argc, argv);
    return nbtest::runTests(argc, argv);
}
