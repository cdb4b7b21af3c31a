// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGNode.h>

#include <string>

namespace nbec::manipulator {

class ManipulatorInteractionContext;

/// What the interaction context knows of a manipulator: a pure interface without data.
///
/// The order of the virtual operations is part of the design and never changes; subclasses append
/// theirs. The virtual destructor stands after all of them, so that it takes no operation's place.
///
/// What hosts may do in the middle of a drag:
/// - Who receives a message of a manipulator, or hears of what it edits, may throw where the kernel
///   delivers (it is logged and the drag goes on), and may destroy nodes, materials, settings,
///   scene plates, views and cameras, those that are edited included. Everything is looked up again
///   after each message.
/// - What is destroyed, then or between two events, is not missed: without what a manipulator edits
///   its operations answer false, without a view a step changes nothing. "stop" ends the drag in
///   any case, and a paused preview is resumed as soon as there is something to edit again, at the
///   latest with the manipulator's end.
/// - A group of undo that is left open is closed by the next one (see nbUndoService::beginGroup);
///   manipulators open and close scopes only within one call.
/// - Receivers may neither call the manipulator that is sending nor deactivate or destroy it or its
///   context: that waits until the event has been answered. Between events manager, contexts,
///   picker, manipulators and view may die in any order, in a drag, too; what is drawn of a
///   manipulator that is not deactivated before it dies stays below its visualisation root.
class NB_MANIPULATOR_API Manipulator
{
public:
    Manipulator() = default;
    Manipulator(const Manipulator&) = default;
    Manipulator& operator=(const Manipulator&) = default;
    Manipulator(Manipulator&&) = default;
    Manipulator& operator=(Manipulator&&) = default;

    /// Hangs the visualisation under the visualisation root. Idempotent. @param ctx  the calling
    /// context, may be null
    virtual void activate(ManipulatorInteractionContext* ctx) = 0;

    /// Takes the visualisation from its root. Idempotent. @param ctx  the calling context, may be
    /// null
    virtual void deactivate(ManipulatorInteractionContext* ctx) = 0;

    /// Tells whether the manipulator is between activate() and deactivate().
    virtual bool isActive() const = 0;

    /// The node that hangs under the visualisation root while active; null if there is none. Owned
    /// by the manipulator.
    virtual osg::NodePtr getVisualisation() = 0;

    /// The node that the context's picker tests against; null if nothing can be hit. Owned by the
    /// manipulator.
    virtual osg::NodePtr getCollider() = 0;

    /// Brings the handles up to date with what they edit. @param force  also when nothing seems to
    /// have changed
    virtual void update(bool force) = 0;

    /// Begins a drag. @param hint  the event's hint @return whether the event was handled
    virtual bool startManipulator(ManipulatorInteractionContext* ctx, const std::string& hint) = 0;

    /// One step of a drag. @return whether the event was handled
    virtual bool processManipulator(ManipulatorInteractionContext* ctx,
                                    const std::string& hint) = 0;

    /// Ends a drag. @return whether the event was handled
    virtual bool stopManipulator(ManipulatorInteractionContext* ctx, const std::string& hint) = 0;

    /// The pointer is over the scene without a button held. @return whether a handle is under it
    virtual bool hover(ManipulatorInteractionContext* ctx, const std::string& hint) = 0;

    /// Hovering has ended. @return whether the event was handled
    virtual bool reset(ManipulatorInteractionContext* ctx, const std::string& hint) = 0;

    /// What hover() asks of the concrete manipulator.
    virtual bool hoverManipulator(ManipulatorInteractionContext* ctx, const std::string& hint) = 0;

    /// What reset() asks of the concrete manipulator.
    virtual bool resetManipulator(ManipulatorInteractionContext* ctx, const std::string& hint) = 0;

    /// Tells the pointer's position. @param position  device pixels, y from the top
    virtual void setMousePosition(const osg::Pnt2f& position) = 0;

    /// The pointer position told last, device pixels, y from the top.
    virtual osg::Pnt2f getMousePosition() const = 0;

    /// Switches the interaction mode, such as "tool" or "precisionTool". @return whether the mode
    /// was taken
    virtual bool setManipulatorMode(const std::string& mode) = 0;

    /// Takes the manipulator out of the contexts that hold it.
    virtual ~Manipulator();
};

}  // namespace nbec::manipulator
