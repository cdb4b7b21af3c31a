// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>
#include <QString>

namespace viewer {

class Stage;
class TextureTool;

/// The commands and values of the texture tool, all named "texture.", as the panel, sessions and
/// tests use them:
/// - component "diffuse" or "transparency"; picture FILE, or null to take it away;
/// - drop {"file": FILE, "at": PLACE}: as if the file were dropped there; a place of the view as
///   steps of sessions have it;
/// - handles "translate", "rotate", "scale", "rotateScale" or "universal": shows these, as far as
///   the projection has them; place BOOL: clicks place the picture, or the handles alone where only
///   these have a place;
/// - edit BOOL: gives the pointer to the tool or back; null: the other way round;
/// - translation, rotation (degrees), scale [x, y, z] of the planar projection, in the object's
///   space;
/// - keepAspect, repeatU, repeatV, endInDepth, mask, invert BOOL;
/// - showProjection, showDepth BOOL and planeTransparency 0 .. 1: the projection in the scene.
/// - those of addTextureValueCommands().
/// Each is a value of the same name, except drop; picture is the name of the file alone. Further
/// values: surface, the name of what is edited, and preview, false while it is paused.
class TextureCommands
{
public:
    /// @param targetStage, textureTool  outlive this
    TextureCommands(Stage& targetStage, TextureTool& textureTool);
    TextureCommands(const TextureCommands&) = delete;
    TextureCommands& operator=(const TextureCommands&) = delete;
    ~TextureCommands();

private:
    void addPictureCommands();
    void addHandleCommands();
    void addProjectionCommands();
    void addSwitches();
    void addSceneCommands();
    bool drop(const QJsonValue& value, QString& error);

    Stage& stage;
    TextureTool& tool;
};

}  // namespace viewer
