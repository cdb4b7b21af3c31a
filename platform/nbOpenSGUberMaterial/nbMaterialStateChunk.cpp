// SPDX-License-Identifier: MIT
#include "nbMaterialStateChunk.h"

#include <OpenSG/OSGFieldContainerFactory.h>

using osg::Real32;
using osg::UInt32;
using osg::Vec2f;
using osg::Vec3f;

namespace {

/// The values of one of the three projections; outside of them those of fresh settings.
Vec2f element(const Vec3f& u, const Vec3f& v, UInt32 axis, float otherwise)
{
    return axis < 3 ? Vec2f(u[axis], v[axis]) : Vec2f(otherwise, otherwise);
}

}  // namespace

void nbMaterialStateChunk::setMaterial(const osg::UberMaterialPtr& material)
{
    materialId = material == osg::NullFC ? 0 : material.getFieldContainerId();
}

osg::UberMaterialPtr nbMaterialStateChunk::getMaterial() const
{
    return osg::UberMaterialPtr::dcast(osg::FieldContainerFactory::the()->getContainer(materialId));
}

osg::ColorComponentSettingsPtr nbMaterialStateChunk::settingsOf(const std::string& component) const
{
    const osg::UberMaterialPtr material = getMaterial();
    return material == osg::NullFC ? osg::ColorComponentSettingsPtr()
                                   : material->getComponentSettings(component);
}

nbTextureValues nbMaterialStateChunk::valuesOf(const std::string& component) const
{
    const osg::ColorComponentSettingsPtr settings = settingsOf(component);
    return settings == osg::NullFC ? nbTextureValues() : nbTextureValues::of(*settings);
}

bool nbMaterialStateChunk::hasComponent(const std::string& component) const
{
    return settingsOf(component) != osg::NullFC;
}

Vec3f nbMaterialStateChunk::getTriplanarRotation(const std::string& component) const
{
    return valuesOf(component).triplanarRotation;
}

Vec2f nbMaterialStateChunk::getTriplanarOffset(const std::string& component, UInt32 axis) const
{
    const nbTextureValues values = valuesOf(component);
    return element(values.triplanarOffsetU, values.triplanarOffsetV, axis, 0.0F);
}

Vec2f nbMaterialStateChunk::getTriplanarRepeat(const std::string& component, UInt32 axis) const
{
    const nbTextureValues values = valuesOf(component);
    return element(values.triplanarRepeatU, values.triplanarRepeatV, axis, 1.0F);
}

Real32 nbMaterialStateChunk::getRotate(const std::string& component) const
{
    return valuesOf(component).rotate;
}

Vec2f nbMaterialStateChunk::getOffset(const std::string& component) const
{
    return valuesOf(component).offset;
}

Vec2f nbMaterialStateChunk::getRepeat(const std::string& component) const
{
    return valuesOf(component).repeat;
}

Vec3f nbMaterialStateChunk::getTireCenter(const std::string& component) const
{
    return valuesOf(component).tireCenter;
}

Real32 nbMaterialStateChunk::getTireScaleU(const std::string& component) const
{
    return valuesOf(component).tireScaleU;
}

Real32 nbMaterialStateChunk::getTireScaleHeight(const std::string& component) const
{
    return valuesOf(component).tireScaleHeight;
}

Real32 nbMaterialStateChunk::getTireScaleRadius(const std::string& component) const
{
    return valuesOf(component).tireScaleRadius;
}
