// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberMaterial/ColorComponent.h>
#include <nbOpenSGUberMaterial/ColorComponentSettings.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <string>
#include <vector>

#include <FieldContainerGlue.h>

namespace osg {

class NB_PLATFORM_API UberMaterial;
NB_CONTAINER_POINTER(UberMaterial, SimpleMaterialPtr);

// clang-format off
#define NB_UBER_MATERIAL_FIELDS(VALUE, OWNED, LINK)                                                \
    OWNED(Components, components, ColorComponentPtr)

// clang-format on

/// A material of plain colours, some of which can have a picture that is projected on the surface.
///
/// Components go by name; any name can be kept. The renderer shows these:
/// - "diffuse": the picture lies over the diffuse colour (or the colours of the geometry) like a
///   decal, as far as it covers; a picture without alpha covers all of itself. It is lit like that
///   colour. A picture that is alpha alone has no colour to show.
/// - "transparency": the surface is as opaque as the picture covers it, times the material's own
///   opacity: a mask, white where the surface stays. A picture without alpha that is no mask says
///   nothing about this. Such a material is drawn blended.
/// Outside of a picture that does not repeat, without settings, and with a picture that is missing
/// or cannot be shown, the plain colour stays. Only surfaces show pictures, lines and points do
/// not; a shader chunk in the material replaces all of this. Pickers see no pictures: what is cut
/// out is hit like the rest.
class NB_PLATFORM_API UberMaterial : public SimpleMaterial
{
    NB_CONTAINER(UberMaterial, SimpleMaterial, NB_UBER_MATERIAL_FIELDS);

public:
    static constexpr const char* kDiffuseComponent = "diffuse";
    static constexpr const char* kTransparencyComponent = "transparency";

    /// Settings of a component; null if it has none.
    ColorComponentSettingsPtr getComponentSettings(const std::string& component) const;

    /// Gives a component settings, which are counted; null takes them away. Opens its own edit.
    void setComponentSettings(const std::string& component,
                              const ColorComponentSettingsPtr& settings);

    /// How often the picture of a component repeats over a unit of the texture coordinates; 1 in
    /// both directions for a component without settings.
    Vec2f getRepeat(const std::string& component) const;

    /// Picture of a component; null if it has none.
    ImagePtr getImage(const std::string& component) const;

    /// Gives a component a picture, which is counted; null takes it away. Opens its own edit.
    void setImage(const std::string& component, const ImagePtr& image);

    /// Names of the components that have settings or a picture, in the order of their first one.
    std::vector<std::string> getComponentNames() const;

    /// Also with a picture that makes parts of the surface transparent.
    bool isTransparent() const override;

private:
    ColorComponentPtr findComponent(const std::string& component) const;
    void replaceComponent(const std::string& component, const ColorComponentSettingsPtr& settings,
                          const ImagePtr& image);
};

}  // namespace osg
