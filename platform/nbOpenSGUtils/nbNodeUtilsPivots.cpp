// SPDX-License-Identifier: MIT
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbEditRecorder.h>
#include <nbOpenSGUtils/nbTransformMath.h>
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
    const Vec3d delta = Vec3d(to) - Vec3d(from);
    return osg::Vec3f(Vec3d(state.translation) +
                      compensation(state, nbTransformMath::wholeRotation(*core), delta));
}

/// What tells one pivot of a Transform3D from the other.
struct PivotField
{
    const osg::Vec3f& (osg::Transform3D::*get)() const;
    void (osg::Transform3D::*set)(const osg::Vec3f&);
    osg::BitVector mask;
    Compensation compensation;
};

bool setPivot(const osg::NodePtr& node, const osg::Vec3f& pivot, bool keepInPlace,
              const PivotField& field)
{
    const osg::Transform3DPtr core = transformOf(node);
    if (core == osg::NullFC || !nbTransformMath::isFinite(pivot)) {
        return false;
    }
    const osg::Transform3D& transform = *core;
    const osg::Vec3f translation = keepInPlace
        ? compensated(core, (transform.*field.get)(), pivot, field.compensation)
        : transform.getTranslation();
    if (!nbTransformMath::isFinite(translation)) {
        return false;
    }
    if (nbEditRecorder* const recorder = nbEditRecorder::get(); recorder != nullptr) {
        recorder->transformChanges(core);
    }
    const nbEdit edit(core, osg::Transform3D::TranslationFieldMask | field.mask);
    core->setTranslation(translation);
    ((*core).*field.set)(pivot);
    return true;
}

}  // namespace

bool nbNodeUtils::setTransformNodeRotatePivot(const osg::NodePtr& node, float x, float y, float z,
                                              bool keepInPlace, int)
{
    return setPivot(node, osg::Vec3f(x, y, z), keepInPlace,
                    { &osg::Transform3D::getRotatePivot, &osg::Transform3D::setRotatePivot,
                      osg::Transform3D::RotatePivotFieldMask,
                      nbTransformMath::rotatePivotCompensation });
}

bool nbNodeUtils::setTransformNodeScalePivot(const osg::NodePtr& node, float x, float y, float z,
                                             bool keepInPlace, int)
{
    return setPivot(node, osg::Vec3f(x, y, z), keepInPlace,
                    { &osg::Transform3D::getScalePivot, &osg::Transform3D::setScalePivot,
                      osg::Transform3D::ScalePivotFieldMask,
                      nbTransformMath::scalePivotCompensation });
}
