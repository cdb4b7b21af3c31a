// SPDX-License-Identifier: MIT
#pragma once

namespace nbec::interaction {
class Picker;
}  // namespace nbec::interaction

namespace nbec::manipulator {

/// The picker of an interaction context of any class, null without one.
template <class Context>
interaction::Picker* pickerOf(const Context* context)
{
    return context != nullptr ? context->getPicker() : nullptr;
}

}  // namespace nbec::manipulator
