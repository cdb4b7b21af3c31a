// SPDX-License-Identifier: MIT
#pragma once

#include <nbMaterialEditor/detail/PreviewMessages.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>
#include <nbOpenSGUberMaterial/nbStateChunkBase.h>
#include <nbOpenSGUberMaterial/nbTextureValues.h>
#include <nbOpenSGUtils/nbTransformState.h>
#include <nbUtils/nbFunctionRef.h>

#include <OpenSG/OSGNode.h>

#include <optional>
#include <string>

bool isFinite(const nbTransformState& state);

/// Width / height of a picture, > 0; 1 without one.
float aspectOf(const osg::ImagePtr& image);

/// The component that an editor edits: what it is by id, how it was when the running drag began,
/// and the edits that every message and panel makes, recorded for undo.
class EditedComponent : public PreviewMessages
{
public:
    /// Values as they were when the drag began.
    struct DragStart
    {
        osg::UInt32 settingsId = 0;
        osg::UInt32 projectionId = 0;
        osg::UInt64 undoCount = 0;
        nbTransformState projection;  ///< fresh without a projection
        nbTextureValues values;
    };

    EditedComponent() = default;

    ~EditedComponent() override { showPlacing(std::nullopt); }

    void previewEnabled(bool) override { endDrag(); }

    void setTarget(const osg::MaterialPtr& material, const osg::NodePtr& object,
                   const std::string& component, nbStateChunkBase* gui);

    // Null for what is gone or missing.
    osg::UberMaterialPtr material() const;
    osg::NodePtr object() const;
    osg::ColorComponentSettingsPtr settings() const;
    osg::Transform3DPtr projection() const;

    const std::string& component() const { return componentName; }

    /// Of the drag that runs, or begins with this. With settings only; valid until the next call.
    const DragStart& start();

    void endDrag() { dragStart.reset(); }

    /// Bounds of the object in its own space; empty without one.
    osg::BoxVolume objectBounds() const;

    /// The node in whose space the projection is for a hit: the object, if that was hit, or else
    /// another node with the same material. Null if it has nothing to do with the material.
    osg::NodePtr spaceOf(const osg::NodePtr& hit) const;

    /// Has another projection drawn, which is no edit; nothing: the component's own again. Ends
    /// with the next edit that announces itself and with another target.
    void showPlacing(const std::optional<nbTransformState>& state);

    // == Edits within a scope of undo that is open; each answers whether anything is different now

    bool write(const osg::Transform3DPtr& core, const nbTransformState& state);
    bool write(const nbTextureValues& values);
    bool clampZ();

    /// Gives the component settings and a planar projection, as far as it has none.
    void createProjection();

    /// Brings values to the object's size: those of the tire projection if TireAutoParameter is
    /// set, those of the triplanar one if nobody has touched them.
    nbTextureValues fitted(nbTextureValues values, osg::Int32 projectionType) const;

    // == Around edits

    /// Has `edit` change the component, as one undo scope, and announces it.
    void makeEdit(const char* title, nbFunctionRef<void()> edit);

    /// Tells the host that something has changed.
    void announce();

private:
    void record();

    osg::UInt32 materialId = 0;
    osg::UInt32 objectId = 0;
    std::string componentName;
    nbStateChunkBase* gui = nullptr;
    std::optional<DragStart> dragStart;
    osg::RefPtr<osg::Transform3DPtr> placing;  ///< what is drawn instead; null for none
    osg::UInt32 placingSettingsId = 0;
    /// The step of the undo service that has a record of the component; 0 for none.
    osg::UInt64 recordedStep = 0;
};
