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

}  // namespace nbec::interaction
