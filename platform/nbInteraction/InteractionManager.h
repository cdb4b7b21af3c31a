// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/InteractionContext.h>
#include <nbInteraction/InteractionEvent.h>

#include <QtCore/QChar>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// Of X11's headers.
#pragma push_macro("None")
#undef None

namespace nbec::interaction {

/// How the drag ends whose "stop" event is being delivered.
enum class DragEnd
{
    Released,  ///< the user let go, or no stop event is being delivered
    Interrupted,  ///< something came between (focus or grab lost, second button, window closed)
    Cancelled  ///< the user wants it taken back
};

/// Who takes the keys of a running drag; what is not set takes none.
struct DragKeys
{
    std::function<bool(QChar key)> typed;  ///< answers whether it took the key
    std::function<void(bool isFine)> fine;  ///< Shift was pressed or released
};

/// Brings the user's input to the contexts.
///
/// Order: raised contexts first, the latest raised before the others; then by preferred position,
/// highest first, and among equals the later added first. An event goes down this order through the
/// enabled contexts until one answers true; only "stopHover" and events of the tool "mode" reach
/// all of them.
///
/// Drags: "start" begins a drag. A context that takes it gets every "process" and "stop" until the
/// drag ends, wherever the pointer is. A drag that nobody took goes down the order each time. Once
/// a drag was ended from here (endDrag, cancelDrag, its context removed or disabled), further
/// "process" events up to and with the next "stop" are dropped, as they belong to a drag that is
/// over.
///
/// Undo: what a drag edits that a context takes becomes one step of nbUndoService. The group is
/// opened before "start" is delivered and closed after "stop"; a cancelled drag is taken back in
/// it. Drags of the tool "camera" have none. A group that is open already, or that a context opens
/// instead, belongs to who opened it.
///
/// Hover: when a context takes a hover that one after it took before, that one gets a "stopHover"
/// and the taker the hover once more.
///
/// Modes: selectMode() and events of the tool "mode" ("start" enters the mode that the hint names,
/// "stop" leaves it for "") set the same mode.
///
/// Contexts are not owned; either side may die first. Contexts may be added, removed and destroyed
/// from inside any call to a context, the manager may not be destroyed there. What a context throws
/// is logged and counts as the answer false. User-interface thread only.
class NB_PLATFORM_API InteractionManager
{
public:
    InteractionManager() = default;
    /// Ends the drag and removes all contexts.
    ~InteractionManager();
    InteractionManager(const InteractionManager&) = delete;
    InteractionManager& operator=(const InteractionManager&) = delete;

    /// Adds a context, taking it out of its former manager, and tells it the current mode.
    /// @return false for null and for a context that is already here
    bool addContext(InteractionContext* context);
    /// Removes a context; a drag that it took is stopped first. @return whether it was here
    bool removeContext(InteractionContext* context);

    /// Puts a context before all others. Unknown ones: nothing.
    void raise(InteractionContext* context);
    /// Puts a raised context back to its preferred position. Others: nothing.
    void lower(InteractionContext* context);
    /// Switches a context on or off; a drag that it took is stopped before it goes off.
    void setEnabled(InteractionContext* context, bool on);

    /// Tells all enabled contexts where the pointer is. @param positionPx  device pixels, y from
    /// the top; one that is no number is ignored
    void pointerMoved(const osg::Pnt2f& positionPx);
    /// Tells all enabled contexts that the camera moved. @param worldFromCamera  4x4, column
    /// vectors
    void cameraMoved(const osg::Matrix& worldFromCamera);
    /// Delivers an event as described above. @return whether a context handled it
    bool triggerEvent(const InteractionEvent& event);
    /// Switches the mode of all enabled contexts. @return whether one of them knows the mode
    bool selectMode(const std::string& mode);

    /// @return the mode last selected, "tool" at first
    const std::string& getMode() const { return mode; }

    /// @return whether a drag is running, taken by a context or not
    bool isDragging() const { return dragState == DragState::Running; }

    /// @return the context that took the running drag; null if there is none
    InteractionContext* getDragContext() const;

    /// @return how the drag ends whose "stop" event a context is just handling
    DragEnd getDragEnd() const { return dragEnd; }

    /// Ends a running drag early with a "stop" event; what it did stays.
    void endDrag() { breakDrag(DragEnd::Interrupted); }

    /// Ends a running drag early with a "stop" event and takes it back: its group of undo, and then
    /// by the cancel handler, if a context had taken the drag. Drags of the tool "camera" are taken
    /// back by their context alone, so that no edit of the scene is lost for them.
    void cancelDrag();

    /// Sets what takes back what undo does not know of a cancelled drag; null for nothing. A drag
    /// may have made no edit; then the handler must change nothing.
    void setCancelHandler(std::function<void()> handler) { cancelHandler = std::move(handler); }

    /// Sets who takes the keys of running drags.
    void setDragKeys(DragKeys keys) { dragKeys = std::move(keys); }

    /// Brings a key to who takes them while a context has taken a drag; a character as QKeyEvent
    /// has it, control characters for Return, Tab, Backspace and Escape. @return whether it was
    /// taken
    bool typeKey(QChar key)
    {
        return dragKeys.typed && getDragContext() != nullptr && dragKeys.typed(key);
    }

    /// Tells who takes keys whether Shift is held.
    void setFineMotion(bool on);

private:
    struct Entry
    {
        InteractionContext* context = nullptr;
        int position = 0;
        std::uint64_t serial = 0;  ///< unique, counts up with each addition
        std::uint64_t raiseNumber = 0;  ///< 0 while not raised
    };

    enum class DragState
    {
        None,
        Running,
        Over  ///< ended from here while the input still sends its rest
    };

    bool startDrag(const InteractionEvent& event);
    bool continueDrag(const InteractionEvent& event);
    /// Delivers the last event of a drag to whom it belongs; none runs afterwards.
    bool finishDrag(const InteractionEvent& event, DragEnd end);
    /// Ends a running drag with a stop event of its own.
    void breakDrag(DragEnd end);
    void openUndoGroup();
    void closeUndoGroup(DragEnd end);

    bool hover(const InteractionEvent& event);
    bool broadcast(const InteractionEvent& event);
    /// @return serial of the context that took the event, 0 for none
    std::uint64_t offer(const InteractionEvent& event);
    bool offerTo(std::uint64_t serial, const InteractionEvent& event);
    /// @return whether one of the calls answered true
    template <class Call>
    bool forEachEnabled(Call call);
    template <class Call>
    void notify(std::uint64_t serial, Call call);
    void tellMode(std::uint64_t serial);

    std::vector<Entry>::iterator findEntry(const InteractionContext* context);
    InteractionContext* contextOf(std::uint64_t serial) const;
    /// Contexts are visited by serial, so that one that goes meanwhile is left out.
    std::vector<std::uint64_t> serials() const;
    void sortEntries();

    std::vector<Entry> entries;  ///< in the order in which they are asked
    std::uint64_t lastSerial = 0;
    std::uint64_t lastRaiseNumber = 0;
    bool closing = false;  ///< the destructor is at work
    std::string mode = "tool";

    DragState dragState = DragState::None;
    std::uint64_t dragNumber = 0;  ///< counts drags, so that a nested one is told apart
    std::uint64_t dragOwner = 0;  ///< serial of the context that took the drag, 0 for none
    std::string dragTool;
    std::string dragHint;
    DragEnd dragEnd = DragEnd::Released;
    std::uint64_t undoGroup = 0;  ///< change count of the drag's own group, 0 for none
    std::uint64_t hoverOwner = 0;  ///< serial of the context that took the last hover, 0 for none
    std::function<void()> cancelHandler;
    DragKeys dragKeys;
};

}  // namespace nbec::interaction

#pragma pop_macro("None")
