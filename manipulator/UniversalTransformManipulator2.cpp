// SPDX-License-Identifier: MIT
#include "manipulator/UniversalTransformManipulator2.h"

#include "manipulator/transform/TransformGizmo.h"

namespace nbec::manipulator {

Instances<UniversalTransformManipulator2> UniversalTransformManipulator2::instances;
transform::TransformSettings UniversalTransformManipulator2::settings;

UniversalTransformManipulator2::UniversalTransformManipulator2()
    : GizmoFace(std::make_unique<transform::TransformGizmo>(settings, instances.m_ManipulatorSize))
{
    instances.add(this);
}

UniversalTransformManipulator2::~UniversalTransformManipulator2()
{
    instances.remove(this);
}

transform::TransformGizmo& UniversalTransformManipulator2::course() const
{
    return static_cast<transform::TransformGizmo&>(*gizmo);
}

// == Events

void UniversalTransformManipulator2::activate(ManipulatorInteractionContext* ctx)
{
    NodeManipulator::activate(ctx);
    showActiveManipulator();
}

bool UniversalTransformManipulator2::stopManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                     const std::string& /*hint*/)
{
    const bool isHandled = gizmo->letGo();
    if (isHandled) {
        showActiveManipulator();
    }
    return isHandled;
}

bool UniversalTransformManipulator2::setManipulatorMode(const std::string& newMode)
{
    settings._temporary_snapping_active = newMode == "precisionTool";
    // Deliberate: "tool" answers false although it has ended temporary snapping.
    return newMode == "precisionTool" || newMode.empty();
}

bool UniversalTransformManipulator2::snappingActive() const
{
    return course().isSnapping();
}

void UniversalTransformManipulator2::enableSnapping(bool on)
{
    course().snappingEnabled = on;
}

void UniversalTransformManipulator2::setDescriptionEnabled(bool on)
{
    course().descriptionEnabled = on;
}

// == Nodes

void UniversalTransformManipulator2::setNode(const osg::NodePtr& node)
{
    setNode(node, {});
}

void UniversalTransformManipulator2::setNode(const osg::NodePtr& node,
                                             const std::vector<osg::NodePtr>& nodes)
{
    NodeManipulator::setNode(node);
    course().setNodes(node, nodes);
    if (isActive()) {
        showActiveManipulator();
    }
}

bool UniversalTransformManipulator2::centerPivot()
{
    return course().centerPivot();
}

void UniversalTransformManipulator2::updateManipulator()
{
    gizmo->placeIn(View());
}

// == Modes

void UniversalTransformManipulator2::activateRotatePivotManipulator()
{
    activateMode(ManipulatorMode::RotatePivot);
}

void UniversalTransformManipulator2::activateScalePivotManipulator()
{
    activateMode(ManipulatorMode::ScalePivot);
}

void UniversalTransformManipulator2::activateTranslateManipulator()
{
    activateMode(ManipulatorMode::Translate);
}

void UniversalTransformManipulator2::activateRotateManipulator()
{
    activateMode(ManipulatorMode::Rotate);
}

void UniversalTransformManipulator2::activateScaleManipulator()
{
    activateMode(ManipulatorMode::Scale);
}

void UniversalTransformManipulator2::activateUniversalManipulator()
{
    activateMode(ManipulatorMode::Universal);
}

void UniversalTransformManipulator2::activateClippingManipulator()
{
    activateMode(ManipulatorMode::Clipping);
}

void UniversalTransformManipulator2::activateAdditionalManipulator() { }

void UniversalTransformManipulator2::activateTranslateRotateManipulator()
{
    activateMode(ManipulatorMode::TranslateRotate);
}

void UniversalTransformManipulator2::activateTranslateRotateScaleManipulator()
{
    activateMode(ManipulatorMode::TranslateRotateScale);
}

void UniversalTransformManipulator2::activateTranslateRotateYZManipulator()
{
    activateMode(ManipulatorMode::TranslateRotateYZ);
}

void UniversalTransformManipulator2::activateMode(ManipulatorMode newMode)
{
    gizmo->activateMode(static_cast<int>(newMode));
}

UniversalTransformManipulator2::ManipulatorMode UniversalTransformManipulator2::getMode() const
{
    return static_cast<ManipulatorMode>(gizmo->getMode());
}

void UniversalTransformManipulator2::showActiveManipulator()
{
    gizmo->showActive();
}

void UniversalTransformManipulator2::hideManipulator()
{
    gizmo->hide();
}

// == All instances

void UniversalTransformManipulator2::createInstance()
{
    instances.share(new UniversalTransformManipulator2);
}

void UniversalTransformManipulator2::setManipulatorSize(float size)
{
    instances.setSize(size);
}

float UniversalTransformManipulator2::getManipulatorSize()
{
    return instances.m_ManipulatorSize;
}

bool UniversalTransformManipulator2::isLocalSpaceManipulator()
{
    return settings.m_LocalSpaceManipulator;
}

void UniversalTransformManipulator2::setLocalSpaceManipulator(bool local)
{
    settings.m_LocalSpaceManipulator = local;
    instances.updateShared();
}

void UniversalTransformManipulator2::updateAllManipulators()
{
    instances.updateAll();
}

}  // namespace nbec::manipulator
