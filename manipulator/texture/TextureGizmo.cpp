// SPDX-License-Identifier: MIT
#include "manipulator/texture/TextureGizmo.h"

#include <nbKernel/nbOSGWidget.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace nbec::manipulator::texture {

using Kind = DragParameters::Kind;

TextureGizmo::TextureGizmo(const CourseRules& courseRules, HandleTable table,
                           HandleSet::Materials materials, int startMode, const float& size)
    : Gizmo(courseRules, std::move(table), std::move(materials), startMode, size)
    , surface(std::make_shared<PictureSurface>())
    , pictureRow { "picture", kPictureHandle, -1, {} }
{ }

int TextureGizmo::grabBeside(osg::Pnt3f& place)
{
    const osg::UberMaterialPtr material = component.getUberMaterial();
    const Kind kind = pictureKind();
    pictureRow.action = { kind,
                          kind == Kind::Angle        ? axisBit(2)
                              : kind == Kind::Offset ? offsetAxes
                                                     : kAllAxes };
    if (!grabsPicture || pictureRow.action.kind == Kind::None || material == osg::NullFC ||
        material->getImage(component.getName()) == osg::NullFC) {
        return 0;
    }
    pressed = View().getPointer();
    grabbed = surfaceAt(pressed);
    if (!grabbed || !isPictureAt(*grabbed)) {
        return 0;
    }
    place = grabbed->world;
    return kPictureHandle;
}

/// What a drag of the picture does in the present mode; their numbers say the same for all gizmos.
Kind TextureGizmo::pictureKind() const
{
    switch (static_cast<UVMode>(getMode())) {
    case UVMode::Hidden:
        return Kind::None;
    case UVMode::Rotate:
        return Kind::Angle;
    case UVMode::Scale:
    case UVMode::RotateScale:
        return Kind::Factor;
    default:
        return Kind::Offset;
    }
}

const HandleRow* TextureGizmo::armedRow() const
{
    return holdsPicture() ? &pictureRow : Gizmo::armedRow();
}

DragStep TextureGizmo::pictureStep(const View& view, const DragTrack& before) const
{
    constexpr float kDegPerPixel = 0.5F;
    constexpr float kPixelsPerDoubling = 150.0F;
    constexpr float kMostDoublings = 30.0F;  // beyond any screen, and finite both ways
    const Kind kind = pictureRow.action.kind;
    if (kind == Kind::Offset) {
        const std::optional<SurfacePlace> now = surfaceAt(view.getPointer());
        return now ? DragStep({ kind, pictureOffset(*grabbed, *now) }, before) : DragStep();
    }
    const osg::Vec2f way =
        (view.getPointer() - pressed) * (1.0F / nbOSGWidget::getPixelRatio(-1, 1.0F));
    return { { kind,
               kind == Kind::Angle ? -turnSense * kDegPerPixel * way.x()
                                   : std::exp2(std::clamp((way.x() - way.y()) / kPixelsPerDoubling,
                                                          -kMostDoublings, kMostDoublings)) },
             before };
}

}  // namespace nbec::manipulator::texture
