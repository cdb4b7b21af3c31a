// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberMaterial/UberMaterial.h>
#include <nbOpenSGUberMaterial/nbStateChunkBase.h>
#include <nbOpenSGUberMaterial/nbTextureValues.h>
#include <nbOpenSGUtils/nbTransformState.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNode.h>

#include <memory>
#include <string>

/// Edits one component of an UberMaterial, by messages of manipulators and for panels.
///
/// Receives, R being its receiver name:
/// - R::changedPlanarManipulator. "transVec" (Vec3f) moves the projection's centre in the object's
///   space and "offset" (Vec2f), where there is no "transVec", along its own X and Y axes; "rotate"
///   (float) turns it about its own Z axis by minus that angle in radians. These are totals, added
///   to the projection as it was when the drag began. "scale" (Vec3f) is the new scale, "clamping"
///   (bool) true limits the picture to the Z extent. Each attribute works by itself; the rest of
///   the projection stays as it is.
/// - R::getScaleValues replies "initialTextureScale" (Vec3f), the scale at which the picture's
///   pixels are square and it is two units high, (width / height, 1, 1), all ones without a
///   picture; and "projectionSize" (Vec2f), the projection's whole width and height in object
///   units. Without a projection there is no reply.
/// - R::placeTexture, with "hitNode" (NodePtr), "hitPoint" (Pnt3f) and "hitNormal" (Vec3f) in world
///   space, moves the projection's centre to the point and turns its Z axis to the normal. It leans
///   against the world's upright by as much as it did when the drag began (on what lies flat, up is
///   away from the front), and keeps the size in the world that it had then. What is hit is the
///   object, or
///   another geometry with the same material, in whose space the projection lies as well; a null
///   node and anything else do nothing. A normal without length leaves the rotation.
///
/// - R::changedTriplanarManipulator, all values absolute: "XOffset", "YOffset", "ZOffset" (Vec2f),
///   "rotate" (Vec3f, radians), "XScale", "YScale", "ZScale" (Vec2f), the reciprocals of the
///   repeats. R::changedUVManipulator: "offset", "scale" (Vec2f) and "rotate" (float, degrees), the
///   same for the UV projection. R::changedTireManipulator: "center" (Vec3f), "ScaleHeight",
///   "ScaleRadius", "ScaleU" (float), and "autoParameter" (bool), which, where it was false and
///   becomes true, fits centre, height and radius to the object. They change the values of their
///   projection, whichever the component shows. A scale of 0, or so small or large that its
///   reciprocal is none, is refused.
///
/// A drag begins for the editor at the first message after one of: setMaterial, an edit through the
/// editor itself, a "setMatRenderEnabled" of either value (with which manipulators enclose their
/// drags), the opening or closing of a group in nbUndoService, an undo or redo there, or another
/// projection in the component.
///
/// Every message that changes something is an undo scope of its own (see nbUndoService), so that a
/// host's group makes one step of a drag, and marks the scene as modified. An attribute that is
/// missing, of another type or not finite, or a message without anything to change, leaves
/// everything as it was and costs one line in the log. Belongs to the user-interface thread.
class NB_PLATFORM_API nbMaterialEditor
{
public:
    /// @param receiverName  R; what editors of the same name had received goes to the newest
    explicit nbMaterialEditor(const std::string& receiverName);

    /// Receives nothing any more.
    ~nbMaterialEditor();

    nbMaterialEditor(const nbMaterialEditor&) = delete;
    nbMaterialEditor& operator=(const nbMaterialEditor&) = delete;

    /// What is edited. Nothing of it is counted; what is destroyed is no longer edited.
    /// @param material   null, or none of this kind, for nothing
    /// @param object     node that carries the material, whose space the projection lies in
    /// @param component  such as UberMaterial::kDiffuseComponent
    /// @param gui        told of every change; not owned, null for none
    void setMaterial(const osg::MaterialPtr& material, const osg::NodePtr& object,
                     const std::string& component, nbStateChunkBase* gui = nullptr);

    osg::UberMaterialPtr getMaterial() const;
    const std::string& getComponent() const;

    /// Settings and projection of the component; null where there are none.
    osg::ColorComponentSettingsPtr getSettings() const;
    osg::Transform3DPtr getProjection() const;

    // == Placing by "R::placeTexture"

    /// Has what is placed from now on be turned and sized beside that, about its place.
    /// @param angle  radians, counter-clockwise for who looks at the picture; 0 at first
    /// @param size   of width and height, > 0; 1 at first. Numbers that are not finite: nothing
    void setPlacingTurn(float angle, float size);

    /// Has the picture drawn as "R::placeTexture" with these would place it, until the next call,
    /// the next edit by this editor, or another material: nothing is edited, recorded or told.
    /// @return false, and it is drawn where it is, where that message would do nothing
    bool showPlacing(const osg::NodePtr& hitNode, const osg::Pnt3f& hitPoint,
                     const osg::Vec3f& hitNormal);

    // == Edits; each can be undone, marks the scene as modified, and answers whether it was
    // possible

    /// Gives the component a picture; null takes it away. A component without settings or without a
    /// projection gets them: a projection onto the front (+Z) of the object with square pixels,
    /// half as large as the object.
    bool setImage(const osg::ImagePtr& image);

    /// Writes all parts of the projection; false also for values that are not finite.
    bool setProjection(const nbTransformState& state);

    /// Writes the flags of the planar projection (bits of PlanarProjectionFlag). With
    /// KeepAspectRatio switched on, the Y scale becomes what makes the picture's pixels square.
    bool setFlags(osg::UInt32 flags);

    /// Switches to another projection of the picture (TextureProjection). A projection that was
    /// never used is fitted to the object: the planar one as by setImage, the triplanar one with
    /// square pixels and pictures half as high as the object's longest side; the tire projection
    /// always while TireAutoParameter is set. False also for any other number.
    bool setTextureProjectionType(osg::Int32 type);

    /// Writes all values of the UV, triplanar and tire projection; TireAutoParameter, where it
    /// comes, has centre, height and radius fitted to the object. False also for values that are
    /// not sound.
    bool setTextureValues(const nbTextureValues& values);

    /// @param asMask  coverage is the brightness of the picture instead of its alpha
    /// @param invert  coverage is turned over
    bool setCoverage(bool asMask, bool invert);

private:
    struct Impl;
    std::unique_ptr<Impl> impl;
};
