// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/DragContext.h"
#include "viewer/stage/StageTool.h"
#include "viewer/textures/PlacingContext.h"
#include "viewer/textures/TextureAnchor.h"
#include "viewer/textures/TextureGizmos.h"
#include "viewer/textures/TextureTarget.h"

#include <nbInteraction/Picker.h>
#include <nbMaterialEditor/nbMaterialPreview.h>
#include <nbOpenSGUberMaterial/nbStateChunkBase.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <optional>
#include <string>

#include <manipulator/nbPlanarProjectionVisualization.h>
#include <modules/textureplacement/TexturePlacementPickTool.h>

namespace viewer {

class Stage;

/// Puts pictures on the surface of the selected object: the gizmo of their projection, placing by
/// clicks and by drops, and the display of the projection in the scene.
///
/// While this is active either the gizmo's handles are shown, or clicks place the picture. Gizmo
/// and clicks reach the material through the editor of the platform, as in any host.
class TextureTool : public StageTool, public nbStateChunkBase
{
public:
    /// Adds itself and its commands to the stage. @param targetStage  outlives this
    explicit TextureTool(Stage& targetStage);
    ~TextureTool() override;

    // == What is edited

    TextureTarget& target() { return textureTarget; }

    const TextureTarget& target() const { return textureTarget; }

    /// Why nothing can be put on the selection, one line; "" if something can.
    QString hindrance() const;

    /// Turns to another component of the material. @return false for one that is not shown
    bool setComponent(const std::string& component);

    /// Puts a picture file on the component. The first one comes to the side that faces the eye.
    /// @return false with one line in `error`, nothing changed
    bool setPicture(const QString& file, QString& error);

    /// Switches to another projection of the picture, with its handles. @return false without one
    bool setProjectionType(TextureTarget::Settings::TextureProjection type);

    /// Puts a picture file on what lies at a pixel, upright, selects that object and shows the
    /// handles. @return false with one line in `error`; nothing changed
    bool dropPicture(const QString& file, const osg::Pnt2f& px, QString& error);

    /// Has a planar picture face along a direction of the world, upright there or, where it lies
    /// flat, in the view. @param normal  nothing: as it faces now  @return false without a picture
    bool alignTo(const std::optional<osg::Vec3f>& normal);

    // == The pointer

    /// Word of the handles shown, see TextureGizmos.
    const std::string& group() const { return shownGroup; }

    /// Whether the picture's projection has the handles of a group.
    bool hasGroup(const std::string& word) const { return gizmos.hasGroup(word); }

    /// Shows the handles of a group, and makes this the active tool. @return false for one that the
    /// picture's projection does not have
    bool showGroup(const std::string& word);

    /// For settings of single gizmos.
    TextureGizmos& allGizmos() { return gizmos; }

    TextureGizmos::Size handleSize() const { return gizmos.size(); }

    void setHandleSize(float size);

    bool isActive() const { return active; }

    bool isPlacing() const { return active && placing; }

    bool leaveMode() override
    {
        const bool wasPlacing = isPlacing();
        if (wasPlacing) {
            setPlacing(false);
        }
        return wasPlacing;
    }

    /// Lets clicks place the picture, and makes this the active tool; or shows the handles again.
    /// Where only the handles have a place, a click places these, and they are shown again.
    void setPlacing(bool on);

    /// Where the handles of all but the planar projection stand, world space; nothing without a
    /// picture.
    std::optional<osg::Pnt3f> anchor() const;

    /// Puts it where the surface lies at a pixel. @return false if it does not lie there
    bool setAnchor(const osg::Pnt2f& px);

    // == The projection in the scene, visible while this is active

    bool isProjectionShown() const { return projectionShown; }

    void showProjection(bool on);

    bool isDepthShown() const { return depthShown; }

    void showDepth(bool on);

    float planeTransparency() const { return visualization.getPlaneTransparency(); }

    /// @param transparency  0 .. 1
    void setPlaneTransparency(float transparency);

    /// Paused while a handle is dragged.
    nbMaterialPreview& preview() { return materialPreview; }

    // == As a tool of the stage

    const char* name() const override { return "texture"; }

    void activate() override;
    void deactivate() override;
    void sceneCleared() final;
    void selectionChanged() override;
    void viewChanged() override;
    void update() override;
    osg::NodePtr handles() override;
    std::string hoveredHandle() override;
    std::string handleAt(const osg::Pnt2f& px) override;

    QString selectionText() const override
    {
        return isPlacing() ? placingContext.text() : QString();
    }

    /// Takes what falls on an object, as the command "texture.drop", so that it is recorded.
    bool takePicture(const QString& file, const osg::Pnt2f& px, QString& error) override;

    // == As the editor's object: the values were changed by a drag, a click, undo or redo

    void componentChanged(const std::string& component) override;

private:
    /// Adopts what the target is now.
    void refresh();
    void connect();
    void takePointer();
    void leavePointer();
    void applyGroup();
    void followAnchor();
    void showInScene();

    Stage& stage;
    nbMaterialPreview materialPreview;
    nbPlanarProjectionVisualization visualization;

    nbec::interaction::Picker handlePicker;
    nbec::interaction::Picker probe;  ///< for questions, so that the context's last hit stays
    nbec::interaction::Picker scenePicker;
    TextureGizmos gizmos;
    TextureAnchor handlePlace;
    nbec::modules::textureplacement::TexturePlacementPickTool placingTool;
    DragContext handleContext;
    TextureTarget textureTarget;
    PlacingContext placingContext;
    std::string shownGroup = "universal";
    bool active = false;
    bool placing = false;
    bool projectionShown = true;
    bool depthShown = true;
    osg::UInt64 shownStamp = 0;
};

}  // namespace viewer
