// SPDX-License-Identifier: MIT
#include "nbTransformState.h"

#include <nbOpenSGExt/nbSameBits.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <cstring>

namespace {

/// Bit for bit, except that zeros of both signs count as one.
template <std::size_t Count>
bool sameFloats(const osg::Real32* a, const osg::Real32* b)
{
    for (std::size_t i = 0; i < Count; ++i) {
        if (a[i] != b[i] && std::memcmp(a + i, b + i, sizeof(osg::Real32)) != 0) {
            return false;
        }
    }
    return true;
}

bool same(const osg::Vec3f& a, const osg::Vec3f& b)
{
    return nbSameBits(a, b) || sameFloats<3>(a.getValues(), b.getValues());
}

bool same(const osg::Quaternion& a, const osg::Quaternion& b)
{
    return nbSameBits(a, b) || sameFloats<4>(a.getValues(), b.getValues());
}

}  // namespace

nbTransformState nbTransformState::of(const osg::Transform3D& core)
{
    nbTransformState state;
    state.translation = core.getTranslation();
    state.rotatePivot = core.getRotatePivot();
    state.scalePivot = core.getScalePivot();
    state.eulerRotation = core.getEulerRotation();
    state.scale = core.getScale();
    state.rotationQuaternion = core.getRotationQuaternion();
    state.rotationOrientation = core.getRotationOrientation();
    state.rotationMode = core.getRotationMode();
    state.eulerRotationOrder = core.getEulerRotationOrder();
    state.shear = core.getShear();
    return state;
}

void nbTransformState::applyTo(const osg::Transform3DPtr& core) const
{
    const nbEdit edit(core, osg::Transform3D::PartsFieldMask);
    core->setTranslation(translation);
    core->setRotatePivot(rotatePivot);
    core->setScalePivot(scalePivot);
    core->setEulerRotation(eulerRotation);
    core->setScale(scale);
    core->setRotationQuaternion(rotationQuaternion);
    core->setRotationOrientation(rotationOrientation);
    core->setRotationMode(rotationMode);
    core->setEulerRotationOrder(eulerRotationOrder);
}

bool nbTransformState::isSame(const nbTransformState& other) const
{
    return same(translation, other.translation) && same(rotatePivot, other.rotatePivot) &&
        same(scalePivot, other.scalePivot) && same(eulerRotation, other.eulerRotation) &&
        same(scale, other.scale) && same(rotationQuaternion, other.rotationQuaternion) &&
        same(rotationOrientation, other.rotationOrientation) &&
        rotationMode == other.rotationMode && eulerRotationOrder == other.eulerRotationOrder;
}
