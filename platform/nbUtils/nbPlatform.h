// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <string>
#include <string_view>

/// What differs between the machines that the program runs on, in one place.
class NB_PLATFORM_API nbPlatform
{
public:
    /// Number as text in fixed-point form with "." as decimal sign, whatever the locale.
    /// A value that rounds to zero has no sign. Not a number: "nan"; infinite: "inf", "-inf".
    /// @param decimals  digits behind the point, 0 to 17; others are clamped
    static std::string numberToText(double value, int decimals);

    /// Number from text with "." as decimal sign, whatever the locale.
    /// @param text   the number and nothing else; blanks around it and a leading "+" are allowed
    /// @param value  untouched unless true is returned
    /// @return false unless the whole text is one finite number
    static bool textToNumber(std::string_view text, double& value);
};
