// SPDX-License-Identifier: MIT
#include <nbInteraction/AbstractInteractionContext.h>
#include <nbInteraction/InteractionManager.h>

namespace nbec::interaction {

AbstractInteractionContext::AbstractInteractionContext(const AbstractInteractionContext& other)
    : InteractionContext(other)
{ }

AbstractInteractionContext&
AbstractInteractionContext::operator=(const AbstractInteractionContext& other)
{
    if (this != &other) {
        InteractionContext::operator=(other);
    }
    return *this;
}

AbstractInteractionContext::~AbstractInteractionContext()
{
    leaveManager();
}

void AbstractInteractionContext::leaveManager()
{
    if (interactionManager) {
        interactionManager->removeContext(this);
    }
}

InteractionManager* AbstractInteractionContext::getInteractionManager() const
{
    return interactionManager;
}

void AbstractInteractionContext::enabled(InteractionManager*)
{
    contextIsEnabled = true;
}

void AbstractInteractionContext::disabled(InteractionManager*)
{
    // Deliberate: the context stays added, so isActive() goes on answering true.
    contextIsEnabled = false;
}

void AbstractInteractionContext::contextAdded(InteractionManager* manager)
{
    interactionManager = manager;
    contextIsAdded = true;
}

void AbstractInteractionContext::contextRemoved(InteractionManager*)
{
    interactionManager = nullptr;
    contextIsAdded = false;
    contextIsRaised = false;
}

void AbstractInteractionContext::contextRaised(InteractionManager*)
{
    contextIsRaised = true;
}

void AbstractInteractionContext::contextLowered(InteractionManager*)
{
    contextIsRaised = false;
}

void AbstractInteractionContext::pointerMoved(const osg::Pnt2f&) { }

void AbstractInteractionContext::cameraMoved(const osg::TransformationMatrix<float>&) { }

bool AbstractInteractionContext::triggerEvent(InteractionManager*, const InteractionEvent&)
{
    return false;
}

bool AbstractInteractionContext::isRaised() const
{
    return contextIsRaised;
}

bool AbstractInteractionContext::isActive() const
{
    return contextIsAdded;
}

bool AbstractInteractionContext::isEnabled() const
{
    return contextIsEnabled;
}

PreferredPosition AbstractInteractionContext::getPreferredPosition()
{
    return Background;
}

bool AbstractInteractionContext::selectMode(const std::string&)
{
    return false;
}

}  // namespace nbec::interaction
