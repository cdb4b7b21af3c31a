// SPDX-License-Identifier: MIT
#include <nbOpenSGUtils/detail/TransformMath.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbEditRecorder.h>
#include <nbOpenSGUtils/nbTransformState.h>

#include "nbNodeUtils.h"

using nbTransformMath::Vec3d;

namespace {

using Compensation = Vec3d (*)(const nbTransformState&, const nbTransformMath::Matrix3d&,
                               const Vec3d&);

osg::Transform3DPtr transformOf(const osg::NodePtr& node)
{
    return node == osg::NullFC ? osg::Transform3DPtr()
                               : osg::Transform3DPtr::dcast(node->getCore());
}

/// The translation with which the object stays when a pivot goes from one value to another.
osg::Vec3f compensated(const osg::Transform3DPtr& core, const osg::Vec3f& from,
                       const osg::Vec3f& to, Compensation compensation)
{
    const nbTransformState state = nbTransformState::of(*core);
    const Vec3d delta = nbTransformMath::toDouble(to) - nbTransformMath::toDouble(from);
    return nbTransformMath::toFloat(
        nbTransformMath::toDouble(state.translation) +
        compensation(state, nbTransformMath::wholeRotation(*core), delta));
}

void announce(const osg::Transform3DPtr& core)
{
    if (nbEditRecorder* const recorder = nbEditRecorder::get(); recorder != nullptr) {
        recorder->transformChanges(core);
    }
}

}  // namespace

bool nbNodeUtils::setTransformNodeRotatePivot(const osg::NodePtr& node, float x, float y, float z,
                                              bool keepInPlace, int)
{
    const osg::Transform3DPtr core = transformOf(node);
    const osg::Vec3f pivot(x, y, z);
    if (core == osg::NullFC || !nbTransformMath::isFinite(pivot)) {
        return false;
    }
    const osg::Vec3f translation = keepInPlace
        ? compensated(core, core->getRotatePivot(), pivot, nbTransformMath::rotatePivotCompensation)
        : core->getTranslation();
    if (!nbTransformMath::isFinite(translation)) {
        return false;
    }
    announce(core);
    const nbEdit edit(
        core, osg::Transform3D::TranslationFieldMask | osg::Transform3D::RotatePivotFieldMask);
    core->setTranslation(translation);
    core->setRotatePivot(pivot);
    return true;
}

bool nbNodeUtils::setTransformNodeScalePivot(const osg::NodePtr& node, float x, float y, float z,
                                             bool keepInPlace, int)
{
    const osg::Transform3DPtr core = transformOf(node);
    const osg::Vec3f pivot(x, y, z);
    if (core == osg::NullFC || !nbTransformMath::isFinite(pivot)) {
        return false;
    }
    const osg::Vec3f translation = keepInPlace
        ? compensated(core, core->getScalePivot(), pivot, nbTransformMath::scalePivotCompensation)
        : core->getTranslation();
    if (!nbTransformMath::isFinite(translation)) {
        return false;
    }
    announce(core);
    const nbEdit edit(
        core, osg::Transform3D::TranslationFieldMask | osg::Transform3D::ScalePivotFieldMask);
    core->setTranslation(translation);
    core->setScalePivot(pivot);
    return true;
}
