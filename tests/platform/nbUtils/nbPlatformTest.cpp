// SPDX-License-Identifier: MIT
#include <nbUtils/nbPlatform.h>
#include <nbUtils/nbUtils.h>

#include <gtest/gtest.h>

#include <clocale>
#include <string>

TEST(nbPlatform, NumbersHaveAPointInEveryLocale)
{
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* const locale : { "de_DE.UTF-8", "fr_FR.UTF-8", "C" }) {
        std::setlocale(LC_NUMERIC, locale);  // those that the machine has not stay without effect

        EXPECT_EQ(nbPlatform::numberToText(1234.5678, 2), "1234.57") << locale;
        double value = 0.0;
        EXPECT_TRUE(nbPlatform::textToNumber("-12.25", value)) << locale;
        EXPECT_EQ(value, -12.25) << locale;
    }
    std::setlocale(LC_NUMERIC, before.c_str());
}

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
