// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/TireProjectionManipulator.h"
#include "manipulator/TriplanarTextureManipulator.h"
#include "manipulator/UVTextureManipulator.h"

#include <nbOpenSGUberMaterial/ColorComponentSettings.h>

namespace nbec::manipulator::test {

/// What the gizmos at an anchor differ in: the suffix of the message, and the projection edited.
template <class Gizmo>
struct AnchoredTraits;

template <>
struct AnchoredTraits<TriplanarTextureManipulator>
{
    static constexpr const char* kChanged = "::changedTriplanarManipulator";
    static constexpr auto kType = osg::ColorComponentSettings::TriplanarProjection;
};

template <>
struct AnchoredTraits<UVTextureManipulator>
{
    static constexpr const char* kChanged = "::changedUVManipulator";
    static constexpr auto kType = osg::ColorComponentSettings::UVProjection;
};

template <>
struct AnchoredTraits<TireProjectionManipulator>
{
    static constexpr const char* kChanged = "::changedTireManipulator";
    static constexpr auto kType = osg::ColorComponentSettings::TireProjection;
};

}  // namespace nbec::manipulator::test
