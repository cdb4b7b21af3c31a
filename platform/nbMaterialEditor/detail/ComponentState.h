// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberMaterial/UberMaterial.h>
#include <nbOpenSGUberMaterial/nbTextureValues.h>

#include <string>

/// What a material has of one component, apart from the parts of its projection, which the undo
/// service keeps by itself.
struct ComponentState
{
    std::string component;
    osg::ColorComponentSettingsRefPtr settings;
    osg::RefPtr<osg::ImagePtr> image;
    osg::RefPtr<osg::Transform3DPtr> projection;
    osg::UInt32 planarProjectionFlags = 0;
    osg::Int32 textureProjectionType = 0;
    bool asMask = false;
    bool invert = false;
    nbTextureValues values;

    static ComponentState of(const osg::UberMaterialPtr& material, const std::string& component);

    /// The same component as the material has it now.
    ComponentState now(const osg::UberMaterialPtr& material) const
    {
        return of(material, component);
    }

    void applyTo(const osg::UberMaterialPtr& material) const;

    bool isSame(const ComponentState& other) const;
};
