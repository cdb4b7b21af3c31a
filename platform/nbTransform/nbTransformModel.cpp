// SPDX-License-Identifier: MIT
#include "nbTransformModel.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbTransformTable.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGExt/nbSameBits.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbOpenSGUtils/nbTransformMath.h>
#include <nbTransform/detail/PivotEdit.h>
#include <nbUtils/nbLog.h>

#include <OpenSG/OSGDynamicVolume.h>
#include <OpenSG/OSGNode.h>

#include <QtCore/QCoreApplication>

#include <cmath>
#include <string>

using nbtransform::Faults;
using nbtransform::Subject;
using nbTransformMath::isFinite;
using osg::Transform3D;
using osg::Transform3DPtr;
using osg::Vec3d;
using osg::Vec3f;

namespace {

constexpr char kMoveTitle[] = QT_TRANSLATE_NOOP("Manipulator", "Move");
constexpr char kRotateTitle[] = QT_TRANSLATE_NOOP("Manipulator", "Rotate");
constexpr char kScaleTitle[] = QT_TRANSLATE_NOOP("Manipulator", "Scale");
constexpr char kMoveRotatePivotTitle[] = QT_TRANSLATE_NOOP("Manipulator", "Move Rotate Pivot");
constexpr char kMoveScalePivotTitle[] = QT_TRANSLATE_NOOP("Manipulator", "Move Scale Pivot");
constexpr char kTurnPivotTitle[] = QT_TRANSLATE_NOOP("Manipulator", "Turn Rotate Pivot");

/// The frames of targets' parents; worked out once for targets that follow each other in one frame.
class ParentFrames
{
public:
    explicit ParentFrames(bool worldSpace)
        : isWorld(worldSpace)
    { }

    /// The frame that places of a target are given in, as seen from the space of the call: for
    /// local space the identity.
    /// @param edited  the target's core; null if it is not edited
    const nbTransformMath::Frame& of(const osg::NodePtr& node, const Transform3DPtr& edited)
    {
        const osg::NodePtr parent = isWorld ? node->getParent() : osg::NodePtr();
        if (parent == osg::NullFC) {
            return identity;
        }
        if (parent != knownParent) {
            frame = nbTransformMath::Frame::of(parent->getToWorld());
        }
        // The target is no ancestor of its own parent, so that editing it leaves the frame as it
        // is, unless its core is that of other nodes too.
        const bool staysKnown = edited != osg::NullFC && edited->getParents().getSize() == 1;
        knownParent = staysKnown ? parent : osg::NodePtr();
        return frame;
    }

private:
    bool isWorld;
    nbTransformMath::Frame identity;
    osg::NodePtr knownParent;
    nbTransformMath::Frame frame;
};

/// Makes a node a Transform3D, with its pivots at the centre of its volume, about which a drag
/// would turn it, too; the scene root keeps its own.
Transform3DPtr convertedCore(const osg::NodePtr& node)
{
    const osg::NodePtr converted = nbNodeUtils::convertToTransform3DNode(node);
    const auto core = Transform3DPtr::dcast(converted->getCore());
    const osg::DynamicVolume& volume = converted->getVolume(true);
    if (node != nbScenegraph::getRootNode() && volume.isValid() && !volume.isEmpty()) {
        osg::Pnt3f center;
        volume.getCenter(center);
        osg::Matrix nodeFromParent;
        core->getMatrix().inverse(nodeFromParent);
        nodeFromParent.multMatrixPnt(center);
        // Where the pivots of a new transform are is part of the conversion.
        const nbScopedUndo unrecorded(false);
        nbNodeUtils::setTransformNodeRotatePivot(converted, center.x(), center.y(), center.z(),
                                                 true, -1);
        nbNodeUtils::setTransformNodeScalePivot(converted, center.x(), center.y(), center.z(), true,
                                                -1);
    }
    return core;
}

inline Transform3DPtr transformOf(const osg::NodePtr& node)
{
    const auto core = Transform3DPtr::dcast(node->getCore());
    return core != osg::NullFC ? core : convertedCore(node);
}

inline bool mayTransform(const osg::NodePtr& node)
{
    // Most nodes have no attachments, and so nothing that could forbid it.
    return node->getSFAttachments()->getValue().empty() ||
        nbNodePermission::allows(node, nbNodePermission::Transform);
}

/// Hands each target with a value to edit(subject, value, faults), which answers whether it took
/// it.
template <class Edit>
osg::UInt32 editAll(const char* title, osg::UInt32 count, nbTransformModel::ValueFunction values,
                    Edit edit)
{
    const nbScopedUndo scope(title);
    nbTransformTable* const recorded = nbUndoService::the()->getOpenTransforms();
    Faults faults;
    osg::UInt32 edited = 0;
    for (osg::UInt32 i = 0; i < count; ++i) {
        const nbTransformModel::Value value = values(i);
        const osg::NodePtr& node = value.first.first;
        if (node == osg::NullFC || !mayTransform(node)) {
            continue;
        }
        if (!isFinite(value.second)) {
            ++faults.notFinite;
            continue;
        }
        const Transform3DPtr core = transformOf(node);
        if (core == osg::NullFC) {
            continue;
        }
        nbTransformEntry* const entry = recorded != nullptr ? &recorded->note(core) : nullptr;
        if (edit(Subject { node, core, entry }, value.second, faults)) {
            ++edited;
        }
    }
    faults.log(title);
    return edited;
}

osg::UInt32 movePivots(decltype(nbtransform::moveRotatePivot)& move, const char* title,
                       osg::UInt32 count, bool worldSpace, nbTransformModel::ValueFunction places)
{
    ParentFrames frames(worldSpace);
    return editAll(title, count, places,
                   [&](const Subject& subject, const Vec3f& place, Faults& faults) {
                       return move(subject, frames.of(subject.node, subject.core), place, faults);
                   });
}

bool moveInWorld(const Subject& subject, const nbTransformMath::Frame& frame, const Vec3f& value,
                 Faults& faults)
{
    if (!frame.invertible) {
        ++faults.flattened;
        return false;
    }
    Vec3f translation = value;
    if (!frame.isIdentity) {
        const Vec3f& start = subject.entry != nullptr ? subject.entry->start.translation
                                                      : subject.core->getTranslation();
        const bool isStart = nbSameValues(value, Vec3f(frame.toOuter(Vec3d(start))));
        translation = isStart ? start : Vec3f(frame.toInner(Vec3d(value)));
        if (!isFinite(translation)) {
            ++faults.notFinite;
            return false;
        }
    }
    const nbEdit edit(subject.core, Transform3D::TranslationFieldMask);
    subject.core->setTranslation(translation);
    return true;
}

void assignStep(double& step, double value, const char* what)
{
    if (std::isfinite(value) && value >= 0.0) {
        step = value;
    } else {
        nbLog::warning(std::string("nbTransformModel: a ") + what + " precision of " +
                       std::to_string(value) + " is ignored; it is 0 or greater");
    }
}

Vec3f inSpace(const osg::NodePtr& node, bool worldSpace, const Vec3d& place)
{
    ParentFrames frames(worldSpace && node != osg::NullFC);
    return Vec3f(frames.of(node, osg::NullFC).toOuter(place));
}

Transform3DPtr findTransform(const osg::NodePtr& node)
{
    return node == osg::NullFC ? Transform3DPtr() : Transform3DPtr::dcast(node->getCore());
}

}  // namespace

nbTransformModel* nbTransformModel::the()
{
    static nbTransformModel model;
    return &model;
}

// == Values

osg::UInt32 nbTransformModel::setTranslation(osg::UInt32 count, bool worldSpace,
                                             ValueFunction values)
{
    if (!worldSpace) {
        return editAll(kMoveTitle, count, values,
                       [](const Subject& subject, const Vec3f& value, Faults&) {
                           const nbEdit edit(subject.core, Transform3D::TranslationFieldMask);
                           subject.core->setTranslation(value);
                           return true;
                       });
    }
    ParentFrames frames(true);
    return editAll(
        kMoveTitle, count, values, [&](const Subject& subject, const Vec3f& value, Faults& faults) {
            return moveInWorld(subject, frames.of(subject.node, subject.core), value, faults);
        });
}

osg::UInt32 nbTransformModel::setRotation(osg::UInt32 count, ValueFunction anglesDeg)
{
    return editAll(kRotateTitle, count, anglesDeg,
                   [](const Subject& subject, const Vec3f& value, Faults&) {
                       const nbEdit edit(subject.core, Transform3D::RotationFieldMask);
                       nbtransform::setTurn(subject, value);
                       return true;
                   });
}

osg::UInt32 nbTransformModel::setScale(osg::UInt32 count, ValueFunction factors)
{
    return editAll(kScaleTitle, count, factors,
                   [](const Subject& subject, const Vec3f& value, Faults&) {
                       const nbEdit edit(subject.core, Transform3D::ScaleFieldMask);
                       subject.core->setScale(value);
                       return true;
                   });
}

osg::UInt32 nbTransformModel::setRotationPivot(osg::UInt32 count, bool worldSpace,
                                               ValueFunction places)
{
    return movePivots(nbtransform::moveRotatePivot, kMoveRotatePivotTitle, count, worldSpace,
                      places);
}

osg::UInt32 nbTransformModel::setScalePivot(osg::UInt32 count, bool worldSpace,
                                            ValueFunction places)
{
    return movePivots(nbtransform::moveScalePivot, kMoveScalePivotTitle, count, worldSpace, places);
}

osg::UInt32 nbTransformModel::setRotationPivotOrientation(osg::UInt32 count,
                                                          ValueFunction anglesDeg)
{
    return editAll(kTurnPivotTitle, count, anglesDeg,
                   [](const Subject& subject, const Vec3f& value, Faults&) {
                       nbtransform::turnPivot(subject, value);
                       return true;
                   });
}

// == Reading

Vec3f nbTransformModel::getTranslation(const osg::NodePtr& node, bool worldSpace)
{
    const Vec3f local = nbNodeUtils::getTransformNodeTranslation(node);
    return worldSpace ? inSpace(node, true, Vec3d(local)) : local;
}

Vec3f nbTransformModel::getRotationPivot(const osg::NodePtr& node, bool worldSpace)
{
    return inSpace(node, worldSpace,
                   Vec3d(nbNodeUtils::getTransformNodeTranslation(node)) +
                       Vec3d(nbNodeUtils::getTransformNodeRotatePivot(node)));
}

Vec3f nbTransformModel::getScalePivot(const osg::NodePtr& node, bool worldSpace)
{
    const Transform3DPtr core = findTransform(node);
    if (core == osg::NullFC) {
        // Both pivots are one.
        return getRotationPivot(node, worldSpace);
    }
    return inSpace(node, worldSpace,
                   nbTransformMath::scalePivotPlace(nbTransformState::of(*core),
                                                    nbTransformMath::wholeRotation(*core)));
}

// == Steps of snapping

void nbTransformModel::setTranslationPrecision(double step)
{
    assignStep(translationPrecision, step, "translation");
}

void nbTransformModel::setRotationPrecision(double stepDeg)
{
    assignStep(rotationPrecision, stepDeg, "rotation");
}

void nbTransformModel::setScalePrecision(double step)
{
    assignStep(scalePrecision, step, "scale");
}
