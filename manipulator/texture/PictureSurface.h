// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/View.h"

#include <nbInteraction/Picker.h>

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNode.h>

#include <optional>

namespace nbec::manipulator::texture {

/// A place of a surface that wears a material.
struct SurfacePlace
{
    osg::Matrix worldFromSurface;  ///< of the node that carries the material
    osg::Pnt3f world;
    osg::Vec3f normal;  ///< world
    std::optional<osg::Vec2f> texCoord;  ///< nothing where the geometry has none

    /// The place in the space of the surface.
    osg::Vec3f inSurface() const;
};

/// Finds what is seen under the pointer of the surfaces that wear a material.
class PictureSurface
{
public:
    /// Between pixels what lies between the places of the nearest ones. @return nothing where
    /// another thing is seen or nothing
    std::optional<SurfacePlace> under(const osg::Pnt2f& pointerPx,
                                      const osg::MaterialPtr& material);

private:
    std::optional<SurfacePlace> underPixel(const osg::Pnt2f& px, const osg::MaterialPtr& material);

    interaction::Picker picker;
};

}  // namespace nbec::manipulator::texture
