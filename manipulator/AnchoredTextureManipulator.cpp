// SPDX-License-Identifier: MIT
#include "manipulator/AnchoredTextureManipulator.h"

#include "manipulator/texture/AnchoredGizmo.h"

#include <utility>

namespace nbec::manipulator {

AnchoredTextureManipulator::AnchoredTextureManipulator(
    std::unique_ptr<texture::AnchoredGizmo> newGizmo)
    : GizmoFace(std::move(newGizmo))
{ }

AnchoredTextureManipulator::AnchoredTextureManipulator(const AnchoredTextureManipulator& other)
    : GizmoFace(other, other.course().clone())
{ }

AnchoredTextureManipulator&
AnchoredTextureManipulator::operator=(const AnchoredTextureManipulator& other)
{
    if (this != &other) {
        AbstractManipulator::operator=(other);
        gizmo = other.course().clone();
    }
    return *this;
}

AnchoredTextureManipulator::~AnchoredTextureManipulator() = default;

texture::AnchoredGizmo& AnchoredTextureManipulator::course() const
{
    return static_cast<texture::AnchoredGizmo&>(*gizmo);
}

void AnchoredTextureManipulator::activate(ManipulatorInteractionContext* ctx)
{
    AbstractManipulator::activate(ctx);
    if (getMaterial() != osg::NullFC) {
        showActiveManipulator();
        updateManipulator();
    } else {
        hideManipulator();
    }
}

// == What is edited

void AnchoredTextureManipulator::setMessageReceiver(const std::string& receiver)
{
    course().messageReceiver = receiver;
}

void AnchoredTextureManipulator::setMaterialComponent(osg::MaterialPtr material,
                                                      const std::string& component,
                                                      nbStateChunkBase* gui)
{
    course().setComponent(material, component, gui);
}

bool AnchoredTextureManipulator::isConnectedToMaterial(osg::MaterialPtr material) const
{
    return course().component.isOf(material);
}

bool AnchoredTextureManipulator::isConnectedTo(osg::MaterialPtr material,
                                               const std::string& component) const
{
    return course().component.is(material, component);
}

std::string AnchoredTextureManipulator::getComponentType() const
{
    return course().component.getName();
}

nbStateChunkBase* AnchoredTextureManipulator::getGUI() const
{
    return course().component.getGUI();
}

void AnchoredTextureManipulator::setGUI(nbStateChunkBase* gui)
{
    course().component.setGUI(gui);
}

osg::MaterialPtr AnchoredTextureManipulator::getMaterial() const
{
    return course().component.getMaterial();
}

// == Where the handles are

void AnchoredTextureManipulator::setAnchor(const osg::NodePtr& node, const osg::Pnt3f& position)
{
    course().setAnchor(node, position);
}

osg::Pnt3f AnchoredTextureManipulator::getAnchorPosition() const
{
    return course().anchor.getWorldPosition();
}

osg::NodePtr AnchoredTextureManipulator::getAnchorNode() const
{
    return course().anchor.getNode();
}

// == Handles shown

void AnchoredTextureManipulator::showActiveManipulator()
{
    gizmo->showActive();
}

void AnchoredTextureManipulator::hideManipulator()
{
    gizmo->hide();
}

void AnchoredTextureManipulator::updateManipulator()
{
    gizmo->placeIn(View());
}

}  // namespace nbec::manipulator
