// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVector.h>

#include <array>
#include <cstddef>
#include <memory>

#include <ContentStamp.h>

namespace nbrender {

/// A picture that is projected on a surface, read from one component of an UberMaterial.
struct ProjectedPicture
{
    static constexpr std::size_t kTileCount = 3;

    osg::UInt32 imageId = 0;  ///< container id; 0: the component has no picture to show
    osg::Int32 kind = -1;  ///< TextureProjection; -1 with no picture to show
    /// From a place on the surface to one in the picture, 4x4, column vectors, finite.
    /// - Planar: to x and y from -1 to 1 over the picture, z along the projection.
    /// - Triplanar: to the turned frame, in hundreds of units; from the space of the projection
    ///   with axes of the world's unit length.
    /// - UV: from (u, v, 0) of the geometry to u and v of the picture.
    /// - Tire: to the cylinder around x, of radius 1, on which the picture is 1 wide.
    osg::Matrix pictureFromSurface;
    /// Triplanar: scale and offset in the frame of u and v of the projections along x, y, z. Tire:
    /// the first one those of the turn around the axle, in whole ones from y to z, and of the place
    /// along it. Planar: in the first one the angles of PlanarAngles, radians.
    std::array<osg::Vec4f, kTileCount> tiles;
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

/// Adds everything that is drawn with a state, the contents of its pictures included.
void addTo(osg::ContentStamp& stamp, const UberMaterialState& state);

/// State of an UberMaterial that has a picture to show; null for any other material.
std::shared_ptr<const UberMaterialState> resolveUberMaterial(const osg::MaterialPtr& material);

}  // namespace nbrender
