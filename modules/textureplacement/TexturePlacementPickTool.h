// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbManipulatorExport.h"

#include <nbInteraction/AbstractInteractionTool.h>

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGMaterial.h>

#include <memory>
#include <string>

class nbStateChunkBase;

namespace nbec::modules::textureplacement {

/// Places the centre of a texture projection on the surface under the pointer.
///
/// A press and every move until the release pick and send receiver + "::placeTexture" with
/// "hitNode" (osg::NodePtr), "hitPoint" (osg::Pnt3f) and "hitNormal" (osg::Vec3f), both of world
/// space, as the context's picker has them. The material editor of that receiver name moves the
/// projection. From press to release the preview of the material is paused ("setMatRenderEnabled",
/// then "updateMatRender").
/// The tool owns nothing: the material is kept by container id, so one that was destroyed reads as
/// null; the editor's object must be taken off (setGUI) before it dies.
class NB_MANIPULATOR_API TexturePlacementPickTool : public interaction::AbstractInteractionTool
{
public:
    TexturePlacementPickTool();
    /// A copy takes over every setting; as of any tool, it is not active.
    TexturePlacementPickTool(const TexturePlacementPickTool& other);
    TexturePlacementPickTool& operator=(const TexturePlacementPickTool& other);
    ~TexturePlacementPickTool() override;

    // == The tool's operations

    /// Shows a cross-hair over the main widget in the mode "tool", an arrow in any other; without a
    /// widget nothing changes. @return true
    bool setToolMode(interaction::ToolInteractionContext* context,
                     const std::string& mode) override;
    /// Shows the description text.
    void activateTool(interaction::ToolInteractionContext* context) override;
    /// Clears the description.
    void deactivateTool(interaction::ToolInteractionContext* context) override;

    /// Pauses the preview and places. "zoom" is taken too, without doing anything, so that zooming
    /// reaches no other tool meanwhile; every other hint is refused.
    /// Deliberate: "add" is refused, so that adding to a selection never places a texture.
    /// @return false, and nothing is sent, for a refused hint or a context without a picker
    bool startTool(interaction::ToolInteractionContext* context, const std::string& event) override;
    /// Places again, under the pointer's new position; hints as in startTool().
    /// @return whether the hint is one of the tool's
    bool processTool(interaction::ToolInteractionContext* context,
                     const std::string& event) override;
    /// Lets the preview go on and has it refreshed; hints as in startTool().
    /// @return whether the hint is one of the tool's
    bool stopTool(interaction::ToolInteractionContext* context, const std::string& event) override;

    // == What is placed

    /// @param material       whose texture is placed; null for none
    /// @param componentType  texture component of the material, such as "diffuse"
    /// @param gui            the host's editor object of the component, not owned; null for none
    void setMaterialComponent(osg::MaterialPtr material, const std::string& componentType,
                              nbStateChunkBase* gui);
    /// @return whether the material is the one whose texture is placed; false for null
    bool isConnectedToMaterial(osg::MaterialPtr material) const;
    /// @return whether both the material and the component are those that are placed
    bool isConnectedTo(osg::MaterialPtr material, const std::string& componentType) const;
    std::string getComponentType() const;
    /// @return null if none was set or it no longer exists
    osg::MaterialPtr getMaterial() const;
    nbStateChunkBase* getGUI() const;
    void setGUI(nbStateChunkBase* gui);

    // == Settings

    /// Sets the name under which the material's editor receives; "" at first, which sends
    /// "::placeTexture".
    void setMessageReceiver(const std::string& receiver);
    /// Sets the text that activation shows; at first the translation of
    /// "Set Texture Center Position".
    void setDescriptionText(const std::string& text);
    /// Sets whether position and normal of a hit become the description; true at first.
    void setShowHitData(bool show);

private:
    /// Sends what the context's picker has hit, nothing hit included.
    /// @return false, and nothing is sent, without a picker
    bool processSelection(interaction::ToolInteractionContext* context);

    struct State;
    std::unique_ptr<State> state;
};

}  // namespace nbec::modules::textureplacement
