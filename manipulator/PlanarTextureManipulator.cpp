// SPDX-License-Identifier: MIT
#include "manipulator/PlanarTextureManipulator.h"

#include "manipulator/scene/TargetFrame.h"
#include "manipulator/texture/PlanarGizmo.h"

namespace nbec::manipulator {

using texture::PlanarGizmo;

PlanarTextureManipulator::PlanarTextureManipulator(bool withDepthPass)
    : Instanced(std::make_unique<PlanarGizmo>(withDepthPass, instances.m_ManipulatorSize))
{
    instances.add(this);
}

PlanarTextureManipulator::~PlanarTextureManipulator()
{
    instances.remove(this);
}

PlanarGizmo& PlanarTextureManipulator::course() const
{
    return static_cast<PlanarGizmo&>(*gizmo);
}

// == Object and projection

void PlanarTextureManipulator::setNode(const osg::NodePtr& node)
{
    NodeManipulator::setNode(node);
    course().setNode(node);
    if (isActive()) {
        showActiveManipulator();
    }
}

void PlanarTextureManipulator::prepareManipulator(const osg::NodePtr& node)
{
    course().prepareManipulator(node);
}

texture::PlanarSettings& PlanarTextureManipulator::settings() const
{
    return course().settings;
}

// == Handles shown

void PlanarTextureManipulator::setZScaleVisible(bool on)
{
    course().setZScaleVisible(on);
}

void PlanarTextureManipulator::showZScaleValue(bool on)
{
    course().showZScaleValue(on);
}

void PlanarTextureManipulator::showAllElements()
{
    course().showAll(true);
}

void PlanarTextureManipulator::hideAllElements()
{
    course().showAll(false);
}

void PlanarTextureManipulator::setDefaultMaterials()
{
    course().setDefaultMaterials();
}

void PlanarTextureManipulator::highlightMode()
{
    course().highlightMode();
}

void PlanarTextureManipulator::highlightControlElement()
{
    course().highlightControlElement();
}

// == Geometry

osg::Pnt3f PlanarTextureManipulator::calculateObjectCenter(const osg::NodePtr& node,
                                                           bool worldSpace)
{
    return node != osg::NullFC ? objectCenter(node, worldSpace) : osg::Pnt3f();
}

float PlanarTextureManipulator::computeRotationAngles(osg::Pnt3f from, osg::Pnt3f to,
                                                      ActiveMode mode)
{
    return mode == ActiveMode::Rotate ? texture::turnAboutZ(from.subZero(), to.subZero()) : 0.0F;
}

bool PlanarTextureManipulator::centerPivot()
{
    return course().centerPivot();
}

void PlanarTextureManipulator::updateManipulatorPlane()
{
    course().updateManipulatorPlane();
}

}  // namespace nbec::manipulator
