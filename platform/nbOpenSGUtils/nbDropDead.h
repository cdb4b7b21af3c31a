// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerFactory.h>

/// Takes the entries of containers that are gone out of a map by container id.
/// @param give  is called with the value of each of them before: void(Value&)
template <class Map, class Give>
void nbDropDead(Map& map, Give give)
{
    for (auto entry = map.begin(); entry != map.end();) {
        if (osg::FieldContainerFactory::the()->getContainer(entry->first) == osg::NullFC) {
            give(entry->second);
            entry = map.erase(entry);
        } else {
            ++entry;
        }
    }
}

/// The same with nothing to be done before.
template <class Map>
void nbDropDead(Map& map)
{
    nbDropDead(map, [](auto&) {});
}
