// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGVector.h>

#include <optional>

namespace nbec::manipulator::detail {

/// Size setting of a gizmo class before anybody sets one.
constexpr float kDefaultManipulatorSize = 32.0F;

/// Scale that keeps a gizmo's apparent size constant under a perspective camera:
/// distance / (((200 - size) / 200) * 800 / fov), in double.
/// A gizmo 672 units away under a field of view of 1 degree has scale 1 with the default size.
/// Deliberate: a size of 200 makes the divisor 0 and the scale infinite; this is not guarded.
/// @param distance  eye to the gizmo's anchor, world units, >= 0; 0 yields 0
/// @param fovDeg    vertical field of view as the render widget reports it, degrees, > 0
/// @param size      class-wide size setting, 0 <= size < 200; larger size, larger gizmo
/// @return uniform scale, no unit
float perspectiveScale(double distance, float fovDeg, float size);

/// Scale that keeps a gizmo's apparent size constant under an orthographic camera: diagonal / 20.
/// @param diagonal  diagonal of the camera's view, world units
float orthographicScale(float diagonal);

/// What an orthographic camera's view is measured by.
enum class ViewDiagonal
{
    NearPlane,  ///< the camera's own near-plane diagonal
    FrustumSides  ///< the diagonal that the sides of its frustum make
};

/// Near-plane diagonal of the main view's camera, world units; nothing if there is no camera or it
/// is a perspective one.
std::optional<float> orthographicDiagonal();

/// Scales of gizmos at any places under the main widget's camera as it is now. Made once for all
/// gizmos that are placed together; not to be kept.
class ScreenScale
{
public:
    /// @param size  class-wide size setting, see perspectiveScale()
    ScreenScale(float size, ViewDiagonal diagonal);

    /// @param anchor  of a gizmo, world @return as perspectiveScale() or orthographicScale()
    float at(const osg::Pnt3f& anchor) const
    {
        return isOrthographic ? factor : static_cast<float>(anchor.dist(eye) / divisor);
    }

private:
    osg::Pnt3f eye;
    bool isOrthographic = false;
    float factor = 0.0F;  ///< of every gizmo under an orthographic camera
    double divisor;  ///< of distances under a perspective one
};

}  // namespace nbec::manipulator::detail
