// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/textures/ProjectionPose.h"

#include <nbMaterialEditor/nbPicturePlacing.h>

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>

#include <functional>
#include <string>
#include <tuple>

namespace viewer {

/// What pictures are put on: one component of the material of a surface, in the hands of the
/// platform's material editor. Every edit is one undo step, or part of an open one; without a
/// surface, or without a projection where one is edited, it answers false. Nodes are kept by id.
class TextureTarget
{
public:
    using Settings = osg::ColorComponentSettings;
    using Flag = Settings::PlanarProjectionFlag;

    /// @param receiverName  of the editor's messages
    /// @param gui           told of every change; outlives this
    TextureTarget(const std::string& receiverName, nbStateChunkBase& gui);

    /// Turns to the surface of an object; null for none.
    /// @param part  of the object, preferred if it is a surface of it
    void follow(const osg::NodePtr& object, const osg::NodePtr& part);
    /// Hands the editor what is there now, after undo or edits of others.
    /// @return whether material, projection, component or object are others than before
    bool connect();

    /// @return null if there is none
    osg::NodePtr object() const;
    osg::NodePtr surface() const;
    /// Null as long as nothing was put on the surface.
    osg::UberMaterialPtr material() const;
    osg::ColorComponentSettingsPtr settings() const;
    osg::Transform3DPtr projection() const;
    osg::ImagePtr image() const;
    /// How the picture lies on the surface; planar without settings.
    Settings::TextureProjection projectionType() const;
    /// Of the other projections; those of fresh settings without any.
    nbTextureValues values() const;

    /// "diffuse" at first.
    const std::string& component() const { return componentName; }

    /// @return false for a component that is not shown
    bool setComponent(const std::string& name);

    // == Edits

    /// Puts a picture on the component. The first one gets a projection that ends in z, keeps its
    /// aspect and, on a body, leaves out faces that turn away; the surface's material is made one
    /// for pictures before.
    /// @param pose  of a new projection
    bool setImage(const osg::ImagePtr& image, const ProjectionPose& pose);
    bool removeImage();

    using EditState = std::function<void(nbTransformState&)>;
    /// Edits what the picture is laid on by. @return false without a projection
    bool editProjection(const EditState& edit);
    /// Keeps the ratio of x to y if the projection is to keep it, and what is mirrored.
    /// @param scale  all > 0
    bool setScale(const osg::Vec3f& scale);
    bool setFlag(Flag flag, bool on);
    bool setCoverage(bool asMask, bool invert);
    /// Switches to another projection, which is fitted to the object if it was never used. A
    /// surface without texture coordinates gets those of a box when they are first needed.
    bool setProjectionType(Settings::TextureProjection type);

    /// Draws the picture as a click would place it, see nbMaterialEditor.
    void showPlacing(const osg::NodePtr& hit, const osg::Pnt3f& point, const osg::Vec3f& normal)
    {
        editor.showPlacing(hit, point, normal);
    }

    /// How clicks turn and size it beside that.
    void setPlacingTurn(float angle, float size) { editor.setPlacingTurn(angle, size); }

    /// For edits of the place as a whole.
    nbPicturePlacing placing() { return nbPicturePlacing(editor, surface()); }

    /// Also false for values that are not finite, or zero where they must not be.
    bool setValues(const nbTextureValues& values);

private:
    /// What the editor works on: ids of object, material and projection; the component.
    using Connection = std::tuple<osg::UInt32, osg::UInt32, osg::UInt32, std::string>;

    nbMaterialEditor editor;
    nbStateChunkBase& observer;
    osg::UInt32 objectId = 0;
    osg::UInt32 surfaceId = 0;
    std::string componentName = osg::UberMaterial::kDiffuseComponent;
    Connection connected;
};

}  // namespace viewer
