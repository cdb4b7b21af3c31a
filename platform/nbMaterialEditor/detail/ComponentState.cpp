// SPDX-License-Identifier: MIT
#include "ComponentState.h"

#include <nbOpenSGUtils/nbEdit.h>

ComponentState ComponentState::of(const osg::UberMaterialPtr& material,
                                  const std::string& component)
{
    ComponentState state;
    state.component = component;
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

void ComponentState::applyTo(const osg::UberMaterialPtr& material) const
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

bool ComponentState::isSame(const ComponentState& other) const
{
    return settings == other.settings && image == other.image && projection == other.projection &&
        planarProjectionFlags == other.planarProjectionFlags &&
        textureProjectionType == other.textureProjectionType && asMask == other.asMask &&
        invert == other.invert && values == other.values;
}
