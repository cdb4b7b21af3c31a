// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBoxVolume.h>

namespace osg {

/// The volume that nodes have. Real OpenSG can change its kind; here it is always a box.
class DynamicVolume : public BoxVolume
{
public:
    DynamicVolume() = default;

    Volume& getInstance() { return *this; }

    const Volume& getInstance() const { return *this; }
};

}  // namespace osg
