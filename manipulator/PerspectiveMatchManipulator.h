// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/AbstractManipulator.h"
#include "manipulator/PerspectiveMatchLine.h"
#include "manipulator/course/Instances.h"
#include "manipulator/drag/DragParameters.h"

#include <nbKernelServices/nbdCameraNode.h>
#include <nbKernelServices/nbdObject.h>
#include <nbOpenSGExt/Line2D.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <QtCore/QByteArray>
#include <QtCore/QObject>

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace nbec::manipulator {

namespace match {
class PerspectiveMatchVisualisation;
}  // namespace match

/// Edits the vanishing lines of a camera's perspective match by dragging them in the view.
///
/// The six lines, two along each axis of the world, are drawn over the scene with a ring around
/// each end. A drag of a ring moves that end, a drag of the line between them the whole line. Each
/// step of a drag is written to the match as one undo step, and the host derives the camera's
/// orientation and field of view from the lines. While an end is held a magnifier shows what lies
/// under it.
///
/// Line coordinates have their origin in the lower left corner of the main render widget's
/// viewport and y up; their unit is the viewport's height for a camera that is sized vertically,
/// otherwise its width. Ends come before lines under the pointer and the nearest wins, within 4
/// logical pixels of what is drawn; the context's picker only says how many device pixels such a
/// pixel has. Lines of axes that the match's vanishing-lines type does not use are drawn faintly
/// and can be moved all the same.
///
/// The camera is held by its container id: one that is gone reads as none. A locked camera node
/// refuses edits silently. Changes of a match that are made elsewhere are drawn when the host's
/// object service announces them.
///
/// It takes no Gizmo's course: it finds its parts itself and not by a picker, a grab needs a hover
/// before it, nothing is placed in the world, and every step is an undo step of its own.
class NB_MANIPULATOR_API PerspectiveMatchManipulator : public QObject, public AbstractManipulator
{
    Q_OBJECT

public:
    /// Builds the overlay, hidden. Without the host's object service it says so on standard error,
    /// and changes made elsewhere are not drawn.
    PerspectiveMatchManipulator();
    PerspectiveMatchManipulator(const PerspectiveMatchManipulator&) = delete;
    PerspectiveMatchManipulator& operator=(const PerspectiveMatchManipulator&) = delete;

    /// Shows the overlay and follows the render widgets' sizes.
    void activate(ManipulatorInteractionContext* ctx) override;
    /// Hides the overlay and forgets the camera: setCamera() must be called again.
    void deactivate(ManipulatorInteractionContext* ctx) override;
    /// Root of the overlay.
    osg::NodePtr getVisualisation() override;

    /// The same.
    osg::NodePtr getCollider() override { return getVisualisation(); }

    /// Draws the lines anew, if active. @param force  false does nothing
    void update(bool force) override;

    /// Takes hold of what is under the pointer. @return false unless hovered, or with nothing there
    bool startManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;
    /// The first call of a grab notes where it begins, the next ones move the line.
    /// @return false if nothing is held, or without a render widget with a viewport
    bool processManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;
    /// Lets go. @return false if nothing was held
    bool stopManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;
    /// Highlights what is under the pointer. @return false if that is nothing, or while grabbed
    bool hoverManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;
    /// Ends hovering. @return true
    bool resetManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;

    ~PerspectiveMatchManipulator() override;

    /// Sets the camera whose lines are shown. @param camera  null shows none; no count is held
    void setCamera(osg::UberCameraPtr camera);

    /// Where a line is laid instead of where the pointer has it, such as on an edge of the host's
    /// photograph. Asked at each step of a drag; typed values are taken as they are. One that
    /// throws, which is logged, or answers no number leaves the line to the pointer.
    /// @param part  1 the line between the ends, 2 the first end, 3 the second: what may move
    using LineRule = std::function<osg::Line2D(const osg::Line2D& line, osg::UInt32 part)>;

    /// Sets the rule; empty, as at the start: none.
    void setLineRule(LineRule rule) { lineRule = std::move(rule); }

    /// The line under the pointer or grabbed, as of the last event; NoLine for none.
    PerspectiveMatchLine getHoveredLine() const
    {
        return hovered || grabbed ? line : PerspectiveMatchLine::NoLine;
    }

    /// Its part: 0 none, 1 the line between the ends, 2 the first end, 3 the second end.
    osg::UInt32 getHoveredPart() const { return hovered || grabbed ? handle : 0; }

private:
    friend struct Instances<PerspectiveMatchManipulator>;
    class Drag;

    Q_SLOT void propertyChanged(const nbdObject& object, const QByteArray& property);
    void updateManipulator();
    nbdCameraNode getNbdCameraNode() const;
    void setLine(PerspectiveMatchLine which, const osg::Line2D& value);

    void beginDrag(const View& view);
    void endDrag();
    bool updateMode();
    DragParameters parametersAt(const View& view) const;
    osg::Line2D movedLine(const osg::Vec2f& way) const;
    void applyNow(const DragParameters& parameters);
    void followView();

    void updateMagnifier();

    static void updateAllManipulators() { instances.updateAll(); }

    static Instances<PerspectiveMatchManipulator> instances;

    osg::UInt32 cameraId = 0;
    const nbOSGWidget* placedFor = nullptr;  ///< for comparison only
    std::unique_ptr<match::PerspectiveMatchVisualisation> visualisation;
    PerspectiveMatchLine line = PerspectiveMatchLine::NoLine;
    osg::UInt32 handle = 0;
    osg::Pnt2f dragStart;
    osg::Line2D lineAtDragStart;
    bool hovered = false;
    bool grabbed = false;
    bool dragging = false;
    LineRule lineRule;
    std::unique_ptr<Drag> drag;
};

}  // namespace nbec::manipulator
