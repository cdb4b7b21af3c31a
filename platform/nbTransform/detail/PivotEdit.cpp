// SPDX-License-Identifier: MIT
#include "PivotEdit.h"

#include <nbOpenSGExt/nbEulerRotation.h>
#include <nbOpenSGExt/nbSameBits.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <string>

using nbTransformMath::isFinite;
using osg::Transform3D;
using osg::Vec3d;
using osg::Vec3f;

namespace nbtransform {

namespace {

/// Kinds of edits whose steps start from the state at the beginning of the undo step.
enum EditKind : int
{
    RotatePivotEdit = 1,
    ScalePivotEdit = 2,
    OrientationEdit = 3
};

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
    const nbTransformState present = nbTransformState::of(*subject.core);
    const bool isStart = entry != nullptr &&
        (entry->start.isSame(present) ||
         (entry->writtenKind == kind && entry->written.isSame(present)));
    return { isStart ? entry->start : present, isStart };
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
    if (nbSameValues(place, Vec3f(frame.toOuter(start)))) {
        return result;
    }
    const nbTransformMath::MovedPivots moved =
        kind.move(base, rotation, frame.toInner(Vec3d(place)) - start);
    result.translation = Vec3f(moved.translation);
    result.rotatePivot = Vec3f(moved.rotatePivot);
    result.scalePivot = Vec3f(moved.scalePivot);
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

/// The quaternion for angles; that of the step's start where the angles are its own.
osg::Quaternion quaternionFor(const Subject& subject, const Vec3f& anglesDeg)
{
    const std::string& order = subject.core->getEulerRotationOrder();
    if (subject.entry != nullptr) {
        const osg::Quaternion& start = subject.entry->start.rotationQuaternion;
        if (nbSameValues(anglesDeg, nbEulerRotation::fromQuaternion(start, order))) {
            return start;
        }
    }
    return nbEulerRotation::toQuaternion(anglesDeg, order);
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

}  // namespace

bool moveRotatePivot(const Subject& subject, const nbTransformMath::Frame& frame,
                     const Vec3f& place, Faults& faults)
{
    return movePivot(kRotatePivot, subject, frame, place, faults);
}

bool moveScalePivot(const Subject& subject, const nbTransformMath::Frame& frame, const Vec3f& place,
                    Faults& faults)
{
    return movePivot(kScalePivot, subject, frame, place, faults);
}

void setTurn(const Subject& subject, const Vec3f& anglesDeg)
{
    if (subject.core->getRotationMode() == Transform3D::QuaternionMode) {
        subject.core->setRotationQuaternion(quaternionFor(subject, anglesDeg));
    } else {
        subject.core->setEulerRotation(anglesDeg);
    }
}

void turnPivot(const Subject& subject, const Vec3f& anglesDeg)
{
    const Base base = baseOf(subject, OrientationEdit);
    {
        const nbEdit edit(subject.core,
                          Transform3D::RotationFieldMask |
                              Transform3D::RotationOrientationFieldMask);
        setTurn(subject, anglesDeg);
        const nbTransformState present = nbTransformState::of(*subject.core);
        const bool isBack = nbSameValues(present.eulerRotation, base.state.eulerRotation) &&
            nbSameBits(present.rotationQuaternion, base.state.rotationQuaternion);
        subject.core->setRotationOrientation(
            isBack ? base.state.rotationOrientation
                   : compensatingOrientation(base.state, subject.core->getRotationAsQuaternion()));
    }
    noteWritten(subject, OrientationEdit, base);
}

}  // namespace nbtransform
