// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGFieldContainerPtr.h>

/// Id under which a container can be found again without keeping it alive. @return 0 for null
template <class Pointer>
osg::UInt32 containerId(const Pointer& container)
{
    return container != osg::NullFC ? container.getFieldContainerId() : 0;
}

/// The container with an id from containerId(). @return null for 0, a destroyed container, or one
/// that is neither of the pointer's class nor derived from it
template <class Pointer>
Pointer resolveContainer(osg::UInt32 id)
{
    return id != 0 ? Pointer::dcast(osg::FieldContainerFactory::the()->getContainer(id))
                   : Pointer();
}
