// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbUndoRecord.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>
#include <nbOpenSGUberMaterial/nbTextureValues.h>

#include <string>

/// What a material has of one component, apart from the parts of its projection, which the undo
/// service keeps by itself.
struct ComponentState
{
    osg::ColorComponentSettingsRefPtr settings;
    osg::RefPtr<osg::ImagePtr> image;
    osg::RefPtr<osg::Transform3DPtr> projection;
    osg::UInt32 planarProjectionFlags = 0;
    osg::Int32 textureProjectionType = 0;
    bool asMask = false;
    bool invert = false;
    nbTextureValues values;

    static ComponentState of(const osg::UberMaterialPtr& material, const std::string& component);

    void applyTo(const osg::UberMaterialPtr& material, const std::string& component) const;

    bool operator==(const ComponentState& other) const;
};

/// An edit of a component, made before the edit. Holds the settings and pictures, not the material.
class ComponentRecord : public nbUndoRecord
{
public:
    ComponentRecord(const osg::UberMaterialPtr& material, const std::string& edited);

    bool close() override;

    void undo() override { restore(before); }

    void redo() override { restore(after); }

private:
    void restore(const ComponentState& state) const;

    osg::UInt32 materialId;
    std::string component;
    ComponentState before;
    ComponentState after;
};
