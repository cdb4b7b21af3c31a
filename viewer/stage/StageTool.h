// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/HandleCursor.h"

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <QPoint>
#include <QString>

#include <string>
#include <vector>

namespace viewer {

/// A capability of the viewer that has manipulators or picking tools of its own, beside the
/// transform gizmo. The stage tells it what happens; at most one is active, and then no gizmo of
/// the stage is shown.
///
/// Pixels are device pixels with y from the top.
class StageTool
{
public:
    StageTool() = default;
    StageTool(const StageTool&) = delete;
    StageTool& operator=(const StageTool&) = delete;
    virtual ~StageTool() = default;

    /// Word of sessions and commands for it, such as "plates"; no gizmo has it.
    virtual const char* name() const = 0;

    // == Taking the pointer

    /// Adds its contexts to the interaction manager and shows its handles. Called by the stage.
    virtual void activate() = 0;
    /// Takes them away again; a running drag has ended before.
    virtual void deactivate() = 0;

    // == What happens on the stage, active or not

    /// Everything is about to be removed; nothing of the scene may be kept.
    virtual void sceneCleared() { }

    virtual void selectionChanged() { }

    /// The camera moved or the view has another size.
    virtual void viewChanged() { }

    /// Brings what is drawn up to date; called before each picture.
    virtual void update() { }

    // == Handles of an active tool

    /// Tree of the handles shown; null if there are none in the scene.
    virtual osg::NodePtr handles() { return {}; }

    /// Name of the handle that is dragged, otherwise of that under the pointer; "" for none.
    virtual std::string hoveredHandle() { return {}; }

    /// Name of the handle at a pixel, "" for none.
    virtual std::string handleAt(const osg::Pnt2f&) { return {}; }

    /// Where a handle that has no tree in the scene can be hit.
    /// @return false, target untouched, if there is none of that name
    virtual bool findHandle(const std::string&, osg::Pnt2f&) { return false; }

    /// What the handle of a name does, for the cursor over it.
    virtual HandleAction actionOf(const std::string& handle) const
    {
        return actionOfHandle(handle);
    }

    /// The same in words of people; "" for none.
    virtual QString handleText(const std::string& handle) const { return textOfHandle(handle); }

    /// What of its own an active tool has selected, for the status line; "" for the scene's
    /// selection.
    virtual QString selectionText() const { return {}; }

    /// Leaves a mode within an active tool, as a person wants who presses Esc.
    /// @return false if it was in none
    virtual bool leaveMode() { return false; }

    /// Moves what is selected, or was held last, by a key. @param way  -1 to 1, y up
    /// @param coarse  ten times as far
    /// @return false if there is nothing to be moved
    virtual bool nudge(const QPoint& /*way*/, bool /*coarse*/) { return false; }

    /// What stands in the view at places of a tool that is active, such as names of lines.
    struct Label
    {
        osg::Pnt2f px;
        QString text;
    };

    virtual std::vector<Label> labels() const { return {}; }

    // == Files

    /// Offers a picture file that was dropped on the view.
    /// @return whether this took it; false with a text in `error`: it was meant but could not be
    /// done
    virtual bool takePicture(const QString&, const osg::Pnt2f&, QString&) { return false; }
};

}  // namespace viewer
