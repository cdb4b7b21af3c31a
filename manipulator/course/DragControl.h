// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/DragListeners.h"
#include "manipulator/course/TypedValues.h"
#include "manipulator/course/View.h"
#include "manipulator/nbManipulatorExport.h"

#include <QtCore/QChar>
#include <QtCore/QString>

#include <map>
#include <string>

namespace nbec::manipulator {

/// What a key has done to a drag.
enum class TypedKey
{
    Ignored,  ///< no drag, or not a key for it
    Taken,
    Commit,  ///< the drag is to be stopped
    Cancel  ///< it is to be taken back and stopped
};

/// Range of a number of drag parameters.
struct DragLimits
{
    double least;
    double most;
};

/// What every manipulator offers of a drag beside its events, for the operations of
/// AbstractManipulator with the same names. A manipulator's class says how its start and parameters
/// are applied, and tells when a drag begins, changes and ends.
class NB_MANIPULATOR_API DragControl
{
public:
    virtual ~DragControl();
    DragControl& operator=(const DragControl&) = delete;

    /// Edits or sends what the drag started from, if it has changed anything. The end that follows
    /// is a cancelled one. @return whether there is a drag
    bool takeBack();

    TypedKey typeKey(QChar key);

    /// The pointer changes nothing meanwhile.
    bool isTyping() const { return typed.isActive(); }

    void setFineMotion(bool on) { isFine = on; }

    /// Each number of its parameters that the handle changes, see DragParameters::Kind.
    void setLimits(int handle, const DragLimits& limits) { limitsOf[handle] = limits; }

    void clearLimits(int handle) { limitsOf.erase(handle); }

    virtual bool setHandleVisible(const std::string& /*name*/, bool /*on*/) { return false; }

    /// See describeDrag(); empty without a drag.
    QString getReadout() const;

    void setReadoutShown(bool on, float ratio)
    {
        isReadoutShown = on;
        pixelRatio = ratio;
    }

    /// The manipulator that events name. @param face  outlives this
    void setFace(Manipulator* face) { event.manipulator = face; }

    DragListeners listeners;

protected:
    DragControl() = default;
    /// A copy has no drag, no listeners and no face.
    DragControl(const DragControl& other);

    // == Of a class

    /// Captures the start now if a handle is held and that has not happened. @return whether a drag
    /// is under way
    virtual bool ensureBegun() = 0;
    /// Applies parameters, with all that follows.
    virtual void applyNow(const DragParameters& parameters) = 0;
    /// Applies the captured start, to the bit.
    virtual void restoreNow() = 0;

    /// Goes on with the handle that does the same along or about another axis, from the start.
    /// @return whether there is one
    virtual bool changeAxis(std::size_t /*axis*/) { return false; }

    /// What is dragged, as parameters leave it: of an offset where it is along each axis, of a turn
    /// its angle in degrees, of a factor its scale along each axis. Without a kind there is no such
    /// number.
    virtual DragParameters becomes(const DragParameters& /*parameters*/) const { return {}; }

    // == For its course

    /// The start is captured. @param what  all but manipulator and phase
    /// @param start  the parameters that make no change, with as many numbers as the handle has
    /// @param unitsPerPixel  length that a pixel stands for, for as many decimals in the readout
    void began(const DragEvent& what, const DragParameters& start, const View& view,
               double unitsPerPixel);
    void changed(const DragParameters& parameters);
    /// The drag is over. Nothing if there is none.
    void ended();

    bool hasBegun() const { return isBegun; }

    /// Whether the end that comes is that of a drag which was taken back.
    bool isTakenBack() const { return isCancelled; }

    /// Restores what the drag has changed.
    void cancelNow();

    /// The view with the pointer as it counts.
    View seen(const View& view);

    DragParameters limited(const DragParameters& parameters) const;

private:
    void note(DragEvent::Phase phase);
    void showReadout() const;
    TypedKey edited();

    DragEvent event;
    TypedValues typed;
    std::map<int, DragLimits> limitsOf;
    bool isBegun = false;
    bool isChanged = false;
    bool isCancelled = false;
    bool isFine = false;
    bool isReadoutShown = false;
    float pixelRatio = 1.0F;
    int decimals = 2;  ///< of lengths in the readout
    osg::Pnt2f lastPointer;
    osg::Vec2f behind;  ///< by which the pointer that counts differs from the real one, pixels
};

}  // namespace nbec::manipulator
