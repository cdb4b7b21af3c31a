// SPDX-License-Identifier: MIT
// How the planar gizmo drags the picture itself.
#include "manipulator/drag/DragGeometry.h"
#include "manipulator/texture/PlanarGizmo.h"

#include <nbOpenSGExt/nbIsFinite.h>

#include <cmath>

namespace nbec::manipulator::texture {

/// Null if there is none or it is not finite.
osg::Transform3DPtr PlanarGizmo::projection() const
{
    const osg::ColorComponentSettingsPtr material = component.getSettings();
    const osg::Transform3DPtr present =
        material != osg::NullFC ? material->getPlanarProjection() : osg::Transform3DPtr();
    return present != osg::NullFC && nbIsFinite(present->getMatrix()) ? present
                                                                      : osg::Transform3DPtr();
}

void PlanarGizmo::capturePicture(const View& view)
{
    const osg::Matrix axes = frame.worldFromAxes();
    const osg::Vec3f front = column(axes, 0).cross(column(axes, 1));
    turnSense = front.dot(view.sightAt(grabbed->world)) < 0.0F ? 1.0F : -1.0F;
    const osg::Transform3DPtr present = projection();
    const osg::Vec3f centre =
        present != osg::NullFC ? column(present->getMatrix(), 3) : osg::Vec3f();
    pivot = rotated(frame.rotation.inverse(), grabbed->inSurface() - centre);
    pivot[2] = 0.0F;
}

bool PlanarGizmo::isPictureAt(const SurfacePlace& place) const
{
    using Settings = osg::ColorComponentSettings;
    const osg::ColorComponentSettingsPtr shown = component.getSettings();
    const osg::Transform3DPtr present = projection();
    if (present == osg::NullFC) {
        return false;
    }
    const osg::Pnt3f inPicture =
        mapped(inverted(present->getMatrix()), osg::Pnt3f(place.inSurface()));
    const auto isInside = [&](osg::UInt32 axis, Settings::PlanarProjectionFlag repeats) {
        return std::abs(inPicture[axis]) <= 1.0F || shown->hasPlanarProjectionFlag(repeats);
    };
    osg::Vec3f from = column(present->getMatrix(), 2);
    place.worldFromSurface.multMatrixVec(from);
    const osg::Vec2f& angles = shown->getPlanarAngles();
    const double most = std::fmin(angles.x() + angles.y(), 180.0F) / kDegPerRad;
    constexpr float kEndSlack = 0.001F;
    return unitVector(from).dot(place.normal) >= std::cos(most) - kEndSlack &&
        isInside(0, Settings::RepeatU) && isInside(1, Settings::RepeatV) &&
        (!shown->hasPlanarProjectionFlag(Settings::ClampZ) ||
         std::abs(inPicture.z() + 0.5F) <= 0.5F + kEndSlack);
}

osg::Vec3f PlanarGizmo::pictureOffset(const SurfacePlace& from, const SurfacePlace& to) const
{
    osg::Vec3f way = rotated(drag.frame.rotation.inverse(), to.inSurface() - from.inSurface());
    way[2] = 0.0F;
    return way;
}

}  // namespace nbec::manipulator::texture
