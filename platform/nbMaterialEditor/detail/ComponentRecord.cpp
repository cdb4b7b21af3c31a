// SPDX-License-Identifier: MIT
#include "ComponentRecord.h"

#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGFieldContainerFactory.h>

namespace {

osg::UberMaterialPtr resolve(osg::UInt32 id)
{
    return osg::UberMaterialPtr::dcast(osg::FieldContainerFactory::the()->getContainer(id));
}

}  // namespace

ComponentState ComponentState::of(const osg::UberMaterialPtr& material,
                                  const std::string& component)
{
    ComponentState state;
    state.image = material->getImage(component);
    const osg::ColorComponentSettingsPtr settings = material->getComponentSettings(component);
    state.settings = settings;
    if (settings != osg::NullFC) {
        state.projection = settings->getPlanarProjection();
        state.planarProjectionFlags = settings->getPlanarProjectionFlags();
        state.textureProjectionType = settings->getTextureProjectionType();
        state.asMask = settings->getAsMask();
        state.invert = settings->getInvert();
        state.values = nbTextureValues::of(*settings);
    }
    return state;
}

void ComponentState::applyTo(const osg::UberMaterialPtr& material,
                             const std::string& component) const
{
    if (settings != osg::NullFC) {
        const nbEdit edit(settings.get(), osg::FieldBits::AllFields);
        settings->setPlanarProjection(projection.get());
        settings->setPlanarProjectionFlags(planarProjectionFlags);
        settings->setTextureProjectionType(textureProjectionType);
        settings->setAsMask(asMask);
        settings->setInvert(invert);
        values.applyTo(settings.get());
    }
    material->setImage(component, image.get());
    material->setComponentSettings(component, settings.get());
}

bool ComponentState::operator==(const ComponentState& other) const
{
    return settings == other.settings && image == other.image && projection == other.projection &&
        planarProjectionFlags == other.planarProjectionFlags &&
        textureProjectionType == other.textureProjectionType && asMask == other.asMask &&
        invert == other.invert && values == other.values;
}

ComponentRecord::ComponentRecord(const osg::UberMaterialPtr& material, const std::string& edited)
    : materialId(material.getFieldContainerId())
    , component(edited)
    , before(ComponentState::of(material, edited))
{ }

bool ComponentRecord::close()
{
    const osg::UberMaterialPtr material = resolve(materialId);
    if (material == osg::NullFC) {
        return false;
    }
    after = ComponentState::of(material, component);
    return !(after == before);
}

void ComponentRecord::restore(const ComponentState& state) const
{
    const osg::UberMaterialPtr material = resolve(materialId);
    if (material != osg::NullFC) {
        state.applyTo(material, component);
    }
}
