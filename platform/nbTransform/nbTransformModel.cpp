// SPDX-License-Identifier: MIT
#include "nbTransformModel.h"

#include <nbKernelServices/detail/TransformTable.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGExt/nbEulerRotation.h>
#include <nbOpenSGUtils/detail/TransformMath.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbLog.h>

#include <OpenSG/OSGNode.h>

#include <QtCore/QCoreApplication>

#include <cmath>
#include <cstring>
#include <string>

using nbTransformMath::isFinite;
using nbTransformMath::isSame;
using nbTransformMath::toDouble;
using nbTransformMath::toFloat;
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

/// Kinds of edits whose steps start from the state at the beginning of the undo step.
enum EditKind : int
{
    RotatePivotEdit = 1,
    ScalePivotEdit = 2,
    OrientationEdit = 3
};

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

/// One target in the middle of its edit.
struct Subject
{
    osg::NodePtr node;
    Transform3DPtr core;
    /// Null if nothing is recorded.
    nbTransformEntry* entry;
};

/// What kept targets of a call from their values.
struct Faults
{
    osg::UInt32 notFinite = 0;
    osg::UInt32 flattened = 0;

    void log(const char* what) const
    {
        if (notFinite > 0) {
            write(what, notFinite, "a value that is not finite or leads to such a one");
        }
        if (flattened > 0) {
            write(what, flattened, "a parent that is flattened to a scale of 0");
        }
    }

private:
    static void write(const char* what, osg::UInt32 count, const char* why)
    {
        nbLog::warning("nbTransformModel: \"" + std::string(what) + "\" left " +
                       std::to_string(count) + " node(s) as they are, because of " + why);
    }
};

Transform3DPtr convertedCore(const osg::NodePtr& node)
{
    return Transform3DPtr::dcast(nbNodeUtils::convertToTransform3DNode(node)->getCore());
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
    TransformTable* const recorded = nbUndoService::the()->getOpenTransforms();
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

/// What an edit of a kind starts from.
struct Base
{
    nbTransformState state;
    /// The state is that at the beginning of the undo step: only edits of the kind have followed
    /// it.
    bool isStart;
};

Base baseOf(const Subject& subject, EditKind kind)
{
    const nbTransformEntry* const entry = subject.entry;
    const bool isStart = entry != nullptr &&
        (entry->start.isSame(*subject.core) ||
         (entry->writtenKind == kind && entry->written.isSame(*subject.core)));
    return { isStart ? entry->start : nbTransformState::of(*subject.core), isStart };
}

/// Notes what an edit of a kind left, for the next baseOf.
void noteWritten(const Subject& subject, EditKind kind, const Base& base)
{
    if (subject.entry == nullptr) {
        return;
    }
    subject.entry->writtenKind = base.isStart ? kind : 0;
    if (base.isStart) {
        subject.entry->written = nbTransformState::of(*subject.core);
    }
}

/// A pivot of the core: where it is and how it moves.
struct PivotKind
{
    EditKind kind;
    Vec3d (*place)(const nbTransformState&, const nbTransformMath::Matrix3d&);
    nbTransformMath::MovedPivots (*move)(const nbTransformState&, const nbTransformMath::Matrix3d&,
                                         const Vec3d&);
};

constexpr PivotKind kRotatePivot { RotatePivotEdit, &nbTransformMath::rotatePivotPlace,
                                   &nbTransformMath::moveRotatePivot };
constexpr PivotKind kScalePivot { ScalePivotEdit, &nbTransformMath::scalePivotPlace,
                                  &nbTransformMath::moveScalePivot };

/// The state with a pivot at a place, which is given in the space that the frame leads to.
nbTransformState withPivotAt(const PivotKind& kind, const nbTransformState& base,
                             const nbTransformMath::Matrix3d& rotation,
                             const nbTransformMath::Frame& frame, const Vec3f& place)
{
    nbTransformState result = base;
    const Vec3d start = kind.place(base, rotation);
    if (isSame(place, toFloat(frame.toOuter(start)))) {
        return result;
    }
    const nbTransformMath::MovedPivots moved =
        kind.move(base, rotation, frame.toInner(toDouble(place)) - start);
    result.translation = toFloat(moved.translation);
    result.rotatePivot = toFloat(moved.rotatePivot);
    result.scalePivot = toFloat(moved.scalePivot);
    return result;
}

bool movePivot(const PivotKind& kind, const Subject& subject, const nbTransformMath::Frame& frame,
               const Vec3f& place, Faults& faults)
{
    if (!frame.invertible) {
        ++faults.flattened;
        return false;
    }
    const Base base = baseOf(subject, kind.kind);
    // Edits of a kind leave the rotation as it was at the start.
    const nbTransformState moved =
        withPivotAt(kind, base.state, nbTransformMath::wholeRotation(*subject.core), frame, place);
    if (!isFinite(moved.translation) || !isFinite(moved.rotatePivot) ||
        !isFinite(moved.scalePivot)) {
        ++faults.notFinite;
        return false;
    }
    {
        const nbEdit edit(subject.core,
                          Transform3D::TranslationFieldMask | Transform3D::RotatePivotFieldMask |
                              Transform3D::ScalePivotFieldMask);
        subject.core->setTranslation(moved.translation);
        subject.core->setRotatePivot(moved.rotatePivot);
        subject.core->setScalePivot(moved.scalePivot);
    }
    noteWritten(subject, kind.kind, base);
    return true;
}

osg::UInt32 movePivots(const PivotKind& kind, const char* title, osg::UInt32 count, bool worldSpace,
                       nbTransformModel::ValueFunction places)
{
    ParentFrames frames(worldSpace);
    return editAll(
        title, count, places, [&](const Subject& subject, const Vec3f& place, Faults& faults) {
            return movePivot(kind, subject, frames.of(subject.node, subject.core), place, faults);
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
        const bool isStart = isSame(value, toFloat(frame.toOuter(toDouble(start))));
        translation = isStart ? start : toFloat(frame.toInner(toDouble(value)));
        if (!isFinite(translation)) {
            ++faults.notFinite;
            return false;
        }
    }
    const nbEdit edit(subject.core, Transform3D::TranslationFieldMask);
    subject.core->setTranslation(translation);
    return true;
}

/// The quaternion for angles; that of the step's start where the angles are its own.
osg::Quaternion quaternionFor(const Subject& subject, const Vec3f& anglesDeg)
{
    const std::string& order = subject.core->getEulerRotationOrder();
    if (subject.entry != nullptr) {
        const osg::Quaternion& start = subject.entry->start.rotationQuaternion;
        if (isSame(anglesDeg, nbEulerRotation::fromQuaternion(start, order))) {
            return start;
        }
    }
    return nbEulerRotation::toQuaternion(anglesDeg, order);
}

/// Sets R by angles, in the core's rotation mode.
void setTurn(const Subject& subject, const Vec3f& anglesDeg)
{
    if (subject.core->getRotationMode() == Transform3D::QuaternionMode) {
        subject.core->setRotationQuaternion(quaternionFor(subject, anglesDeg));
    } else {
        subject.core->setEulerRotation(anglesDeg);
    }
}

/// R of a state, rounded to float as in the core's matrix.
nbQuaterniond turnOf(const nbTransformState& state)
{
    return nbRotationMath::toDouble(
        state.rotationMode == Transform3D::QuaternionMode
            ? state.rotationQuaternion
            : nbEulerRotation::toQuaternion(state.eulerRotation, state.eulerRotationOrder));
}

/// The orientation with which the whole rotation of a state stays under another turn.
osg::Quaternion compensatingOrientation(const nbTransformState& state, const osg::Quaternion& turn)
{
    nbQuaterniond back = nbRotationMath::toDouble(turn);
    back.invert();
    nbQuaterniond orientation = nbRotationMath::product(
        back,
        nbRotationMath::product(turnOf(state),
                                nbRotationMath::toDouble(state.rotationOrientation)));
    orientation.normalize();
    return nbRotationMath::toFloat(orientation);
}

bool turnPivot(const Subject& subject, const Vec3f& anglesDeg)
{
    const Base base = baseOf(subject, OrientationEdit);
    {
        const nbEdit edit(subject.core,
                          Transform3D::RotationFieldMask |
                              Transform3D::RotationOrientationFieldMask);
        setTurn(subject, anglesDeg);
        const nbTransformState present = nbTransformState::of(*subject.core);
        const bool isBack = isSame(present.eulerRotation, base.state.eulerRotation) &&
            std::memcmp(present.rotationQuaternion.getValues(),
                        base.state.rotationQuaternion.getValues(), sizeof(osg::Quaternion)) == 0;
        subject.core->setRotationOrientation(
            isBack ? base.state.rotationOrientation
                   : compensatingOrientation(base.state, subject.core->getRotationAsQuaternion()));
    }
    noteWritten(subject, OrientationEdit, base);
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
    return toFloat(frames.of(node, osg::NullFC).toOuter(place));
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
                       setTurn(subject, value);
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
    return movePivots(kRotatePivot, kMoveRotatePivotTitle, count, worldSpace, places);
}

osg::UInt32 nbTransformModel::setScalePivot(osg::UInt32 count, bool worldSpace,
                                            ValueFunction places)
{
    return movePivots(kScalePivot, kMoveScalePivotTitle, count, worldSpace, places);
}

osg::UInt32 nbTransformModel::setRotationPivotOrientation(osg::UInt32 count,
                                                          ValueFunction anglesDeg)
{
    return editAll(kTurnPivotTitle, count, anglesDeg,
                   [](const Subject& subject, const Vec3f& value, Faults&) {
                       return turnPivot(subject, value);
                   });
}

// == Reading

Vec3f nbTransformModel::getTranslation(const osg::NodePtr& node, bool worldSpace)
{
    const Vec3f local = nbNodeUtils::getTransformNodeTranslation(node);
    return worldSpace ? inSpace(node, true, toDouble(local)) : local;
}

Vec3f nbTransformModel::getRotationPivot(const osg::NodePtr& node, bool worldSpace)
{
    return inSpace(node, worldSpace,
                   toDouble(nbNodeUtils::getTransformNodeTranslation(node)) +
                       toDouble(nbNodeUtils::getTransformNodeRotatePivot(node)));
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
