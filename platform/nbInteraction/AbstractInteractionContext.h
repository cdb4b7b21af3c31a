// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/InteractionContext.h>

namespace nbec::interaction {

/// Context that keeps its own state: its manager, whether it is added, enabled and raised. It
/// handles no event and has the background position.
///
/// Membership is never copied: a copy is enabled and belongs to no manager, an assigned context
/// stays where it was. The destructor leaves the manager.
class NB_PLATFORM_API AbstractInteractionContext : public InteractionContext
{
public:
    AbstractInteractionContext() = default;
    AbstractInteractionContext(const AbstractInteractionContext& other);
    AbstractInteractionContext& operator=(const AbstractInteractionContext& other);

    InteractionManager* getInteractionManager() const override { return interactionManager; }

    void enabled(InteractionManager* /*manager*/) override { contextIsEnabled = true; }

    void disabled(InteractionManager* manager) override;
    void contextAdded(InteractionManager* manager) override;
    void contextRemoved(InteractionManager* manager) override;

    void contextRaised(InteractionManager* /*manager*/) override { contextIsRaised = true; }

    void contextLowered(InteractionManager* /*manager*/) override { contextIsRaised = false; }

    void pointerMoved(const osg::Pnt2f& /*positionPx*/) override { }

    void cameraMoved(const osg::TransformationMatrix<float>& /*worldFromCamera*/) override { }

    bool triggerEvent(InteractionManager* /*manager*/, const InteractionEvent& /*event*/) override
    {
        return false;
    }

    bool isRaised() const override { return contextIsRaised; }

    bool isActive() const override { return contextIsAdded; }

    bool isEnabled() const override { return contextIsEnabled; }

    PreferredPosition getPreferredPosition() override { return Background; }

    bool selectMode(const std::string& /*mode*/) override { return false; }

    ~AbstractInteractionContext() override;

protected:
    /// Takes the context out of its manager, if it is in one: a running drag is stopped first, then
    /// contextRemoved comes. Derived classes that react to either call it in their destructor,
    /// while their part of the object still stands.
    void leaveManager();

private:
    InteractionManager* interactionManager = nullptr;
    bool contextIsAdded = false;
    bool contextIsEnabled = true;
    bool contextIsRaised = false;
};

}  // namespace nbec::interaction
