// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbManipulatorExport.h"

#include <nbOpenSGUberMaterial/ColorComponentSettings.h>

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

#include <array>
#include <memory>
#include <tuple>

/// Shows a planar texture projection in the scene: a faint plane with the picture, its outline, and
/// the box in which a projection shows that ends in z. It takes no pointer input.
///
/// The host hangs getRootNode() into its scene. The tree, top down:
/// - root: Group, marked auxiliary;
/// - visualisation: Transform, world matrix of the object;
/// - projection: Transform3D, rotation and translation of the projection;
/// - 2D transform: Transform3D with the planes and the outline, corners at -1 and 1; beside it the
///   Z extent: Transform3D at (0, 0, -1) that takes the projection's scale, and lines.
///
/// The Z extent's frame has its origin at the far end and looks back; being scaled about the near
/// end, its box reaches from the projection's plane to -1 times the scale. Copies share everything:
/// nodes, materials and the picture shown.
class NB_MANIPULATOR_API nbPlanarProjectionVisualization
{
public:
    nbPlanarProjectionVisualization();

    // == The tree. The visualisation holds one count on each node.

    osg::NodePtr getRootNode() const { return root.get(); }

    /// The object transform.
    osg::NodePtr getVisualizationNode() const { return objectTransformNode.get(); }

    osg::NodePtr getProjectionTransformNode() const { return projectionTransformNode.get(); }

    osg::NodePtr get2DTransformNode() const { return transform2DNode.get(); }

    // == Placement

    /// Takes over the node's world matrix as it is now. @param node  null: the world's origin
    void attachToNode(osg::NodePtr node);
    /// Takes over rotation, translation and scale of the planar projection; the scale goes to the Z
    /// extent alone, as the plane has its own (setScale). Without settings or a projection, and for
    /// a tree whose cores were replaced by others, nothing changes.
    void updateProjectionTransform(osg::ColorComponentSettingsPtr settings);
    /// Turns planes and outline in the projection's plane. @param angle  degrees, about z
    void setRotate(float angle);
    /// Half width and half height of planes and outline, in the projection's frame.
    void setScale(float sx, float sy);

    // == Looks

    /// Shows or hides everything; visible at first.
    void setVisible(bool visible);
    /// Shows or hides the Z extent; visible at first.
    void setZScaleVisible(bool visible);
    /// @param transparency  of the plane as it is seen from either side, 0 (opaque) .. 1; 0.8 at
    ///                      first
    void setPlaneTransparency(float transparency);

    float getPlaneTransparency() const { return planeMaterials[0]->getTransparency(); }

    /// Sets the picture on the planes. The same image with the same flags again does nothing, even
    /// if its pixels have changed.
    /// Deliberate: an image without alpha that is no mask shows no picture at all, and mipmaps (the
    /// whole chain) are built on the inverted path alone.
    /// @param image   null for none; counted only while it is itself on the planes
    /// @param asMask  a copy's brightness covers the planes, instead of the image's own alpha
    /// @param invert  the mask is turned over; without asMask it means nothing
    void setTexture(osg::ImagePtr image, bool asMask, bool invert);

private:
    void createGeo();

    osg::NodeRefPtr root;
    osg::NodeRefPtr objectTransformNode;
    osg::NodeRefPtr projectionTransformNode;
    osg::NodeRefPtr transform2DNode;
    osg::NodeRefPtr zExtentTransformNode;
    osg::NodeRefPtr zExtentGeometryNode;
    /// The first one's plane is seen, from both sides.
    std::array<osg::SimpleMaterialRefPtr, 2> planeMaterials;
    osg::RefPtr<osg::TextureChunkPtr> textureChunk;
    /// Id of the image and flags of the last setTexture(). What the chunk shows belongs to the
    /// chunk, so copies have it in common.
    std::shared_ptr<std::tuple<osg::UInt32, bool, bool>> shownTexture;
};
