// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <vector>

namespace nbec::manipulator::detail {

/// Removes an instance from a class's list of live ones; the entries after it move up by one.
/// @param instance  one that is not in the list changes nothing
template <class Class>
void unregisterInstance(std::vector<Class*>& instances, const Class* instance)
{
    const auto found = std::find(instances.begin(), instances.end(), instance);
    if (found != instances.end()) {
        instances.erase(found);
    }
}

/// Calls an operation on every live instance in the order of construction. The length is read again
/// before each step, so that the operation may create and destroy instances.
template <class Class, class Operation>
void forEachInstance(const std::vector<Class*>& instances, Operation&& operation)
{
    for (std::size_t i = 0; i < instances.size(); ++i) {
        operation(*instances[i]);
    }
}

}  // namespace nbec::manipulator::detail
