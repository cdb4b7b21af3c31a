// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/Gizmo.h"
#include "manipulator/texture/MaterialComponent.h"
#include "manipulator/texture/PictureSurface.h"
#include "manipulator/texture/TextureModes.h"

#include <memory>

namespace nbec::manipulator::texture {

/// What the faces of the texture gizmos know of them, see TextureFace, and how the picture itself
/// is dragged: a press on it holds the texel that was hit.
class NB_MANIPULATOR_API TextureGizmo : public Gizmo
{
public:
    /// A copy with all fields, that shares the nodes and materials.
    virtual std::unique_ptr<TextureGizmo> clone() const = 0;

    virtual void setComponent(const osg::MaterialPtr& material, const std::string& name,
                              nbStateChunkBase* gui) = 0;

    MaterialComponent component;
    bool grabsPicture = false;
    bool pivotsAtHandles = false;
    // Of gizmos whose faces set them
    bool keepAspectRatio = false;
    float aspectRatio = 1.0F;
    bool areRingsTilted = false;

protected:
    TextureGizmo(const CourseRules& courseRules, HandleTable table, HandleSet::Materials materials,
                 int startMode, const float& size);
    TextureGizmo(const TextureGizmo&) = default;

    /// Grabs the picture, if it is to be grabbed and seen there.
    int grabBeside(osg::Pnt3f& place) override;
    const HandleRow* armedRow() const override;

    /// Whether the picture is shown at a place of its surface, and can be grabbed.
    virtual bool isPictureAt(const SurfacePlace& /*place*/) const { return false; }

    /// The offset that brings what is seen at one place to another one.
    virtual osg::Vec3f pictureOffset(const SurfacePlace& /*from*/, const SurfacePlace& /*to*/) const
    {
        return {};
    }

    bool holdsPicture() const { return getArmed() == kPictureHandle; }

    /// A step of a drag of the picture: the texel goes with the pointer, or the picture turns as
    /// the pointer goes to the right, or grows as it goes to the right and up.
    DragStep pictureStep(const View& view, const DragTrack& before) const;

    /// What lies at a pixel of the surface that wears the material.
    std::optional<SurfacePlace> surfaceAt(const osg::Pnt2f& px) const
    {
        return surface->under(px, component.getMaterial());
    }

    unsigned offsetAxes = axisBit(0) | axisBit(1);  ///< that the picture moves along
    std::optional<SurfacePlace> grabbed;  ///< of the picture
    /// Of a turn of the picture: 1 where a growing angle is seen counter-clockwise, else -1.
    float turnSense = 1.0F;

private:
    DragParameters::Kind pictureKind() const;

    std::shared_ptr<PictureSurface> surface;
    HandleRow pictureRow;
    osg::Pnt2f pressed;  ///< pointer when the picture was grabbed
};

}  // namespace nbec::manipulator::texture
