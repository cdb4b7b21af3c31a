// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUtils/nbEdit.h>

namespace nbtest {

/// One call within an edit of its own: edited(core, mask)->setScale(scale).
template <class Pointer>
class Edited
{
public:
    Edited(const Pointer& container, osg::BitVector mask)
        : pointer(container)
        , edit(container, mask)
    { }

    const Pointer& operator->() const { return pointer; }

private:
    const Pointer& pointer;
    nbEdit edit;
};

template <class Pointer>
Edited<Pointer> edited(const Pointer& container, osg::BitVector mask = osg::FieldBits::AllFields)
{
    return Edited<Pointer>(container, mask);
}

}  // namespace nbtest
