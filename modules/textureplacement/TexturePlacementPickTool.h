// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/PreviewPause.h"
#include "manipulator/nbManipulatorExport.h"
#include "manipulator/texture/MaterialComponent.h"

#include <nbInteraction/AbstractInteractionTool.h>

#include <OpenSG/OSGMaterial.h>

#include <string>

namespace nbec::modules::textureplacement {

/// Places the centre of a texture projection on the surface under the pointer.
///
/// A press and every move until the release pick and send receiver + "::placeTexture" with
/// "hitNode" (osg::NodePtr), "hitPoint" (osg::Pnt3f) and "hitNormal" (osg::Vec3f), both of world
/// space, as the context's picker has them. The material editor of that receiver name moves the
/// projection. From press to release the preview of the material is paused ("setMatRenderEnabled",
/// then "updateMatRender").
/// A copy takes over every setting; as of any tool, it is not active.
/// The tool owns nothing: the material is kept by container id, so one that was destroyed reads as
/// null; the editor's object must be taken off (setGUI) before it dies.
class NB_MANIPULATOR_API TexturePlacementPickTool : public interaction::AbstractInteractionTool
{
public:
    TexturePlacementPickTool();

    // == The tool's operations

    /// Shows a cross-hair over the main widget in the mode "tool", an arrow in any other; without a
    /// widget nothing changes. @return true
    bool setToolMode(interaction::ToolInteractionContext* context,
                     const std::string& mode) override;
    /// Shows the description text; deactivation clears it, and ends a pause whose stop was lost.
    void activateTool(interaction::ToolInteractionContext* context) override;
    void deactivateTool(interaction::ToolInteractionContext* context) override;

    /// Pauses the preview and places. "zoom" is taken too, without doing anything, so that zooming
    /// reaches no other tool meanwhile; every other hint is refused.
    /// Deliberate: "add" is refused, so that adding to a selection never places a texture.
    /// @return false, and nothing is sent, for a refused hint or a context without a picker
    bool startTool(interaction::ToolInteractionContext* context, const std::string& event) override;
    /// Places again, under the pointer's new position. @return whether the hint is one of the
    /// tool's
    bool processTool(interaction::ToolInteractionContext* context,
                     const std::string& event) override;
    /// Lets the preview go on and has it refreshed. @return as processTool()
    bool stopTool(interaction::ToolInteractionContext* context, const std::string& event) override;

    // == What is placed

    /// @param material       whose texture is placed; null for none
    /// @param componentType  texture component of the material, such as "diffuse"
    /// @param gui            the host's editor object of the component, not owned; null for none
    void setMaterialComponent(osg::MaterialPtr material, const std::string& componentType,
                              nbStateChunkBase* gui)
    {
        component.set(material, componentType, gui);
    }

    /// @return whether the material is the one whose texture is placed; false for null
    bool isConnectedToMaterial(osg::MaterialPtr material) const { return component.isOf(material); }

    /// @return whether both the material and the component are those that are placed
    bool isConnectedTo(osg::MaterialPtr material, const std::string& componentType) const
    {
        return component.is(material, componentType);
    }

    std::string getComponentType() const { return component.getName(); }

    /// @return null if none was set or it no longer exists
    osg::MaterialPtr getMaterial() const { return component.getMaterial(); }

    nbStateChunkBase* getGUI() const { return component.getGUI(); }

    void setGUI(nbStateChunkBase* gui) { component.setGUI(gui); }

    // == Settings

    /// Sets the name under which the material's editor receives; "" at first.
    void setMessageReceiver(const std::string& receiver) { component.setReceiver(receiver); }

    /// Sets the text that activation shows; at first "Set Texture Center Position", translated.
    void setDescriptionText(const std::string& text) { descriptionText = text; }

    /// Sets whether position and normal of a hit become the description; true at first.
    void setShowHitData(bool show) { showHitData = show; }

private:
    /// Sends what the context's picker has hit. @return false, and nothing is sent, without a
    /// picker
    bool processSelection(interaction::ToolInteractionContext* context);

    manipulator::texture::MaterialComponent component;
    std::string descriptionText;
    bool showHitData = true;
    manipulator::PreviewPause pause;
};

}  // namespace nbec::modules::textureplacement
