// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVector.h>

#include "ScreenGeometry.h"
#include <Eigen/Core>

namespace nbec::interaction::detail {

/// Exact comparison, unlike the matrices' own within a tolerance.
bool hasSameBits(const osg::Matrix& a, const osg::Matrix& b);

/// Camera and size of the view in which something is picked.
struct PickView
{
    osg::Matrix viewing;  ///< 4x4, column vectors, camera from world
    osg::Matrix projection;  ///< 4x4, column vectors, clip from camera
    int widthPx = 0;  ///< device pixels
    int heightPx = 0;  ///< device pixels

    /// Exact comparison: whether everything derived from the other view holds for this one.
    bool isSame(const PickView& other) const;

    /// @return centre of the pixel that holds the position; false outside the view, for NaN and for
    /// a view without area
    bool pixelCentre(const osg::Pnt2f& px, ScreenPoint& centre) const;
};

/// A ray in world or local space: origin + t direction, 0 <= t <= tFar. The direction need not be
/// unit.
struct PickRay
{
    osg::Pnt3f origin;
    osg::Vec3f direction;
    float tFar = 0.0F;
};

/// Maps between world space and the pixels of a view; all arithmetic in double.
/// Pixel (0, 0) covers screen positions from 0 to 1, so that its centre is (0.5, 0.5) and the view
/// spans 0 .. width.
class ScreenProjection
{
public:
    ScreenProjection() = default;
    explicit ScreenProjection(const PickView& view);

    /// @return whether the view has an area and the camera's matrices can be inverted; false:
    /// nothing can be picked
    bool isValid() const { return valid; }

    /// Clip coordinates and view depth of a world position.
    struct Projected
    {
        double clip[4];
        double depth;  ///< distance in front of the eye's plane, world units

        /// In front of the near plane as OpenGL clips it.
        bool isVisible() const { return nearDistance() >= 0.0; }

        double nearDistance() const { return clip[2] + clip[3]; }
    };

    Projected project(const osg::Pnt3f& world) const;

    /// @return the position on screen of clip coordinates with w > 0
    ScreenPoint toScreen(const Projected& p) const;

    /// Ray from the near to the far plane through a position on screen; unit direction.
    PickRay rayThrough(const ScreenPoint& position) const;

    /// @return the world point seen at a position on screen at the given view depth
    osg::Pnt3f pointAt(const ScreenPoint& position, double depth) const;

private:
    Eigen::Vector3d unproject(const ScreenPoint& position, double clipZ) const;

    Eigen::Matrix4d clipFromWorld = Eigen::Matrix4d::Zero();
    Eigen::Matrix4d worldFromClip = Eigen::Matrix4d::Zero();
    Eigen::Vector4d depthRow = Eigen::Vector4d::Zero();  ///< view depth = depthRow . (world, 1)
    double halfWidth = 0.0;
    double halfHeight = 0.0;
    bool valid = false;
};

/// World-space normal of a surface, unit length, zero if it has none. Scales, shears and mirrors
/// are taken into account: the inverse transposed matrix, which is the matrix of cofactors up to
/// the determinant's size.
/// @param worldFromLocal  4x4, column vectors; may be singular
osg::Vec3f transformNormal(const osg::Matrix& worldFromLocal, const osg::Vec3f& localNormal);

/// @return determinant of the upper 3x3, in double
double linearDeterminant(const osg::Matrix& m);

}  // namespace nbec::interaction::detail
