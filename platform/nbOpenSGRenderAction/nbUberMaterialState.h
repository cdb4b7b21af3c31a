// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGMatrix.h>

#include <array>
#include <cstddef>
#include <memory>

namespace nbrender {

/// A picture that is projected on a surface, read from one component of an UberMaterial.
struct ProjectedPicture
{
    osg::UInt32 imageId = 0;  ///< container id; 0: the component has no picture to show
    /// From the space that the projection lies in to that of the picture: x and y from -1 to 1 over
    /// the picture, z along the projection. 4x4, column vectors, finite.
    osg::Matrix pictureFromSurface;
    bool repeatU = false;
    bool repeatV = false;
    bool clampZ = false;  ///< only where z is from -1 to 0
    bool asMask = false;  ///< covers by brightness instead of alpha
    bool invert = false;
};

/// What the renderer shows of an UberMaterial beyond its plain colours.
struct UberMaterialState
{
    enum Component : std::size_t
    {
        Diffuse,
        Transparency,
        ComponentCount
    };

    std::array<ProjectedPicture, ComponentCount> pictures;

    /// Whether parts of an otherwise opaque surface are transparent.
    bool hasCutouts = false;
};

/// State of an UberMaterial that has a picture to show; null for any other material.
std::shared_ptr<const UberMaterialState> resolveUberMaterial(const osg::MaterialPtr& material);

}  // namespace nbrender
