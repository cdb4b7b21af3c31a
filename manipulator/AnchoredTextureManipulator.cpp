// SPDX-License-Identifier: MIT
#include "manipulator/AnchoredTextureManipulator.h"

#include "manipulator/detail/AnchoredGizmo.h"

#include <utility>

namespace nbec::manipulator {

AnchoredTextureManipulator::AnchoredTextureManipulator(
    std::unique_ptr<detail::AnchoredGizmo> newGizmo)
    : gizmo(std::move(newGizmo))
{ }

AnchoredTextureManipulator::AnchoredTextureManipulator(const AnchoredTextureManipulator& other)
    : AbstractManipulator(other)
    , gizmo(other.gizmo->clone())
{ }

AnchoredTextureManipulator&
AnchoredTextureManipulator::operator=(const AnchoredTextureManipulator& other)
{
    if (this != &other) {
        AbstractManipulator::operator=(other);
        gizmo = other.gizmo->clone();
    }
    return *this;
}

AnchoredTextureManipulator::~AnchoredTextureManipulator() = default;

// == Events, in their slot order

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

void AnchoredTextureManipulator::deactivate(ManipulatorInteractionContext* ctx)
{
    // Deliberate: a drag goes on; hosts stop it before.
    AbstractManipulator::deactivate(ctx);
}

osg::NodePtr AnchoredTextureManipulator::getVisualisation()
{
    return gizmo->root.get();
}

osg::NodePtr AnchoredTextureManipulator::getCollider()
{
    return gizmo->root.get();
}

void AnchoredTextureManipulator::update(bool force)
{
    if (isActive()) {
        gizmo->update(force);
    }
}

bool AnchoredTextureManipulator::startManipulator(ManipulatorInteractionContext* ctx,
                                                  const std::string& /*tool*/)
{
    return gizmo->start(ctx);
}

bool AnchoredTextureManipulator::processManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                    const std::string& /*tool*/)
{
    return gizmo->process();
}

bool AnchoredTextureManipulator::stopManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                 const std::string& /*tool*/)
{
    return gizmo->stop();
}

bool AnchoredTextureManipulator::hoverManipulator(ManipulatorInteractionContext* ctx,
                                                  const std::string& /*tool*/)
{
    return gizmo->hover(ctx);
}

bool AnchoredTextureManipulator::resetManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                  const std::string& /*tool*/)
{
    return gizmo->reset();
}

// == What is edited

void AnchoredTextureManipulator::setMessageReceiver(const std::string& receiver)
{
    gizmo->messageReceiver = receiver;
}

void AnchoredTextureManipulator::setMaterialComponent(osg::MaterialPtr material,
                                                      const std::string& component,
                                                      nbStateChunkBase* gui)
{
    gizmo->setComponent(material, component, gui);
}

bool AnchoredTextureManipulator::isConnectedToMaterial(osg::MaterialPtr material) const
{
    return gizmo->component.isOf(material);
}

bool AnchoredTextureManipulator::isConnectedTo(osg::MaterialPtr material,
                                               const std::string& component) const
{
    return gizmo->component.is(material, component);
}

std::string AnchoredTextureManipulator::getComponentType() const
{
    return gizmo->component.getName();
}

nbStateChunkBase* AnchoredTextureManipulator::getGUI() const
{
    return gizmo->component.getGUI();
}

void AnchoredTextureManipulator::setGUI(nbStateChunkBase* gui)
{
    gizmo->component.setGUI(gui);
}

osg::MaterialPtr AnchoredTextureManipulator::getMaterial() const
{
    return gizmo->component.getMaterial();
}

// == Where the handles are

void AnchoredTextureManipulator::setAnchor(const osg::NodePtr& node, const osg::Pnt3f& position)
{
    gizmo->setAnchor(node, position);
}

osg::Pnt3f AnchoredTextureManipulator::getAnchorPosition() const
{
    return gizmo->anchor.getWorldPosition();
}

osg::NodePtr AnchoredTextureManipulator::getAnchorNode() const
{
    return gizmo->anchor.getNode();
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
    gizmo->place();
}

}  // namespace nbec::manipulator
