// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/View.h"
#include "manipulator/nbManipulatorExport.h"

#include <algorithm>
#include <vector>

namespace nbec::manipulator {

/// What all manipulators of one class share: the list of the live ones, the shared one and their
/// size. Belongs to the user-interface thread.
/// @tparam Class  has an operation updateManipulator(), which places it
template <class Class>
struct NB_MANIPULATOR_API Instances
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

    /// Those of an Instanced class, the same in all libraries and programs of a process.
    inline static Instances ofClass { {}, nullptr, Class::kDefaultSize };
};

/// A class of manipulators, one of whose instances is shared and all of whose instances have one
/// size. Its constructor adds them to the list, last, and its destructor takes them out.
/// @tparam Class  what derives from this, see Instances
/// @tparam Base   of which it is a manipulator
template <class Class, class Base>
class Instanced : public Base
{
public:
    /// Size before anybody sets one.
    static constexpr float kDefaultSize = kDefaultManipulatorSize;

    /// Makes the shared instance, in place of an earlier one, which is destroyed.
    static void createInstance() { instances.share(new Class); }

    /// The shared instance, or null. Whoever deletes it takes it away.
    static Class* getInstance() { return instances._the; }

    /// Size on screen of all, 0 <= size < 200. The shared instance is placed at once, others at
    /// their next update. Deliberate: where the size follows from perspectiveScale(), 200 makes it
    /// infinite.
    static void setManipulatorSize(float size) { instances.setSize(size); }

    static float getManipulatorSize() { return instances.m_ManipulatorSize; }

    /// Places every live one anew, in the order of construction. The host calls it when the camera
    /// has moved.
    static void updateAllManipulators() { instances.updateAll(); }

protected:
    using Base::Base;

    static constexpr Instances<Class>& instances = Instances<Class>::ofClass;
};

}  // namespace nbec::manipulator
