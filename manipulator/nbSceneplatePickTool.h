// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbManipulatorExport.h"

#include <nbInteraction/AbstractInteractionTool.h>
#include <nbOpenSGSceneplate/Sceneplate.h>

#include <OpenSG/OSGNode.h>

#include <string>

/// Lets the user point at and select scene plates in the main render widget, by click or by
/// rectangle.
///
/// The tool changes no selection itself but sends kernel messages:
/// - "sceneplatePreselected" with "node" (osg::NodePtr): the plate's node under the pointer; null
///   over none, and to end a preselection.
/// - "sceneplateSelected" with "nodes" (std::vector<osg::NodePtr>) and "hint" (std::string), in
///   this order: what a click or rectangle picked, possibly nothing, and how it is meant.
///
/// The tool sets no filter on the context's picker: the host gives the context a picker of its own
/// that is restricted to plates. The rectangle mode lives in the render widget; a drag enters it
/// once it spans at least 3 pixels, first and last included, both ways.
/// Only the hints "select", "deselect", "toggle", "add" and "sub" mean anything to the tool. A
/// missing picker, context or widget is answered quietly. User-interface thread only.
class NB_MANIPULATOR_API nbSceneplatePickTool : public nbec::interaction::AbstractInteractionTool
{
public:
    using ToolInteractionContext = nbec::interaction::ToolInteractionContext;

    inline static const std::string s_selectHint = "select";
    inline static const std::string s_deselectHint = "deselect";
    inline static const std::string s_addHint = "add";
    inline static const std::string s_subHint = "sub";
    inline static const std::string s_toggleHint = "toggle";

    nbSceneplatePickTool() = default;

    /// A copy takes over everything but the outstanding preselection report.
    nbSceneplatePickTool(const nbSceneplatePickTool& other)
        : AbstractInteractionTool(other)
    {
        *this = other;
    }

    /// Takes over the same; whether a report is outstanding stays.
    nbSceneplatePickTool& operator=(const nbSceneplatePickTool& other);

    /// Mode "tool": cross cursor, and hovering reports from now on, beginning at once. Mode "":
    /// arrow cursor; an outstanding preselection is ended. Both do nothing without a widget.
    /// Deliberate: without an outstanding preselection mode "" does not end the reports.
    /// @return true for these two modes, with or without a widget
    bool setToolMode(ToolInteractionContext* context, const std::string& mode) override;
    /// The same as processTool().
    bool startTool(ToolInteractionContext* context, const std::string& hint) override;
    /// Enters the rectangle mode if the drag is large enough. @return in rectangle mode true,
    /// otherwise whether a plate is under the pointer
    bool processTool(ToolInteractionContext* context, const std::string& hint) override;
    /// Reports what the rectangle or the pointer picked, also if it is nothing, and leaves the
    /// rectangle mode. @return whether anything was picked
    bool stopTool(ToolInteractionContext* context, const std::string& hint) override;
    /// Reports the plate under the pointer, if preselection is enabled, the application does not
    /// present, and the interaction mode is not 0 or the tool is in mode "tool".
    /// @return whether there is a plate; true for hints that mean nothing to the tool
    bool hoverTool(ToolInteractionContext* context, const std::string& hint) override;
    /// Ends an outstanding preselection. @return true
    bool stopHoverTool(ToolInteractionContext* context, const std::string& hint) override;

    /// Keeps a receiver's name; the messages of this tool have fixed names and do not use it.
    void setMessageReceiver(const std::string& receiver) { messageReceiver = receiver; }

    /// Keeps the switch, which nothing here reads.
    void setShowHitData(bool on) { showHitData = on; }

    /// The plate that a derived tool works on; null if there is none or it no longer exists.
    osg::SceneplatePtr getSceneplate() const;

protected:
    static bool isSelectionHint(const std::string& hint);
    bool hoverSelection(ToolInteractionContext* context);
    bool processSelection(ToolInteractionContext* context, const std::string& hint);
    bool stopSelection(ToolInteractionContext* context, const std::string& hint);
    static void sendHoveredNode(const osg::NodePtr& node);
    void startPreselection(ToolInteractionContext* context);
    void stopPreselection();

    std::string messageReceiver;
    osg::UInt32 sceneplateId = 0;  ///< for derived tools: this one never sets it
    bool showHitData = true;
    bool preselectionSent = false;  ///< a report is outstanding, to be ended by a null one
    bool preselectionActive = false;  ///< mode "tool": hovering reports in interaction mode 0 too
};
