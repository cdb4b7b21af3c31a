// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbdPerspectiveMatch.h>
#include <nbOpenSGUberCamera/nbCameraNavigation.h>
#include <nbOpenSGUberMaterial/nbTextureValues.h>
#include <nbOpenSGUtils/nbTransformState.h>
#include <nbSceneplateModule/nbSceneplateUndo.h>

#include <OpenSG/OSGColor.h>

#include <QByteArray>
#include <QDir>
#include <QImage>
#include <QLineF>
#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace viewer {

/// Ending of scene files, without the dot.
constexpr const char* kSceneSuffix = "nbscene";

/// Whether the name's ending is that of a scene file.
bool isSceneFileName(const QString& path);

/// A picture: a file, or the pixels themselves where there is no file, as for painted texts.
struct ScenePicture
{
    QString file;  ///< absolute; empty for none
    QByteArray png;  ///< a PNG file; empty for none
    QImage pixels;  ///< become a PNG file where the scene is written; null for none

    bool isNull() const { return file.isEmpty() && png.isEmpty(); }
};

/// What was edited of an object; everything else is as in its model.
struct SceneNode
{
    QString path;  ///< places among the child objects, from the model's root, such as "0/3"; "":
                   ///< it; "0/3+1" is a copy of "0/3", see ModelSources
    QString name;  ///< as in the model; checked when the scene is opened
    std::optional<QString> newName;
    bool removed = false;  ///< with all below it
    bool visible = true;
    osg::UInt32 denied = 0;  ///< bits of nbNodePermission
    std::optional<nbTransformState> transform;  ///< absent: as in the model
};

/// How a picture lies on a surface, see osg::ColorComponentSettings.
struct SceneSettings
{
    int type = 1;  ///< ColorComponentSettings::TextureProjection
    int flags = 0;  ///< bits of ColorComponentSettings::PlanarProjectionFlag
    bool asMask = false;
    bool invert = false;
    std::optional<nbTransformState> projection;
    nbTextureValues values;
};

/// A component of a material that has a picture or settings for one.
struct SceneComponent
{
    QString name;  ///< such as "diffuse"
    ScenePicture picture;
    std::optional<SceneSettings> settings;
};

/// A surface with a material that can carry pictures.
struct SceneSurface
{
    QString object;  ///< path of the object, as SceneNode::path
    int part = 0;  ///< place among the object's own surfaces
    QString name;  ///< of the surface; checked when the scene is opened
    osg::Color3f ambient;
    osg::Color3f diffuse;
    osg::Color3f specular;
    osg::Color3f emission;
    float shininess = 0.0F;
    float transparency = 0.0F;
    std::vector<SceneComponent> components;
};

struct SceneModel
{
    QString file;  ///< absolute; empty for one that is built in
    QString builtIn;  ///< name of a model that is built in, see ModelSources; empty for a file
    std::vector<SceneNode> nodes;  ///< parents before their children
    std::vector<SceneSurface> surfaces;
};

struct SceneClipPlane
{
    osg::Vec4f equation { 0.0F, 1.0F, 0.0F, 0.0F };
    bool enabled = true;
    float outline = 1.0F;  ///< edge of the square that shows it, world units, > 0
    SceneNode frame;  ///< has a transform, but no path
};

/// A node right below the scene's root, or below a clip plane there.
struct SceneBranch
{
    enum class Kind
    {
        Model,
        Frame,  ///< of a clip plane
        Plane  ///< cuts its children
    };

    Kind kind = Kind::Model;
    int number = 0;  ///< of the model or clip plane
    std::vector<SceneBranch> children;
};

struct ScenePlate
{
    nbSceneplateState state;  ///< without its image
    ScenePicture picture;
};

/// The photograph behind the scene, and the lines that say how the camera stands to it.
struct SceneMatch
{
    static constexpr double kUsualVeil = 0.4;

    ScenePicture photograph;
    double veil = kUsualVeil;
    bool fitsWidth = false;  ///< the photograph is as wide as the view, rather than as high
    bool linesShown = true;
    bool locked = false;
    int linesType = 0;  ///< nbCameraTypes::VanishingLinesType
    int fovMode = 0;  ///< nbCameraTypes::FovMode
    float magnifyFactor = nbdPerspectiveMatch::kDefaultMagnifyFactor;
    /// Reference sizes from the lower left corner; absent: not laid yet.
    std::optional<std::array<QLineF, nbdPerspectiveMatch::kLineCount>> lines;
    float aspect = 1.0F;  ///< width by height of the view that the lines are meant for
};

/// Everything of a scene that a person edits, as values. The selection, tools and their settings
/// are none of it, nor is the list of steps.
struct SceneDocument
{
    CameraPose camera;
    std::vector<SceneModel> models;
    std::vector<SceneClipPlane> clipPlanes;
    /// Below the scene's root; each model, plane and frame once. Empty: the models in their order.
    std::vector<SceneBranch> tree;
    std::vector<ScenePlate> plates;  ///< in the order of the tree
    std::optional<SceneMatch> match;  ///< absent: as in a new scene
};

/// Text of a scene: JSON in a fixed order, each number with as few digits as give it back bit for
/// bit, so that the same scene always gives the same bytes.
/// @param folder  that the text is to lie in; files are named from there, or by their whole path
///                where no way leads to them
QByteArray sceneText(const SceneDocument& document, const QDir& folder);

/// Reads a scene from its text; touches nothing but it.
/// @param folder  that relative file names are looked up in
/// @param error   one line with the place ("line 3, column 7: ..." or "plates[1].size: ...")
/// @return nothing when the text is no valid scene
std::optional<SceneDocument> parseScene(const QByteArray& text, const QDir& folder, QString& error);

/// Reads a scene file. @param error  one line that begins with the file's name
std::optional<SceneDocument> readSceneFile(const QString& path, QString& error);

/// Writes a scene file; an existing one is replaced only when everything is on the disk.
/// @return false with one line in `error`; the file is as it was
bool writeSceneFile(const QString& path, const SceneDocument& document, QString& error);

}  // namespace viewer
