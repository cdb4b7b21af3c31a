// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGNode.h>

#include <string>

/// Helpers around scene graph nodes: names, marks of helper nodes, transform nodes, bounds.
/// Every operation takes null for a node; it then does nothing and answers with null, "" or false.
class NB_PLATFORM_API nbNodeUtils
{
public:
    /// Names a node.
    static void setName(const osg::NodePtr& node, const std::string& name);

    /// Names a node and, with geometries set, every node with a Geometry core in the subtree of top
    /// (null: of the node itself).
    static void setName(const osg::NodePtr& node, const std::string& name, bool geometries,
                        const osg::NodePtr& top = osg::NodePtr());

    /// Name of a node; "" without one.
    static std::string getName(const osg::NodePtr& node);

    /// Marks a node, and with it its subtree, as helper geometry that scene tools pass by.
    static void setIsAuxiliaryNode(const osg::NodePtr& node, bool on);
    static bool isAuxiliaryNode(const osg::NodePtr& node);

    /// Marks helper geometry that the picker of handles may hit.
    static void setIsSelectableAuxiliaryNode(const osg::NodePtr& node, bool on);

    /// Marks the root of a manipulator's handles, which are drawn over the scene.
    static void setIsManipulatorNode(const osg::NodePtr& node, bool on);

    /// The three marks of the node itself, as bits of osg::NodeFlags::Flag.
    static osg::UInt32 getNodeFlags(const osg::NodePtr& node);

    /// Whether the node itself or one of its ancestors is the given one.
    static bool hasParent(const osg::NodePtr& node, const osg::NodePtr& ancestor);

    /// The nearest node, from the given one upwards, whose core is a Transform or derived from it.
    static osg::NodePtr resolveToTransformNode(const osg::NodePtr& node);

    /// Makes the node one with a Transform3D core and keeps the picture and all to-world matrices.
    /// A Transform core, derived ones too, becomes an equal Transform3D. Any other core moves to a
    /// new only child that takes the children. Name and marks stay on the node.
    /// @return the node
    static osg::NodePtr convertToTransform3DNode(const osg::NodePtr& node);

    /// Parts of the node's transform core: fields of a Transform3D or ComponentTransform, otherwise
    /// read off the matrix of a Transform; without such a core those of the identity.
    static osg::Vec3f getTransformNodeTranslation(const osg::NodePtr& node);
    static osg::Vec3f getTransformNodeScale(const osg::NodePtr& node);
    /// Angles about x, y, z in degrees, in the order of a Transform3D, otherwise "xyz".
    static osg::Vec3f getTransformNodeRotation(const osg::NodePtr& node);
    static osg::Vec3f getTransformNodeRotatePivot(const osg::NodePtr& node);
    static osg::Vec3f getTransformNodeScalePivot(const osg::NodePtr& node);

    /// Sets a pivot of the node's Transform3D core, a point in the object's own coordinates.
    /// Can be undone where edits are recorded, see nbEditRecorder.
    /// @param keepInPlace  true: the translation changes with it, so that the object stays; false:
    /// only the pivot changes. The other pivot's field stays in any case.
    /// @param index  which transform of the node, for nodes with several; nodes here have one, -1
    /// @return false, and nothing has changed, for another core and for values that are not finite
    static bool setTransformNodeRotatePivot(const osg::NodePtr& node, float x, float y, float z,
                                            bool keepInPlace, int index);
    static bool setTransformNodeScalePivot(const osg::NodePtr& node, float x, float y, float z,
                                           bool keepInPlace, int index);

    /// Bounds, in world space, of the active geometry in the node's subtree that is not marked as
    /// auxiliary (marks of the node's ancestors do not count); empty if there is none.
    static osg::BoxVolume getWorldBounds(const osg::NodePtr& node);

    /// The same in the node's own space, from which its getToWorld() leads.
    static osg::BoxVolume getOwnBounds(const osg::NodePtr& node);
};
