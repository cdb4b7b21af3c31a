// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/PreferredPosition.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVector.h>

#include <string>

namespace nbec::interaction {

class InteractionEvent;
class InteractionManager;

/// One party that the user's input may reach through an InteractionManager.
///
/// Deliberate: the order of the virtual operations is fixed (slots 0 to 14 as numbered), and the
/// destructor stands after them, because hosts and manipulators built apart share this table.
/// All calls come on the user-interface thread. A context may add, remove or destroy contexts from
/// inside any of these calls, itself included.
class NB_PLATFORM_API InteractionContext
{
public:
    /// Slot 0. @return the manager that the context was added to; null outside of one; not owned
    virtual InteractionManager* getInteractionManager() const = 0;
    /// Slot 1. The context was switched on.
    virtual void enabled(InteractionManager* manager) = 0;
    /// Slot 2. The context was switched off; it stays added and gets no events.
    virtual void disabled(InteractionManager* manager) = 0;
    /// Slot 3. The context now belongs to the manager.
    virtual void contextAdded(InteractionManager* manager) = 0;
    /// Slot 4. The context no longer belongs to the manager. A drag of it has been stopped before.
    virtual void contextRemoved(InteractionManager* manager) = 0;
    /// Slot 5. The context is now asked before all that are not raised.
    virtual void contextRaised(InteractionManager* manager) = 0;
    /// Slot 6. The context is back at its preferred position.
    virtual void contextLowered(InteractionManager* manager) = 0;
    /// Slot 7. The pointer moved; comes before the event of the same input.
    /// @param positionPx  device pixels of the view, y from the top; may lie outside during a drag
    virtual void pointerMoved(const osg::Pnt2f& positionPx) = 0;
    /// Slot 8. The view's camera moved. @param worldFromCamera  4x4, column vectors
    virtual void cameraMoved(const osg::TransformationMatrix<float>& worldFromCamera) = 0;
    /// Slot 9. An event happened. @return whether it was handled, so that nobody else is asked
    virtual bool triggerEvent(InteractionManager* manager, const InteractionEvent& event) = 0;
    /// Slot 10. @return whether the context stands before those that are not raised
    virtual bool isRaised() const = 0;
    /// Slot 11. @return whether the context is added to a manager, enabled or not
    virtual bool isActive() const = 0;
    /// Slot 12. @return whether the context wants events
    virtual bool isEnabled() const = 0;
    /// Slot 13. @return the position among the contexts, read when the context is added
    virtual PreferredPosition getPreferredPosition() = 0;
    /// Slot 14. The interaction mode changed ("tool", "precisionTool", ...).
    /// @return whether the context knows the mode
    virtual bool selectMode(const std::string& mode) = 0;

    virtual ~InteractionContext() = default;

protected:
    InteractionContext() = default;
    InteractionContext(const InteractionContext&) = default;
    InteractionContext& operator=(const InteractionContext&) = default;
};

}  // namespace nbec::interaction
