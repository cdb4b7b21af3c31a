// SPDX-License-Identifier: MIT
#include "manipulator/texture/PictureSurface.h"

#include "manipulator/drag/DragGeometry.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>

#include <cmath>

namespace nbec::manipulator::texture {

namespace {

/// The node by which a geometry has a material: the outermost group of a material above it, or else
/// itself; null if it has another one.
osg::NodePtr carrierOf(const osg::NodePtr& hit, const osg::MaterialPtr& material)
{
    const auto geometry =
        hit != osg::NullFC ? osg::GeometryPtr::dcast(hit->getCore()) : osg::GeometryPtr();
    if (geometry == osg::NullFC) {
        return osg::NodePtr();
    }
    osg::NodePtr carrier = geometry->getMaterial() == material ? hit : osg::NodePtr();
    for (osg::NodePtr node = hit->getParent(); node != osg::NullFC; node = node->getParent()) {
        const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
        if (group != osg::NullFC) {
            carrier = group->getMaterial() == material ? node : osg::NodePtr();
        }
    }
    return carrier;
}

}  // namespace

osg::Vec3f SurfacePlace::inSurface() const
{
    return mapped(inverted(worldFromSurface), world).subZero();
}

std::optional<SurfacePlace> PictureSurface::under(const osg::Pnt2f& pointerPx,
                                                  const osg::MaterialPtr& material)
{
    const osg::Pnt2f px(std::round(pointerPx.x()), std::round(pointerPx.y()));
    std::optional<SurfacePlace> place = underPixel(px, material);
    const osg::Vec2f part = pointerPx - px;
    for (osg::UInt32 i = 0; i < 2 && place; ++i) {
        osg::Pnt2f next = px;
        next[i] += std::copysign(1.0F, part[i]);
        const auto beside =
            part[i] != 0.0F ? underPixel(next, material) : std::optional<SurfacePlace>();
        if (beside) {
            place->world += (beside->world - place->world) * std::abs(part[i]);
        }
        if (beside && beside->texCoord && place->texCoord) {
            *place->texCoord += (*beside->texCoord - *place->texCoord) * std::abs(part[i]);
        }
    }
    return place;
}

std::optional<SurfacePlace> PictureSurface::underPixel(const osg::Pnt2f& px,
                                                       const osg::MaterialPtr& material)
{
    const osg::NodePtr carrier = carrierOf(picker.pickAt(px), material);
    if (carrier == osg::NullFC) {
        return std::nullopt;
    }
    return SurfacePlace { carrier->getToWorld(), picker.getHitPoint(), picker.getHitNormal(),
                          picker.getHitTexCoord() };
}

}  // namespace nbec::manipulator::texture
