// SPDX-License-Identifier: MIT
#include <nbUtils/nbUtils.h>

#include <gtest/gtest.h>

#include <string>

TEST(nbUtils, DecipheringGivesEveryTextBack)
{
    std::string bytes;
    for (int round = 0; round < 3; ++round) {
        for (int byte = 0; byte < 256; ++byte) {
            bytes.push_back(static_cast<char>(byte));
        }
    }
    const std::string shader = "uniform mat4 m;\r\nvoid main()\n{\n\tgl_Position = m * p;\n}\n";
    for (const std::string& plain : { std::string(), bytes, shader }) {
        EXPECT_EQ(nbUtils::decryptShaderLF(nbUtils::encryptShaderLF(plain)), plain);
        EXPECT_EQ(nbUtils::encryptShaderLF(nbUtils::decryptShaderLF(plain)), plain);
    }
}
