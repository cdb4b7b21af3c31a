// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/RingDrag.h"
#include "manipulator/nbManipulatorExport.h"

#include <nbKernel/nbOSGWidget.h>

#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <optional>

namespace nbec::interaction {
class Picker;
}  // namespace nbec::interaction

namespace nbec::manipulator {

/// The picker of an interaction context of any class, null without one.
template <class Context>
interaction::Picker* pickerOf(const Context* context)
{
    return context != nullptr ? context->getPicker() : nullptr;
}

/// Size setting of a class of gizmos before anybody sets one.
constexpr float kDefaultManipulatorSize = 32.0F;

/// Scale that keeps a gizmo's apparent size constant under a perspective camera:
/// distance / (((200 - size) / 200) * 800 / fov), in double.
/// A gizmo 672 units away under a field of view of 1 degree has scale 1 with the default size.
/// Deliberate: a size of 200 makes the divisor 0 and the scale infinite; this is not guarded.
/// @param distance  eye to the gizmo's anchor, world units, >= 0; 0 yields 0
/// @param fovDeg    vertical field of view as the render widget reports it, degrees, > 0
/// @param size      class-wide size setting, 0 <= size < 200; larger size, larger gizmo
/// @return uniform scale, no unit
NB_MANIPULATOR_API float perspectiveScale(double distance, float fovDeg, float size);

/// Scale that keeps a gizmo's apparent size constant under an orthographic camera: diagonal / 20.
/// @param diagonal  diagonal of the camera's view, world units
NB_MANIPULATOR_API float orthographicScale(float diagonal);

/// How large gizmos of constant apparent size are.
struct SizePolicy
{
    /// Length of an arrow from the gizmo's centre to the end of its shaft, logical pixels; 0 for
    /// the classic rule, perspectiveScale() or orthographicScale().
    float arrowPx = 0.0F;
    /// Device pixels per logical pixel, > 0, of views that do not tell their own.
    float pixelRatio = 1.0F;
};

/// Sets the size of all gizmos in the world; they take it at their next update. In pixels it is the
/// same in views of every height, camera and pixel ratio, for example setSizePolicy({ 96.0F }).
/// Values that are not finite, below 0 or with a ratio of 0 change nothing. @return whether it was
/// taken
NB_MANIPULATOR_API bool setSizePolicy(const SizePolicy& policy);
NB_MANIPULATOR_API const SizePolicy& getSizePolicy();

/// What an orthographic camera's view is measured by.
enum class ViewDiagonal
{
    NearPlane,  ///< the camera's own near-plane diagonal
    FrustumSides  ///< the diagonal that the sides of its frustum make
};

/// The view that an event belongs to, with camera and pointer: made once for an event and passed
/// down, not to be kept. Without a widget it answers as nbOSGWidget does without one.
class NB_MANIPULATOR_API View
{
public:
    /// The main render widget's view with its own pointer.
    View();

    /// The main render widget's view with another pointer. @param pointerPx  device pixels, y from
    /// the top
    explicit View(const osg::Pnt2f& pointerPx);

    /// The same view with a pointer between pixels, for whose ray the parts of a pixel count.
    View withFinePointer(const osg::Pnt2f& pointerPx) const
    {
        View fine = *this;
        fine.pointer = pointerPx;
        fine.isFine = true;
        return fine;
    }

    /// Whether there is a widget.
    bool exists() const { return widget != nullptr; }

    /// Null without one.
    const nbOSGWidget* getWidget() const { return widget; }

    // == Size and pointer; of a view without a widget 0

    int getWidth() const { return widget != nullptr ? widget->getWidth() : 0; }

    int getHeight() const { return widget != nullptr ? widget->getHeight() : 0; }

    /// Device pixels, y from the top.
    const osg::Pnt2f& getPointer() const { return pointer; }

    /// The same counted from the lowest row, which is 0.
    osg::Vec2f pointerFromBelow() const;

    /// Ray through the pointer, world space, from the near plane on; the pointer's constant pixel
    /// of OpenSG's calcViewRay cancels out of differences. Nothing in a view without area.
    std::optional<osg::Line> pointerRay() const;

    // == Camera, world space

    osg::Pnt3f getEye() const { return nbOSGWidget::getFrom(-1); }

    /// Point that the camera orbits.
    osg::Pnt3f getPivot() const { return nbOSGWidget::getPivot(-1); }

    /// Degrees.
    float getFov() const { return nbOSGWidget::getFov(-1); }

    bool isOrthographic() const;

    /// Axis that points up in the scene: 2 for z, 1 for y.
    osg::UInt32 upAxis() const { return nbOSGWidget::isCameraZUp() ? 2 : 1; }

    /// From the eye to the point looked at, unit length.
    osg::Vec3f sight() const;
    /// Direction in which the camera looks at a point, unit length: from the eye, or along the view
    /// axis of an orthographic camera.
    osg::Vec3f sightAt(const osg::Pnt3f& point) const;
    /// The same in numbers, for rings.
    Sight getSight() const;
    /// Turn of the camera: x to the right, y up on the screen. None without a widget.
    osg::Quaternion facing() const;

    // == Scale

    /// Near-plane diagonal of an orthographic camera, world units; nothing under a perspective one.
    std::optional<float> orthographicDiagonal() const;

    /// Scale of a gizmo of constant apparent size by the policy. @param anchor  of the gizmo, world
    /// @param size  class-wide size setting, for the classic rule
    float scaleAt(const osg::Pnt3f& anchor, float size, ViewDiagonal diagonal) const;

    /// World units of a device pixel at a point; 0 in a view without height.
    double unitsPerPixel(const osg::Pnt3f& point) const;

    /// Pixel at which a point of the world is seen, y counted from the bottom. Not finite for a
    /// point in the plane of the eye. Needs a widget.
    osg::Vec2f project(const osg::Pnt3f& world) const;

private:
    const nbOSGWidget* widget;
    osg::Pnt2f pointer;
    bool isFine = false;
};

}  // namespace nbec::manipulator
