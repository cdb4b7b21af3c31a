// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/TireProjectionManipulator.h"
#include "manipulator/TriplanarTextureManipulator.h"
#include "manipulator/UVTextureManipulator.h"

#include <nbOpenSGUberMaterial/ColorComponentSettings.h>

namespace nbec::manipulator::test {

/// What the gizmos at an anchor differ in.
struct AnchoredTraits
{
    const char* changed;  ///< suffix of the message
    osg::ColorComponentSettings::TextureProjection type;  ///< the projection edited
};

template <class Gizmo>
inline constexpr AnchoredTraits kAnchoredTraits {};
template <>
inline constexpr AnchoredTraits kAnchoredTraits<TriplanarTextureManipulator> {
    "::changedTriplanarManipulator", osg::ColorComponentSettings::TriplanarProjection
};
template <>
inline constexpr AnchoredTraits kAnchoredTraits<UVTextureManipulator> {
    "::changedUVManipulator", osg::ColorComponentSettings::UVProjection
};
template <>
inline constexpr AnchoredTraits kAnchoredTraits<TireProjectionManipulator> {
    "::changedTireManipulator", osg::ColorComponentSettings::TireProjection
};

}  // namespace nbec::manipulator::test
