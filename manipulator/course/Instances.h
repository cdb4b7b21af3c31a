// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/View.h"

#include <algorithm>
#include <vector>

namespace nbec::manipulator {

/// What all manipulators of one class share: the list of the live ones, the shared one and their
/// size. Belongs to the user-interface thread.
/// @tparam Class  has an operation updateManipulator(), which places it
template <class Class>
struct Instances
{
    /// A constructor's last step.
    void add(Class* instance) { _allManipulators.push_back(instance); }

    /// For the destructor: takes an instance out; those after it move up by one. One that is not in
    /// the list changes nothing.
    void remove(const Class* instance)
    {
        const auto found = std::find(_allManipulators.begin(), _allManipulators.end(), instance);
        if (found != _allManipulators.end()) {
            _allManipulators.erase(found);
        }
        if (_the == instance) {
            _the = nullptr;
        }
    }

    /// Replaces the shared instance and destroys the one before. @param instance  null for none
    void share(Class* instance)
    {
        delete _the;
        _the = instance;
    }

    /// Sets the size; only the shared instance is placed at once.
    void setSize(float size)
    {
        m_ManipulatorSize = size;
        updateShared();
    }

    void updateShared()
    {
        if (_the != nullptr) {
            _the->updateManipulator();
        }
    }

    /// Places every live instance in the order of construction. The length is read again before
    /// each step, so that listeners may create and destroy instances.
    void updateAll() const
    {
        for (std::size_t i = 0; i < _allManipulators.size(); ++i) {
            _allManipulators[i]->updateManipulator();
        }
    }

    std::vector<Class*> _allManipulators;  ///< in the order of construction
    Class* _the = nullptr;
    float m_ManipulatorSize = kDefaultManipulatorSize;
};

}  // namespace nbec::manipulator
