// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/Picker.h>

namespace nbec::interaction::detail {

/// Picks the scene under the main widget's pointer and leaves the picker's own filter as it was.
/// @return the hit node; null if there is none
inline osg::NodePtr pickScene(Picker& picker)
{
    const int formerFilter = picker.getFilter();
    picker.setFilter(Picker::SceneFilter);
    const osg::NodePtr node = picker.pick();
    picker.setFilter(formerFilter);
    return node;
}

}  // namespace nbec::interaction::detail
