// SPDX-License-Identifier: MIT
#include "UberMaterial.h"

#include <nbOpenSGUtils/nbEdit.h>

namespace osg {

NB_CONTAINER_TYPE(UberMaterial, SimpleMaterial, NB_UBER_MATERIAL_FIELDS);

namespace {

ColorComponentPtr makeEntry(const std::string& component, const ColorComponentSettingsPtr& settings,
                            const ImagePtr& image)
{
    const ColorComponentPtr entry = ColorComponent::create();
    const nbEdit edit(entry, FieldBits::AllFields);
    entry->setComponent(component);
    entry->setSettings(settings);
    entry->setImage(image);
    return entry;
}

}  // namespace

ColorComponentSettingsPtr UberMaterial::getComponentSettings(const std::string& component) const
{
    const ColorComponentPtr entry = findComponent(component);
    return entry == NullFC ? ColorComponentSettingsPtr() : entry->getSettings();
}

void UberMaterial::setComponentSettings(const std::string& component,
                                        const ColorComponentSettingsPtr& settings)
{
    replaceComponent(component, settings, getImage(component));
}

Vec2f UberMaterial::getRepeat(const std::string& component) const
{
    const ColorComponentSettingsPtr settings = getComponentSettings(component);
    return settings == NullFC ? Vec2f(1.0F, 1.0F) : settings->getRepeat();
}

ImagePtr UberMaterial::getImage(const std::string& component) const
{
    const ColorComponentPtr entry = findComponent(component);
    return entry == NullFC ? ImagePtr() : entry->getImage();
}

void UberMaterial::setImage(const std::string& component, const ImagePtr& image)
{
    replaceComponent(component, getComponentSettings(component), image);
}

std::vector<std::string> UberMaterial::getComponentNames() const
{
    std::vector<std::string> names;
    for (ColorComponentPtr entry = getComponents(); entry != NullFC;
         entry = entry->getFollowing()) {
        names.push_back(entry->getComponent());
    }
    return names;
}

bool UberMaterial::isTransparent() const
{
    const ColorComponentPtr entry = findComponent(kTransparencyComponent);
    if (entry == NullFC || entry->getSettings() == NullFC || entry->getImage() == NullFC ||
        !entry->getImage()->isValid()) {
        return Inherited::isTransparent();
    }
    return entry->getSettings()->getAsMask() || entry->getImage()->hasAlphaChannel() ||
        Inherited::isTransparent();
}

ColorComponentPtr UberMaterial::findComponent(const std::string& component) const
{
    ColorComponentPtr entry = getComponents();
    while (entry != NullFC && entry->getComponent() != component) {
        entry = entry->getFollowing();
    }
    return entry;
}

void UberMaterial::replaceComponent(const std::string& component,
                                    const ColorComponentSettingsPtr& settings,
                                    const ImagePtr& image)
{
    std::vector<ColorComponentPtr> entries;
    bool known = false;
    const bool wanted = settings != NullFC || image != NullFC;
    for (ColorComponentPtr old = getComponents(); old != NullFC; old = old->getFollowing()) {
        if (old->getComponent() != component) {
            entries.push_back(makeEntry(old->getComponent(), old->getSettings(), old->getImage()));
        } else {
            known = true;
            if (wanted) {
                entries.push_back(makeEntry(component, settings, image));
            }
        }
    }
    if (!known && wanted) {
        entries.push_back(makeEntry(component, settings, image));
    }
    ColorComponentPtr first;
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
        const nbEdit edit(*entry, ColorComponent::FollowingFieldMask);
        (*entry)->setFollowing(first);
        first = *entry;
    }
    const nbEdit edit(UberMaterialPtr(*this), ComponentsFieldMask);
    setComponents(first);
}

}  // namespace osg
