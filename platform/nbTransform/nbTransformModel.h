// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbFunctionRef.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGVector.h>

#include <utility>

/// Edits the transforms of scene nodes and holds the steps that their values snap to.
///
/// Setters take a count and a function that yields, for each index from 0, the target and its new
/// value. Targets are edited in the order of their indices, each with a core that is Transform3D;
/// other nodes are converted first, with both pivots at the centre of their volume, which becomes
/// part of the undo step. One call is one undo scope
/// (see nbUndoService), whatever the count.
///
/// Spaces: local is the frame of the node's parent, world the scene's. A target's place in local
/// space is the translation; for the rotate pivot translation + pivot, the point that rotations
/// leave alone; for the scale pivot the point that scalings leave alone, which is translation +
/// pivot as long as nothing is turned or both pivots coincide. (Under a rotation that sum is no
/// point of the object: by a half turn and a scale of 2 it would not move with the pivot at all.)
///
/// Left alone are targets that are null, have no parent frame that can be inverted where one is
/// needed (a scale of 0 above), may not be transformed (nbNodePermission) or get a value that is
/// not finite or leads to such a one. The last two of these faults cost one line of log per call.
/// Zero and negative scales are values like others: zero flattens, negative mirrors.
///
/// The values of a group of steps (nbUndoService::beginGroup) do not depend on the steps between:
/// what is computed starts from the state at the group's start, and a value equal to the one of
/// then restores the fields of then bit for bit.
///
/// Belongs to the user-interface thread. Never throws; what the function throws passes through.
class NB_PLATFORM_API nbTransformModel
{
public:
    /// A node and which of its transforms is meant, for hosts whose nodes have several; here a node
    /// has one and the number is ignored (-1 by custom).
    using Target = std::pair<osg::NodePtr, osg::Int32>;
    using Value = std::pair<Target, osg::Vec3f>;
    /// Called once per index, ascending.
    using ValueFunction = nbFunctionRef<Value(osg::UInt32)>;

    static nbTransformModel* the();

    // == Values. Each answers how many targets took their value.

    /// Moves. In local space the floats are stored as they are.
    osg::UInt32 setTranslation(osg::UInt32 count, bool worldSpace, ValueFunction values);

    /// Turns: angles about x, y, z in degrees in the node's Euler order. The node's rotation mode
    /// stays; in quaternion mode the equivalent quaternion is stored.
    osg::UInt32 setRotation(osg::UInt32 count, ValueFunction anglesDeg);

    /// Scales along the object's axes about its scale pivot.
    osg::UInt32 setScale(osg::UInt32 count, ValueFunction factors);

    /// Moves the rotate pivot. Pivot and translation change so that the object stays where it is,
    /// and the other pivot too.
    osg::UInt32 setRotationPivot(osg::UInt32 count, bool worldSpace, ValueFunction places);

    /// Moves the scale pivot. Both pivots and the translation change so that the object stays where
    /// it is, and the other pivot too. Along an axis of scale 0 the pivot cannot leave the object.
    osg::UInt32 setScalePivot(osg::UInt32 count, bool worldSpace, ValueFunction places);

    /// Turns the axes of the rotate pivot: angles as for setRotation. The rotation orientation
    /// changes so that the object stays.
    osg::UInt32 setRotationPivotOrientation(osg::UInt32 count, ValueFunction anglesDeg);

    // == The same values, read. Of a node without Transform3D: as nbNodeUtils reads its core.

    static osg::Vec3f getTranslation(const osg::NodePtr& node, bool worldSpace);
    static osg::Vec3f getRotationPivot(const osg::NodePtr& node, bool worldSpace);
    static osg::Vec3f getScalePivot(const osg::NodePtr& node, bool worldSpace);

    // == Steps of snapping; 0 switches the snapping of these values off. Others than finite values
    // from 0 are logged and change nothing.

    /// World units, at the start 1.
    double getTranslationPrecision() const { return translationPrecision; }

    void setTranslationPrecision(double step);

    /// Degrees, at the start 15.
    double getRotationPrecision() const { return rotationPrecision; }

    void setRotationPrecision(double stepDeg);

    /// Without unit, at the start 0.1.
    double getScalePrecision() const { return scalePrecision; }

    void setScalePrecision(double step);

    nbTransformModel(const nbTransformModel&) = delete;
    nbTransformModel& operator=(const nbTransformModel&) = delete;

private:
    static constexpr double kStartRotationPrecisionDeg = 15.0;
    static constexpr double kStartScalePrecision = 0.1;

    nbTransformModel() = default;

    double translationPrecision = 1.0;
    double rotationPrecision = kStartRotationPrecisionDeg;
    double scalePrecision = kStartScalePrecision;
};
