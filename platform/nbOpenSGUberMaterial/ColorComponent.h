// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberMaterial/ColorComponentSettings.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGImage.h>

#include <string>

#include <FieldContainerGlue.h>

namespace osg {

class NB_PLATFORM_API ColorComponent;
NB_CONTAINER_POINTER(ColorComponent, AttachmentContainerPtr);

// clang-format off
#define NB_COLOR_COMPONENT_FIELDS(VALUE, OWNED, LINK)                                              \
    VALUE(Component, component, std::string, "")                                                   \
    OWNED(Settings, settings, ColorComponentSettingsPtr)                                           \
    OWNED(Image, image, ImagePtr)                                                                  \
    OWNED(Following, following, ColorComponentPtr)

// clang-format on

/// An entry in the list of components of an UberMaterial: a name with settings and a picture, both
/// of which may be null, and the next entry. Entries never change once they are in a material, so
/// that copies of the material can share them.
class NB_PLATFORM_API ColorComponent : public AttachmentContainer
{
    NB_CONTAINER(ColorComponent, AttachmentContainer, NB_COLOR_COMPONENT_FIELDS);
};

}  // namespace osg
