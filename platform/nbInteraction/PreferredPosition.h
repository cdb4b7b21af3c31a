// SPDX-License-Identifier: MIT
#pragma once

namespace nbec::interaction {

/// Where a context wants to stand among the contexts of a manager. Higher positions are asked
/// first; values between the named ones are allowed.
enum PreferredPosition : int
{
    Background = 0,  ///< takes what nobody else wants
    Camera = 10,  ///< navigation of the view
    Selection = 20,  ///< selection of scene nodes
    Tool = 50,  ///< the current tool
    Manipulator = 100,  ///< handles over the scene
    Overlay = 200  ///< what lies over everything
};

}  // namespace nbec::interaction
