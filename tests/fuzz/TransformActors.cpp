// SPDX-License-Identifier: MIT
// What moves nodes and marks cameras.
#include "tests/fuzz/Equipment.h"

namespace nbec::manipulator::test {

namespace {

using Transform = UniversalTransformManipulator2;

constexpr std::array<void (Transform::*)(), 13> kTransformCalls = {
    &Transform::activateUniversalManipulator,
    &Transform::activateTranslateManipulator,
    &Transform::activateScaleManipulator,
    &Transform::activateRotateManipulator,
    &Transform::activateRotatePivotManipulator,
    &Transform::activateScalePivotManipulator,
    &Transform::activateClippingManipulator,
    &Transform::activateTranslateRotateManipulator,
    &Transform::activateTranslateRotateYZManipulator,
    &Transform::activateTranslateRotateScaleManipulator,
    &Transform::activateAdditionalManipulator,
    &Transform::showActiveManipulator,
    &Transform::hideManipulator
};

/// The node of a gizmo, alone or among further ones.
template <class Gizmo>
void select(Gizmo& gizmo, const Stage& stage, Bytes& bytes)
{
    if (bytes.flag()) {
        return gizmo.setNode(stage.node(bytes));
    }
    std::vector<osg::NodePtr> more;
    for (unsigned left = bytes.next() % 4; left > 0; --left) {
        more.push_back(stage.node(bytes));
    }
    gizmo.setNode(stage.node(bytes), more);
}

}  // namespace

void configure(Transform& gizmo, Stage& stage, Bytes& bytes)
{
    switch (bytes.next() % 8) {
    case 0:
    case 1:
    case 2:
        return select(gizmo, stage, bytes);
    case 3:
        gizmo.enableSnapping(bytes.flag());
        gizmo.setDescriptionEnabled(bytes.flag());
        return Transform::setLocalSpaceManipulator(bytes.flag());
    case 4:
        if (bytes.flag()) {
            return gizmo.setFurtherHandles(
                { bytes.flag(), bytes.flag(), bytes.flag(), bytes.flag(), bytes.flag() });
        }
        gizmo.centerPivot();
        return;
    case 5:
        Transform::setManipulatorSize(bytes.once(4) ? bytes.number() : 32.0F);
        return Transform::updateAllManipulators();
    default:
        return callOneOf(gizmo, kTransformCalls, bytes);
    }
}

void configure(CameraManipulator& gizmo, Stage& stage, Bytes& bytes)
{
    switch (bytes.next() % 4) {
    case 0:
        return select(gizmo, stage, bytes);
    case 1:
        gizmo.setDescriptionEnabled(bytes.flag());
        return CameraManipulator::setLocalSpaceManipulator(bytes.flag());
    case 2:
        CameraManipulator::setManipulatorSize(bytes.once(4) ? bytes.number() : 32.0F);
        return CameraManipulator::updateAllManipulators();
    default:
        return gizmo.activatePivotManipulator();
    }
}

void equip(NodeManipulator& gizmo, Stage& stage)
{
    gizmo.setNode(stage.firstNode());
}

}  // namespace nbec::manipulator::test
