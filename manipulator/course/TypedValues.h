// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/DragParameters.h"
#include "manipulator/nbManipulatorExport.h"

#include <QtCore/QChar>
#include <QtCore/QString>

#include <array>
#include <optional>
#include <vector>

namespace nbec::manipulator {

/// Places of the numbers of drag parameters that a handle can change: its axes, or the only one.
NB_MANIPULATOR_API std::vector<std::size_t> freeNumbers(const HandleAction& action);

/// Numbers that are typed during a drag in place of dragged ones: an expression for each number
/// that the handle can change, one of which is being typed. Lengths may bear units, of which a
/// scene unit is a metre; angles are degrees or bear a unit.
class NB_MANIPULATOR_API TypedValues
{
public:
    /// Whether anything is typed.
    bool isActive() const;

    /// Whether all that is typed has a value.
    bool isRight() const { return isEvaluated; }

    /// Takes a character of an expression, see nbValueExpression. @return false for another one
    bool add(QChar key);

    void removeLast() { texts[current].chop(1); }

    /// Goes on to the next number. @param count  of numbers that can be typed
    void goToNext(std::size_t count) { current = (current + 1) % count; }

    void clear() { *this = TypedValues(); }

    /// The parameters with what is typed in place of their own numbers. @return nothing where an
    /// expression has no value, such as a half one
    std::optional<DragParameters> in(const DragParameters& dragged, const HandleAction& action);

    /// What is typed, the number being typed last in brackets if there are several.
    QString getText() const;

private:
    std::array<QString, DragParameters::kMostValues> texts;
    std::size_t current = 0;
    bool isEvaluated = true;
};

}  // namespace nbec::manipulator
