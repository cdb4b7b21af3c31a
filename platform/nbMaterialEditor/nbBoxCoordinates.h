// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGGeometry.h>

/// Texture coordinates for what has none: those of the box around a geometry. Each triangle is seen
/// from the side of the box that it faces most, upright and not mirrored; 1 is the longest side of
/// the box, so that pictures keep their aspect. Points and lines of the geometry go. Nothing of it
/// is seen until a picture is laid by texture coordinates, so it is no step of undo.
class NB_PLATFORM_API nbBoxCoordinates
{
public:
    nbBoxCoordinates() = delete;

    /// @param geometry  may be null; one with coordinates stays as it is
    static void layOn(const osg::GeometryPtr& geometry);

    /// Whether a geometry's coordinates came from there. False for null.
    static bool lieOn(const osg::GeometryPtr& geometry);
};
