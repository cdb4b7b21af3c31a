// SPDX-License-Identifier: MIT
#include "manipulator/texture/MaterialComponent.h"

#include "manipulator/handles/ContainerReference.h"

namespace nbec::manipulator::texture {

void MaterialComponent::set(const osg::MaterialPtr& editedMaterial, const std::string& component,
                            nbStateChunkBase* editor)
{
    materialId = containerId(editedMaterial);
    name = component;
    gui = editor;
}

osg::MaterialPtr MaterialComponent::getMaterial() const
{
    return resolveContainer<osg::MaterialPtr>(materialId);
}

osg::UberMaterialPtr MaterialComponent::getUberMaterial() const
{
    return resolveContainer<osg::UberMaterialPtr>(materialId);
}

osg::ColorComponentSettingsPtr MaterialComponent::getSettings() const
{
    const osg::UberMaterialPtr material = getUberMaterial();
    return material != osg::NullFC ? material->getComponentSettings(name)
                                   : osg::ColorComponentSettingsPtr();
}

bool MaterialComponent::isOf(const osg::MaterialPtr& other) const
{
    return materialId != 0 && materialId == containerId(other);
}

bool MaterialComponent::is(const osg::MaterialPtr& other, const std::string& component) const
{
    return isOf(other) && name == component;
}

}  // namespace nbec::manipulator::texture
