// SPDX-License-Identifier: MIT
#include <nbUtils/nbValueExpression.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using Measure = nbValueExpression::Measure;
using Fault = nbValueExpression::Fault;

TEST(nbValueExpression, TextsAPersonTypes)
{
    const std::tuple<const char*, Measure, double> rows[] = {
        { "1,5", Measure::Number, 1.5 },
        { " -.5 ", Measure::Number, -0.5 },
        { "2*1.5", Measure::Number, 3.0 },
        { "1 + 2*3 - 8/4/2", Measure::Number, 6.0 },
        { "-(1 + 2) * -(3,5)", Measure::Number, 10.5 },
        { "1.5e3 + 2E-1", Measure::Number, 1500.2 },
        { "150%", Measure::Number, 1.5 },
        { "1m + 20 cm - (3+2)mm", Measure::Length, 1.195 },
        { "90 deg / 4", Measure::Angle, 22.5 },
        { "3,14159265358979rad", Measure::Angle, 180.0 },
        { "-45\u00b0", Measure::Angle, -45.0 },
    };

    for (const auto& [text, measure, value] : rows) {
        const nbValueExpression found = nbValueExpression::evaluate(text, measure);
        EXPECT_EQ(found.fault, Fault::None) << text;
        EXPECT_NEAR(found.value, value, 1e-12) << text;
    }
}

TEST(nbValueExpression, WhatIsNoValueIsRefusedWhereItGoesWrong)
{
    const std::tuple<std::string, Measure, Fault, std::size_t> rows[] = {
        { "", Measure::Number, Fault::NotUnderstood, 0 },
        { "1.234,5", Measure::Number, Fault::NotUnderstood, 5 },
        { "1 000", Measure::Number, Fault::NotUnderstood, 2 },
        { "2*", Measure::Number, Fault::NotUnderstood, 2 },
        { "(1+2", Measure::Number, Fault::NotUnderstood, 4 },
        { "1)", Measure::Number, Fault::NotUnderstood, 1 },
        { ".", Measure::Number, Fault::NotUnderstood, 0 },
        { "nan", Measure::Number, Fault::NotUnderstood, 0 },
        { "0x10", Measure::Number, Fault::UnitOfSomethingElse, 1 },
        { "3 inch", Measure::Length, Fault::UnitOfSomethingElse, 2 },
        { "5 cm", Measure::Angle, Fault::UnitOfSomethingElse, 2 },
        { "1/0", Measure::Number, Fault::NotFinite, 3 },
        { "1e999", Measure::Number, Fault::NotFinite, 5 },
        { std::string(100000, '('), Measure::Number, Fault::NotUnderstood, 33 },
    };

    for (const auto& [text, measure, fault, place] : rows) {
        const nbValueExpression found = nbValueExpression::evaluate(text, measure);
        EXPECT_EQ(found.fault, fault) << text.substr(0, 20);
        EXPECT_EQ(found.place, place) << text.substr(0, 20);
        EXPECT_EQ(found.value, 0.0) << text.substr(0, 20);
    }
}

}  // namespace
