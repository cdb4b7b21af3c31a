// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGSelection/nbNodeSet.h>
#include <nbSceneplateModule/nbSceneplateChange.h>
#include <nbUtils/nbCallbackList.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNode.h>

#include <string>
#include <vector>

class nbMessage;

/// The host's side of pointing at, selecting and changing scene plates.
///
/// While it lives it receives three messages of nbController:
/// - "sceneplatePreselected" with "node" (osg::NodePtr, null for none): that plate is preselected.
/// - "sceneplateSelected" with "nodes" (std::vector<osg::NodePtr>) and "hint" (std::string):
///   "select" replaces the selection (no nodes: clears it), "add" appends, "deselect" and "sub"
///   take out, "toggle" does the one or the other for each.
/// - "sceneplateChanged" with "scaleFactor" (float), "offset" (QVector2D) and "rotation" (float),
///   each absolute from the start of the drag (see nbSceneplateChange): applied to the selected
///   plates together, about the centre of the frame around them, as one step of undo per group.
///
/// A drag begins with the first change in a group of nbUndoService; without a group each message is
/// a change and a step of its own. A message with missing, mistyped or impossible attributes costs
/// one line in the log and changes nothing; nodes that are no plates are left out of a selection
/// with a line.
///
/// Plates are kept by container id; those that are not in the world at present, such as deleted
/// ones that undo may bring back, are not shown as selected but not forgotten either. The module
/// draws nothing: it sets the plates' markers, which the renderer shows. Changes ask all render
/// widgets for a redraw. One module at a time; user-interface thread only; never throws.
class NB_PLATFORM_API nbSceneplateModule
{
public:
    /// Takes the three receivers.
    nbSceneplateModule();
    /// Gives the receivers back and the markers of the plates up.
    ~nbSceneplateModule();
    nbSceneplateModule(const nbSceneplateModule&) = delete;
    nbSceneplateModule& operator=(const nbSceneplateModule&) = delete;

    // == Selection

    /// The selected plates in the world, in the order of selecting.
    std::vector<osg::NodePtr> getSelection() const;

    /// The plate under the pointer; null if there is none.
    osg::NodePtr getPreselected() const;

    /// The same as "sceneplateSelected".
    /// @return false for an unknown hint, of which the log gets a line
    bool select(const std::vector<osg::NodePtr>& nodes, const std::string& hint);

    /// The same as "sceneplatePreselected".
    void preselect(const osg::NodePtr& node);

    /// Selects and preselects nothing, as for a new scene.
    void clear();

    /// Registers a callback for changes of selection and preselection and for plates changed by
    /// "sceneplateChanged"; it may read and change everything here. What it throws is logged.
    /// @return a number for removeChangedCallback, never 0; 0 for an empty callback
    int addChangedCallback(nbCallbackList::Callback callback)
    {
        return callbacks.add(std::move(callback));
    }

    void removeChangedCallback(int number) { callbacks.remove(number); }

    // == Changes

    /// The same as "sceneplateChanged".
    void change(const nbSceneplateChange& wanted);

private:
    void receivePreselected(const nbMessage& message);
    void receiveSelected(const nbMessage& message);
    void receiveChanged(const nbMessage& message);
    void showMarkers();
    void notify();

    nbNodeSet selected;
    nbNodeSet preselected;  ///< one at most
    nbNodeSet marked;
    nbCallbackList callbacks;
    nbSceneplateStart start;
    osg::UInt64 startStep = 0;  ///< of nbUndoService, for which `start` holds
};
