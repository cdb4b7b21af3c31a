// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGFieldContainerPtr.h>

namespace nbec::manipulator {

/// Id under which a container can be found again without keeping it alive. @return 0 for null
template <class Pointer>
osg::UInt32 containerId(const Pointer& container)
{
    return container != osg::NullFC ? container.getFieldContainerId() : 0;
}

/// The container with an id from containerId(), if it still exists and is of the pointer's class or
/// derived from it.
/// @param id  container id, 0 = none @return null for 0, a destroyed container or one of another
/// class
template <class Pointer>
Pointer resolveContainer(osg::UInt32 id)
{
    if (id == 0) {
        return Pointer();
    }
    return Pointer::dcast(osg::FieldContainerFactory::the()->getContainer(id));
}

}  // namespace nbec::manipulator
