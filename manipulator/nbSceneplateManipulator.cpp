// SPDX-License-Identifier: MIT
#include "manipulator/nbSceneplateManipulator.h"

#include "manipulator/plates/PlateGizmo.h"

#include <nbKernel/nbOSGWidget.h>

#include <utility>

using nbec::manipulator::plates::PlateGizmo;

nbSceneplateManipulator::nbSceneplateManipulator()
    : Instanced(std::make_unique<PlateGizmo>(instances.m_ManipulatorSize))
{
    instances.add(this);
    nbOSGWidget::addMGLWResizeCB(&nbSceneplateManipulator::updateAllManipulators);
}

nbSceneplateManipulator::~nbSceneplateManipulator()
{
    nbOSGWidget::subMGLWResizeCB(&nbSceneplateManipulator::updateAllManipulators);
    instances.remove(this);
}

PlateGizmo& nbSceneplateManipulator::course() const
{
    return static_cast<PlateGizmo&>(*gizmo);
}

// == Events, in their slot order

void nbSceneplateManipulator::activate(ManipulatorInteractionContext* ctx)
{
    course().setInUse(true);
    GizmoFace::activate(ctx);
}

void nbSceneplateManipulator::deactivate(ManipulatorInteractionContext* ctx)
{
    GizmoFace::deactivate(ctx);
    course().setInUse(false);
    gizmo->hide();
}

bool nbSceneplateManipulator::setManipulatorMode(const std::string& mode)
{
    course().precisionActive = mode == "precisionTool";
    // Deliberate: "tool" answers false although it has ended the precise mode.
    return course().precisionActive || mode.empty();
}

// == Plates and settings

void nbSceneplateManipulator::setNodes(const std::vector<osg::NodePtr>& nodes)
{
    course().setNodes(nodes);
}

std::vector<osg::NodePtr> nbSceneplateManipulator::getNodes() const
{
    return course().getNodes();
}

void nbSceneplateManipulator::enableSnapping(bool on)
{
    course().snappingEnabled = on;
}

void nbSceneplateManipulator::setSnapToPlates(bool on)
{
    course().snapsToPlates = on;
}

void nbSceneplateManipulator::setSideHandles(Resize resize)
{
    course().setResize(std::move(resize));
}

void nbSceneplateManipulator::setDescriptionEnabled(bool on)
{
    course().descriptionEnabled = on;
}

// == All instances

void nbSceneplateManipulator::setManipulatorSize(float size)
{
    if (size > 0.0F) {
        instances.setSize(size);
    }
}
