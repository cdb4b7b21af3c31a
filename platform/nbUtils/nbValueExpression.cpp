// SPDX-License-Identifier: MIT
#include <nbUtils/nbValueExpression.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace {

using Measure = nbValueExpression::Measure;
using Fault = nbValueExpression::Fault;

constexpr int kDeepest = 32;

struct Unit
{
    std::string_view name;
    Measure measure;
    double factor;
};

constexpr Unit kUnits[] = {
    { "%", Measure::Number, 0.01 },
    { "m", Measure::Length, 1.0 },
    { "cm", Measure::Length, 0.01 },
    { "mm", Measure::Length, 0.001 },
    { "deg", Measure::Angle, 1.0 },
    { "\u00b0", Measure::Angle, 1.0 },
    { "rad", Measure::Angle, 57.295779513082323 },
};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Goes through a text once; each step answers false at the first fault.
class Reader
{
public:
    Reader(std::string_view wholeText, Measure wantedMeasure)
        : text(wholeText)
        , measure(wantedMeasure)
    { }

    nbValueExpression read()
    {
        nbValueExpression result;
        double value = 0.0;
        bool isRead = readSum(value, 0);
        skipBlanks();
        if (isRead && place < text.size()) {
            isRead = fail(Fault::NotUnderstood);
        } else if (isRead && !std::isfinite(value)) {
            isRead = fail(Fault::NotFinite);
        }
        result.fault = fault;
        result.place = isRead ? 0 : place;
        result.value = isRead ? value : 0.0;
        return result;
    }

private:
    bool fail(Fault reason)
    {
        fault = reason;
        return false;
    }

    void skipBlanks()
    {
        while (place < text.size() && (text[place] == ' ' || text[place] == '\t')) {
            ++place;
        }
    }

    /// Takes one of some characters. @return 0 for none of them
    char take(std::string_view characters)
    {
        skipBlanks();
        const bool isThere =
            place < text.size() && characters.find(text[place]) != std::string_view::npos;
        return isThere ? text[place++] : '\0';
    }

    bool readSum(double& value, int depth)
    {
        if (!readProduct(value, depth)) {
            return false;
        }
        while (const char sign = take("+-")) {
            double next = 0.0;
            if (!readProduct(next, depth)) {
                return false;
            }
            value += sign == '+' ? next : -next;
        }
        return true;
    }

    bool readProduct(double& value, int depth)
    {
        if (!readSigned(value, depth)) {
            return false;
        }
        while (const char sign = take("*/")) {
            double next = 0.0;
            if (!readSigned(next, depth)) {
                return false;
            }
            value = sign == '*' ? value * next : value / next;
        }
        return true;
    }

    bool readSigned(double& value, int depth)
    {
        bool isNegative = false;
        while (const char sign = take("+-")) {
            isNegative = isNegative != (sign == '-');
        }
        const bool isRead = take("(") != '\0' ? readBracket(value, depth + 1) : readNumber(value);
        value = isNegative ? -value : value;
        return isRead && readUnit(value);
    }

    bool readBracket(double& value, int depth)
    {
        if (depth > kDeepest) {
            return fail(Fault::NotUnderstood);
        }
        return readSum(value, depth) && (take(")") != '\0' || fail(Fault::NotUnderstood));
    }

    bool readNumber(double& value)
    {
        const std::size_t start = place;
        std::string digits;
        bool hasMark = false;
        for (; place < text.size(); ++place) {
            const char c = text[place];
            const bool isMark = (c == '.' || c == ',') && !hasMark;
            if (!isMark && !isDigit(c)) {
                break;
            }
            hasMark = hasMark || isMark;
            digits += isMark ? '.' : c;
        }
        if (std::none_of(digits.begin(), digits.end(), &isDigit)) {
            place = start;
            return fail(Fault::NotUnderstood);
        }
        readExponent(digits);
        const auto [end, error] =
            std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (error == std::errc::result_out_of_range) {
            value = HUGE_VAL;
        }
        return true;
    }

    /// Adds what follows a number as its exponent, if it is one: "e5", "E-3".
    void readExponent(std::string& digits)
    {
        std::size_t end = place;
        const auto isAt = [this, &end](std::string_view characters) {
            return end < text.size() && characters.find(text[end]) != std::string_view::npos;
        };
        if (!isAt("eE")) {
            return;
        }
        ++end;
        end += isAt("+-") ? 1 : 0;
        const std::size_t firstDigit = end;
        while (end < text.size() && isDigit(text[end])) {
            ++end;
        }
        if (end > firstDigit) {
            digits += text.substr(place, end - place);
            place = end;
        }
    }

    bool readUnit(double& value)
    {
        skipBlanks();
        constexpr std::string_view kNoUnit = "+-*/() \t.,0123456789";
        const std::size_t end = std::min(text.find_first_of(kNoUnit, place), text.size());
        const std::string_view name = text.substr(place, end - place);
        if (name.empty()) {
            return true;
        }
        for (const Unit& unit : kUnits) {
            if (unit.name == name && unit.measure == measure) {
                value *= unit.factor;
                place = end;
                return true;
            }
        }
        return fail(Fault::UnitOfSomethingElse);
    }

    std::string_view text;
    Measure measure;
    std::size_t place = 0;
    Fault fault = Fault::None;
};

}  // namespace

nbValueExpression nbValueExpression::evaluate(std::string_view text, Measure measure)
{
    return Reader(text, measure).read();
}
