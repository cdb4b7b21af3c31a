// SPDX-License-Identifier: MIT
// The main function of test programs that use the scene graph.
#include "tests/platform/support/RunTests.h"

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    return nbtest::runTests(argc, argv);
}
