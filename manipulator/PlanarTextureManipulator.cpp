// SPDX-License-Identifier: MIT
#include "manipulator/PlanarTextureManipulator.h"

#include "manipulator/scene/TargetFrame.h"
#include "manipulator/texture/PlanarGizmo.h"

namespace nbec::manipulator {

using texture::PlanarGizmo;

Instances<PlanarTextureManipulator> PlanarTextureManipulator::instances;

PlanarTextureManipulator::PlanarTextureManipulator(bool withDepthPass)
    : GizmoFace(std::make_unique<PlanarGizmo>(withDepthPass, instances.m_ManipulatorSize))
{
    instances.add(this);
}

PlanarTextureManipulator::PlanarTextureManipulator(const PlanarTextureManipulator& other)
    : GizmoFace(other, std::make_unique<PlanarGizmo>(other.course()))
{ }

PlanarTextureManipulator& PlanarTextureManipulator::operator=(const PlanarTextureManipulator& other)
{
    if (this != &other) {
        NodeManipulator::operator=(other);
        gizmo = std::make_unique<PlanarGizmo>(other.course());
    }
    return *this;
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

void PlanarTextureManipulator::setMaterialComponent(osg::MaterialPtr material,
                                                    const std::string& componentType,
                                                    nbStateChunkBase* gui)
{
    course().component.set(material, componentType, gui);
    updateManipulator();
}

osg::MaterialPtr PlanarTextureManipulator::getMaterial() const
{
    return course().component.getMaterial();
}

bool PlanarTextureManipulator::isConnectedToMaterial(osg::MaterialPtr material) const
{
    return course().component.isOf(material);
}

bool PlanarTextureManipulator::isConnectedTo(osg::MaterialPtr material,
                                             const std::string& componentType) const
{
    return course().component.is(material, componentType);
}

std::string PlanarTextureManipulator::getComponentType() const
{
    return course().component.getName();
}

void PlanarTextureManipulator::setGUI(nbStateChunkBase* gui)
{
    course().component.setGUI(gui);
}

nbStateChunkBase* PlanarTextureManipulator::getGUI() const
{
    return course().component.getGUI();
}

void PlanarTextureManipulator::setMessageReceiver(const std::string& receiver)
{
    course().messageReceiver = receiver;
}

// == Settings

void PlanarTextureManipulator::setKeepAspectRatio(bool on)
{
    course().settings.keepAspectRatio = on;
}

bool PlanarTextureManipulator::getKeepAspectRatio() const
{
    return course().settings.keepAspectRatio;
}

void PlanarTextureManipulator::setAspectRatio(float ratio)
{
    course().settings.aspectRatio = ratio;
}

float PlanarTextureManipulator::getAspectRatio() const
{
    return course().settings.aspectRatio;
}

void PlanarTextureManipulator::setUseTextureScale(bool on)
{
    course().settings.useTextureScale = on;
}

osg::Vec3f PlanarTextureManipulator::getInitialTextureScale() const
{
    return course().initialTextureScale;
}

osg::Vec2f PlanarTextureManipulator::getProjectionSize() const
{
    return course().projectionSize;
}

void PlanarTextureManipulator::setUseObjectScale(bool on)
{
    course().settings.useObjectScale = on;
}

void PlanarTextureManipulator::setUseObjectTranslation(bool on)
{
    course().settings.useObjectTranslation = on;
}

void PlanarTextureManipulator::setApplyProjectionRotationToTranslation(bool on)
{
    course().settings.applyRotationToTranslation = on;
}

void PlanarTextureManipulator::setZScaleVisible(bool on)
{
    course().setZScaleVisible(on);
}

void PlanarTextureManipulator::showZScaleValue(bool on)
{
    course().showZScaleValue(on);
}

// == Handles shown

void PlanarTextureManipulator::showAllElements()
{
    course().showAllElements();
}

void PlanarTextureManipulator::hideAllElements()
{
    course().hideAllElements();
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

// == All instances

void PlanarTextureManipulator::createInstance(bool destroy)
{
    instances.share(destroy ? nullptr : new PlanarTextureManipulator(false));
}

}  // namespace nbec::manipulator
