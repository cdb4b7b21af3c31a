// SPDX-License-Identifier: MIT
#include "manipulator/AbstractManipulator.h"

#include "manipulator/course/DragControl.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <utility>

namespace nbec::manipulator {

namespace {

/// Hangs a visualisation below a root or takes it off, if both exist and the root is no part of it.
void hang(bool on, const osg::NodePtr& root, const osg::NodePtr& visualisation,
          osg::BitVector mask = osg::FieldBits::AllFields)
{
    if (root == osg::NullFC || nbNodeUtils::hasParent(root, visualisation) ||
        visualisation == osg::NullFC) {
        return;
    }
    const nbEdit edit(root, mask);
    if (on) {
        root->addChild(visualisation);
    } else {
        root->subChild(visualisation);
    }
}

}  // namespace

void AbstractManipulator::activate(ManipulatorInteractionContext* /*ctx*/)
{
    if (active) {
        return;
    }
    active = true;
    hang(true, getVisualisationRoot(), getVisualisation(), osg::Node::ChildrenFieldMask);
}

void AbstractManipulator::deactivate(ManipulatorInteractionContext* /*ctx*/)
{
    if (!active) {
        return;
    }
    active = false;
    hang(false, getVisualisationRoot(), getVisualisation());
    reenablePreselection();
}

bool AbstractManipulator::hover(ManipulatorInteractionContext* ctx, const std::string& hint)
{
    const bool handled = hoverManipulator(ctx, hint);
    handled ? disablePreselection() : reenablePreselection();
    return handled;
}

bool AbstractManipulator::reset(ManipulatorInteractionContext* ctx, const std::string& hint)
{
    const bool handled = resetManipulator(ctx, hint);
    reenablePreselection();
    return handled;
}

void AbstractManipulator::setVisualisationRoot(const osg::NodePtr& root)
{
    const osg::NodePtr previous = getVisualisationRoot();
    if (root == previous) {
        return;
    }
    if (isActive()) {
        // The visualisation is held by the concrete manipulator, so taking it from the old root
        // does not destroy it.
        hang(false, previous, getVisualisation());
    }
    visualisationRoot = root;
    if (isActive()) {
        hang(true, root, getVisualisation());
    }
}

void AbstractManipulator::disablePreselection()
{
    if (nbScenegraph::isPreselectionEnabled()) {
        nbScenegraph::setPreselectionEnabled(false);
        preselectionSuppressed = true;
    }
}

void AbstractManipulator::reenablePreselection()
{
    if (!nbScenegraph::isPreselectionEnabled() && preselectionSuppressed) {
        nbScenegraph::setPreselectionEnabled(true);
        preselectionSuppressed = false;
    }
}

// == Beyond dragging

bool AbstractManipulator::cancelDrag()
{
    if (control.part == nullptr || !control.part->takeBack()) {
        return false;
    }
    stopManipulator(nullptr, std::string());
    return true;
}

bool AbstractManipulator::typeKey(QChar key)
{
    if (control.part == nullptr) {
        return false;
    }
    switch (control.part->typeKey(key)) {
    case TypedKey::Commit:
        stopManipulator(nullptr, std::string());
        return true;
    case TypedKey::Cancel:
        return cancelDrag();
    case TypedKey::Taken:
        control.part->listeners.deliver();
        return true;
    default:
        return false;
    }
}

bool AbstractManipulator::isTyping() const
{
    return control.part != nullptr && control.part->isTyping();
}

QString AbstractManipulator::getReadout() const
{
    return control.part != nullptr ? control.part->getReadout() : QString();
}

void AbstractManipulator::setReadoutShown(bool on, float pixelRatio)
{
    if (control.part != nullptr) {
        control.part->setReadoutShown(on, pixelRatio);
    }
}

void AbstractManipulator::setFineMotion(bool on)
{
    if (control.part != nullptr) {
        control.part->setFineMotion(on);
    }
}

int AbstractManipulator::addDragListener(DragListener listener)
{
    return control.part != nullptr ? control.part->listeners.add(std::move(listener)) : 0;
}

void AbstractManipulator::removeDragListener(int number)
{
    if (control.part != nullptr) {
        control.part->listeners.remove(number);
    }
}

bool AbstractManipulator::setHandleVisible(const std::string& name, bool on)
{
    return control.part != nullptr && control.part->setHandleVisible(name, on);
}

bool AbstractManipulator::setDragLimits(int handle, const DragLimits& limits)
{
    if (control.part != nullptr) {
        control.part->setLimits(handle, limits);
    }
    return control.part != nullptr;
}

bool AbstractManipulator::clearDragLimits(int handle)
{
    if (control.part != nullptr) {
        control.part->clearLimits(handle);
    }
    return control.part != nullptr;
}

void AbstractManipulator::setDragControl(DragControl& part)
{
    control.part = &part;
    part.setFace(this);
}

}  // namespace nbec::manipulator
