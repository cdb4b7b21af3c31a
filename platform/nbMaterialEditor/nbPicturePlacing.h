// SPDX-License-Identifier: MIT
#pragma once

#include <nbMaterialEditor/nbMaterialEditor.h>
#include <nbUtils/nbFunctionRef.h>

#include <OpenSG/OSGVector.h>

#include <optional>
#include <vector>

/// Places the picture that an nbMaterialEditor edits as a whole: what buttons do, where handles
/// would take several drags. Each operation is one edit of the editor, and answers whether it was
/// possible for the projection in use, which is named there; the tire projection has none of them
/// but fitToObject(). For a few calls, while surface and editor are there.
class NB_PLATFORM_API nbPicturePlacing
{
public:
    /// @param edited  outlives this
    /// @param wearer  geometry node that carries the material, in whose space the projection lies;
    ///                null for none
    nbPicturePlacing(nbMaterialEditor& edited, const osg::NodePtr& wearer);

    /// Has the picture cover the surface once, in the direction in which it lies (planar; what
    /// keeps its aspect covers more), or its texture coordinates (UV). Three pictures become half
    /// as high as the object, those of a tire are fitted from now on.
    bool fitToObject();

    /// The same for all of the surface that lies in one plane with a place; a planar picture lies
    /// down on it, upright. @param world  a place on the surface  @param up  the world's
    bool fitToFace(const osg::Pnt3f& world, const osg::Vec3f& up);

    /// Brings the picture's middle to that of the surface (planar) or of the unit square (UV).
    bool centre();

    /// Turns a planar picture about its middle: it faces along one direction, and up is another
    /// one, or, where that goes along the first, the last. It keeps its size in the world.
    /// @param normal  nothing: as now  @param up, otherUp  all world, any length
    bool alignTo(const std::optional<osg::Vec3f>& normal, const osg::Vec3f& up,
                 const osg::Vec3f& otherUp);

    /// Turns by right angles, counter-clockwise, about the middle of the picture (planar, UV).
    bool turn(int quarters);

    /// Whether the surface is that of a body, of which the front sides of triangles as they wind
    /// look outwards: only then faces that turn away from a picture are told from those that do
    /// not.
    bool isBody() const;

    /// Mirrors the picture (planar, UV, triplanar). @param axis  0 across, 1 upwards
    bool flip(osg::UInt32 axis);

    /// Pixels of the picture for a unit of the world, across and upwards (planar, UV, where it is
    /// the mean over the surface, and triplanar, of the first projection). Zero without a picture.
    osg::Vec2f getTexelsPerUnit() const;

    /// Sizes the picture about its middle (planar) or origin. @param wanted  both > 0
    bool setTexelsPerUnit(const osg::Vec2f& wanted);

private:
    struct Triangle
    {
        osg::Pnt3f places[3];
        osg::Vec2f coords[3];

        osg::Vec3f area() const;  ///< normal, as long as twice the area
    };

    using EditState = nbFunctionRef<void(nbTransformState&)>;
    using EditValues = nbFunctionRef<void(nbTextureValues&)>;

    std::vector<Triangle> triangles() const;
    std::vector<Triangle> faceAt(const osg::Pnt3f& place) const;
    bool cover(const std::vector<Triangle>& part, nbTransformState state);
    bool edit(EditState ofPlanar, EditValues ofOthers, osg::Int32 except = -1);
    osg::Vec2f unitsPerPicture() const;
    osg::Int32 type() const;
    // Fresh ones where there are none.
    nbTransformState present() const;
    nbTextureValues presentValues() const;

    nbMaterialEditor& editor;
    osg::NodePtr surface;
    osg::Matrix worldFromSurface;
};
