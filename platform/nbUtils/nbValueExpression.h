// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <cstddef>
#include <string_view>

// Of X11's headers.
#pragma push_macro("None")
#undef None

/// A number as a person types it, such as "1,5", "2*(3 + .5)", "12 cm" or "-90deg / 4".
///
/// Sums, products, brackets and signs; a point or a comma before the decimals, in every language,
/// and nothing between thousands; units behind a number or a bracket. Blanks count nowhere but
/// within numbers and units. Small and capital letters of units are told apart.
struct NB_PLATFORM_API nbValueExpression
{
    /// What the number stands for, and so the units that it may have; without one it is in the
    /// first.
    enum class Measure
    {
        Number,  ///< a number or factor: "" (1), "%" (0.01)
        Length,  ///< "m" (1), "cm" (0.01), "mm" (0.001)
        Angle  ///< "deg" (1), "°" (1), "rad" (57.29...)
    };

    enum class Fault
    {
        None,
        NotUnderstood,  ///< something is missing or too much
        UnitOfSomethingElse,  ///< a unit that is unknown or belongs to another measure
        NotFinite  ///< a division by zero, or beyond what a double holds
    };

    double value = 0.0;  ///< in the measure's first unit; 0 with a fault
    Fault fault = Fault::None;
    std::size_t place = 0;  ///< of the fault, bytes from the beginning; the size: at the end

    /// Reads a text as a whole. Never throws.
    /// @param text  UTF-8, of any length; brackets within each other up to 32
    static nbValueExpression evaluate(std::string_view text, Measure measure = Measure::Number);
};

#pragma pop_macro("None")
