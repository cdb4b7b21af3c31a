// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/DragControl.h"
#include "manipulator/course/DragOverlay.h"
#include "manipulator/course/PlacementWatch.h"
#include "manipulator/course/PreviewPause.h"
#include "manipulator/handles/HandleSet.h"
#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGVector.h>

#include <QtCore/QString>

#include <functional>
#include <optional>
#include <vector>

namespace nbec::interaction {
class Picker;
}  // namespace nbec::interaction

namespace nbec::manipulator {

class ValueText;

/// In what the course of a gizmo differs from that of others.
struct CourseRules
{
    /// A grab captures the start, so that the first step moves already; otherwise the first step
    /// captures it and moves nothing, and a handle that is merely hovered can be dragged, too.
    bool isPreparedAtStart = false;
    /// A handle that was hovered can still be dragged when hovering has ended.
    bool isHoverKept = false;
    /// A grabbed handle is lit up.
    bool isGrabbedLit = true;
    /// Taking the gizmo out of use ends its drag; otherwise it goes on when it is used again.
    bool isEndedByDeactivation = true;
    /// The host's material preview is paused in drags.
    bool isPreviewPaused = false;
    /// Handles vanish as soon as it is noticed that nothing to edit is left; otherwise they stay.
    bool isHiddenWithoutTarget = false;
};

/// The course of a gizmo, which is the same for all: it is placed, a handle is hovered and lit up,
/// grabbed, dragged in steps, and let go.
///
/// A step is: pointer -> drag parameters -> edit. parametersAt() says what the pointer has come to,
/// always counted from the start that prepare() has captured; apply() is the only way in which
/// anything is edited. A gizmo is a table of handles and these two, see docs/new-manipulator.md.
///
/// Four things are independent of each other: the armed handle, which a drag would move (hovered or
/// grabbed); the lit one; whether a handle is grabbed, by a start without a stop; whether a drag is
/// prepared, by its captured start. While a handle is grabbed or a drag prepared hovering changes
/// nothing. Who receives what apply() sends may destroy what is edited; afterwards it is looked up
/// again.
class NB_MANIPULATOR_API Gizmo : public DragControl
{
public:
    Gizmo& operator=(const Gizmo&) = delete;

    /// Takes away the text that a drag has left.
    ~Gizmo() override;

    // == Events. Each answers as the operation of Manipulator with its name.

    bool hover(interaction::Picker* picker);
    bool reset();
    bool start(interaction::Picker* picker);
    bool process(const View& view);
    /// Lets go, shows the handles again and resumes the preview.
    bool stop();
    /// Lets go alone. Who calls it has the listeners told last.
    /// @return whether there was a drag to stop and something to edit is left
    bool letGo();

    /// The gizmo is taken out of use.
    void deactivate();

    // == Handles

    /// Top node; a count is held.
    osg::NodePtr getRoot() const { return root.get(); }

    /// Shows what the mode shows and places it; hides all without something to edit.
    virtual void showActive();

    void hide() { handles.showRoot(false); }

    /// Shows another mode in its idle colours and places the gizmo.
    void activateMode(int newMode);

    int getMode() const { return mode; }

    /// What a picker hits of handles. @param picker  null hits nothing
    /// @param rankOf  see Picker::pick()
    static osg::NodePtr pickHandle(interaction::Picker* picker,
                                   const std::function<int(const osg::NodePtr&)>& rankOf = {});

    /// The handle that a step would drag, 0 for none.
    int getArmed() const { return armed; }

    bool isGrabbed() const { return grabbed; }

    bool setHandleVisible(const std::string& name, bool on) override;

    // == Placement

    /// Places the handles if something was noticed that their place depends on, or for another view
    /// than before. Nothing without something to edit. @param force  in any case
    void update(bool force);
    /// Places the handles; nothing without something to edit.
    void placeIn(const View& view);

protected:
    /// @param table      outlives the gizmo
    /// @param materials  see HandleSet
    /// @param startMode  number of a mode of the table
    /// @param size       setting of the gizmo's class, which outlives the gizmo
    Gizmo(const CourseRules& courseRules, HandleTable table, HandleSet::Materials materials,
          int startMode, const float& size);
    /// A copy shares nodes and materials; a pause of the preview stays with the original.
    Gizmo(const Gizmo&) = default;

    // == What a gizmo is

    /// Whether there is something to edit. Without it no handle is found and nothing is placed.
    virtual bool hasTarget() const = 0;

    /// Before each step: whether it can be made now, and whatever has to be done for it.
    virtual bool canStep(const View& view) { return view.exists(); }

    /// What a press beside all handles grabs: a number that the table need not have, 0 for nothing.
    /// Then it tells where, in world space.
    virtual int grabBeside(osg::Pnt3f& /*place*/) { return 0; }

    /// What the armed handle is and does; null for none.
    virtual const HandleRow* armedRow() const { return handles.findRow(armed); }

    /// Captures the start of a drag of the armed handle, and what of the track it begins with.
    /// @return false if it cannot
    virtual bool prepare(const View& view) = 0;

    /// What the pointer has come to since the start.
    virtual DragStep parametersAt(const View& view, const DragTrack& before) const = 0;

    /// The parameters that change nothing: by themselves factor 1 and 0 of all others.
    virtual DragParameters startParameters() const;

    /// Edits or sends, absolute from the captured start.
    virtual void apply(const DragParameters& parameters) = 0;

    /// Edits or sends the captured start, to the bit: by itself the start's parameters.
    virtual void restore();

    /// Told after each apply() when texts and handles follow it.
    virtual void announce() { }

    /// A drag that was prepared is over, see isTakenBack(); the armed handle is still known.
    virtual void finish() { }

    /// The nodes that are edited.
    virtual std::vector<osg::NodePtr> editedNodes() const { return {}; }

    /// Below which node the overlay of a drag is drawn.
    virtual osg::NodePtr overlayParent() const { return root.get(); }

    /// From where the overlay of a drag goes out, world.
    virtual osg::Pnt3f centreOfDrag() const { return handles.centre(); }

    /// Step of snapping of a turn, degrees; 0 without.
    virtual double turnStepDeg() const { return 0.0; }

    /// World matrix of what is edited, on whose origin the handles stand.
    virtual osg::Matrix targetToWorld() const { return osg::Matrix::identity(); }

    /// Places the handles. There is something to edit. By itself: at the target, along the world's
    /// axes, in a constant size on screen.
    virtual void place(const View& view);

    /// Whether the handles may not be where they belong; asked only if anything was edited since
    /// they were placed. By itself: whether target or camera have moved.
    virtual bool isDisplaced(const View& view) const;

    /// A number that the place depends on beside what is in the scene.
    virtual float placementNumber() const { return 0.0F; }

    /// Text of the present values during a drag, empty for none; nothing: the shown one stays.
    virtual std::optional<QString> describe() const { return QString(); }

    /// Name of the notifier that shows the text, see ValueText; null for a gizmo without one.
    virtual const char* notifier() const { return nullptr; }

    // == For gizmos

    /// What the armed handle does; of no kind without one.
    HandleAction armedAction() const
    {
        const HandleRow* const row = armedRow();
        return row != nullptr ? row->action : HandleAction();
    }

    /// Whether a handle is held or a drag under way.
    bool isHeld() const { return grabbed || prepared; }

    /// Ends a drag, if there is one, and forgets the armed handle; resumes a paused preview.
    void endDrag();

    /// Has the next step capture the start anew.
    void prepareAnew();

    /// What is grabbed was captured anew: for listeners another drag begins.
    void beganAnew(const View& view);

    /// Where the track begins; for prepare().
    DragTrack track;
    HandleSet handles;
    osg::RefPtr<osg::NodePtr> root;
    osg::Pnt3f grabbedPoint;  ///< where the grabbed handle was hit, world
    PlacementWatch watch;
    PreviewPause previewPause;

    /// Shows the text of a drag, or takes it away.
    void showText(bool isOfDrag);

    /// Size setting of the gizmo's class.
    float getSize() const { return *classSize; }

private:
    bool ensureBegun() override;
    void applyNow(const DragParameters& parameters) override;
    void restoreNow() override;
    bool changeAxis(std::size_t axis) override;

    int detect(interaction::Picker* picker);
    bool begin(const View& view);
    void step(const View& view);
    void release();
    void endLostPause();
    void vanish();
    bool isTreeMoved() const;
    void beginOverlay(const HandleRow& row, const View& view);

    CourseRules rules;
    const float* classSize;
    int mode;
    int armed = 0;
    DragOverlay overlay;
    bool grabbed = false;
    bool prepared = false;
    ValueText* shownText = nullptr;  ///< that of a drag
    osg::Vec3f placedAt;  ///< where the last placement has left the handles; a copy may move them
    osg::Vec3f placedScale;
};

}  // namespace nbec::manipulator
