// SPDX-License-Identifier: MIT
#include "manipulator/UniversalTransformManipulator2.h"

#include "manipulator/drag/DragGeometry.h"
#include "manipulator/transform/TransformGizmo.h"

#include <cmath>

namespace nbec::manipulator {

transform::TransformSettings UniversalTransformManipulator2::settings;

UniversalTransformManipulator2::UniversalTransformManipulator2()
    : Instanced(std::make_unique<transform::TransformGizmo>(settings, instances.m_ManipulatorSize))
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
    const ToldLast last(gizmo->listeners);
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

void UniversalTransformManipulator2::enableSnapping(bool on)
{
    course().snappingEnabled = on;
}

void UniversalTransformManipulator2::setSnapRule(SnapRule rule)
{
    course().snapRule = rule;
}

void UniversalTransformManipulator2::setSnapping(const SnapSettings& what)
{
    course().snapSettings = what;
}

void UniversalTransformManipulator2::setFurtherHandles(const FurtherHandles& wanted)
{
    course().setFurther(wanted);
}

void UniversalTransformManipulator2::setAxes(GizmoAxes which, const osg::Quaternion& given)
{
    if (!(given.length() > 0.0F && std::isfinite(given.length()))) {
        return;
    }
    course().stance.axes = which;
    course().stance.givenAxes = given;
    course().stance.givenAxes.normalize();
    updateManipulator();
}

osg::Quaternion UniversalTransformManipulator2::axesOfFace(const osg::Vec3f& normal)
{
    constexpr float kSteep = 0.999F;
    const osg::Vec3f z = unitVector(normal);
    const bool isSteep = std::abs(z.y()) > kSteep;
    const osg::Vec3f x =
        (isSteep ? osg::Vec3f(0, 0, z.y() > 0 ? -1.0F : 1.0F) : osg::Vec3f(0, 1, 0)).cross(z);
    osg::Matrix axes;
    axes.setValue(x, z.cross(x), z);
    return osg::Quaternion(orthonormalised(axes));
}

void UniversalTransformManipulator2::setPivot(GizmoPivot which, const osg::Pnt3f& given)
{
    if (!std::isfinite(given.x() + given.y() + given.z())) {
        return;
    }
    course().stance.pivot = which;
    course().stance.givenPivot = given;
    updateManipulator();
}

void UniversalTransformManipulator2::setDescriptionEnabled(bool on)
{
    course().descriptionEnabled = on;
}

// == Nodes

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

// == All instances

bool UniversalTransformManipulator2::isLocalSpaceManipulator()
{
    return settings.m_LocalSpaceManipulator;
}

void UniversalTransformManipulator2::setLocalSpaceManipulator(bool local)
{
    settings.m_LocalSpaceManipulator = local;
    instances.updateShared();
}

}  // namespace nbec::manipulator
