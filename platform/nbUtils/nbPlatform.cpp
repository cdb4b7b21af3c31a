// SPDX-License-Identifier: MIT
#include <nbUtils/nbPlatform.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr int kMostDecimals = 17;
/// The largest double has 309 digits before the point.
constexpr std::size_t kLongestNumber = 352;

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace

std::string nbPlatform::numberToText(double value, int decimals)
{
    if (std::isnan(value)) {
        return "nan";
    }
    std::array<char, kLongestNumber> buffer {};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed,
                      std::clamp(decimals, 0, kMostDecimals));
    std::string result(buffer.data(), end);
    const bool isZero = result.find_first_not_of("-0.") == std::string::npos;
    if (isZero && result.front() == '-') {
        result.erase(0, 1);
    }
    return result;
}

bool nbPlatform::textToNumber(std::string_view text, double& value)
{
    std::string_view number = trimmed(text);
    if (number.size() > 1 && number.front() == '+' && number[1] != '-') {
        number.remove_prefix(1);
    }
    double parsed = 0.0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), parsed);
    if (error != std::errc() || end != number.data() + number.size() || !std::isfinite(parsed)) {
        return false;
    }
    value = parsed;
    return true;
}
