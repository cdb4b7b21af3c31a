// SPDX-License-Identifier: MIT
#include <nbUtils/nbUtils.h>

#include <array>
#include <cstddef>

namespace {

constexpr int kFirstPrintable = 32;
constexpr int kPrintableCount = 95;

/// Shifts by column, repeated; each from 1 to kPrintableCount - 1.
constexpr std::array<int, 16> kShifts = { 41, 7, 83, 29, 62, 13, 90, 35,
                                          54, 3, 71, 18, 47, 88, 24, 66 };

/// Moves every printable character by its column's shift times direction (1 or -1).
std::string shifted(const std::string& text, int direction)
{
    std::string result = text;
    std::size_t column = 0;
    for (char& character : result) {
        if (character == '\n') {
            column = 0;
            continue;
        }
        const int offset = static_cast<unsigned char>(character) - kFirstPrintable;
        if (offset >= 0 && offset < kPrintableCount) {
            const int moved = offset + direction * kShifts[column % kShifts.size()];
            character =
                static_cast<char>(kFirstPrintable + (moved + kPrintableCount) % kPrintableCount);
        }
        ++column;
    }
    return result;
}

}  // namespace

namespace nbUtils {

std::string decryptShaderLF(const std::string& enciphered)
{
    return shifted(enciphered, -1);
}

std::string encryptShaderLF(const std::string& plain)
{
    return shifted(plain, 1);
}

}  // namespace nbUtils
