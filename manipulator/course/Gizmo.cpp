// SPDX-License-Identifier: MIT
#include "manipulator/course/Gizmo.h"

#include "manipulator/course/HandleFading.h"
#include "manipulator/course/ValueText.h"
#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/HandleNodes.h"

#include <nbInteraction/Picker.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <utility>

#include <EditStamp.h>

namespace nbec::manipulator {

Gizmo::Gizmo(const CourseRules& courseRules, const HandleTable& table,
             HandleSet::Materials materials, int startMode, const float& size)
    : handles(table, std::move(materials))
    , rules(courseRules)
    , classSize(&size)
    , mode(startMode)
{
    handles.show(mode, 0);
}

Gizmo::~Gizmo() = default;

// == Events

osg::NodePtr Gizmo::pickHandle(interaction::Picker* picker,
                               const std::function<int(const osg::NodePtr&)>& rankOf)
{
    using interaction::Picker;
    if (picker == nullptr) {
        return osg::NodePtr();
    }
    picker->setFilter(Picker::HandleFilter);
    const osg::NodePtr hit = picker->pick(rankOf);
    picker->setFilter(Picker::SceneFilter);
    return hit;
}

int Gizmo::detect(interaction::Picker* picker)
{
    const osg::NodePtr hit = hasTarget()
        ? pickHandle(picker, [this](const osg::NodePtr& part) { return rankSeen(part); })
        : osg::NodePtr();
    const int handle = handles.find(hit);
    return handle != 0 && nbNodeUtils::hasParent(hit, root.get()) ? handle : 0;
}

/// Rank by how a handle is seen: those whose motion can be seen come first, then what points at the
/// viewer and planes seen edge-on, then rings seen edge-on, which lie over the arrows.
int Gizmo::rankSeen(const osg::NodePtr& part) const
{
    constexpr float kLeastOpenness = 0.1F;
    constexpr float kLeastOpennessOfPlane = 0.175F;
    const HandleRow* const row = handles.findRow(part);
    if (row == nullptr || !View().exists()) {
        return 0;
    }
    const float openness = handles.openness(*row, View().sightAt(centreOfHandles()));
    if (row->action.kind == DragParameters::Kind::Angle) {
        return openness < kLeastOpenness ? 2 : 0;
    }
    return openness < (row->action.isPlane() ? kLeastOpennessOfPlane : kLeastOpenness) ? 1 : 0;
}

bool Gizmo::hover(interaction::Picker* picker)
{
    endLostPause();
    if (isHeld()) {
        return true;
    }
    update(false);  // what is edited may have moved since the last picture
    armed = detect(picker);
    handles.light(armed, mode);
    return armed != 0;
}

bool Gizmo::reset()
{
    endLostPause();
    if (!isHeld()) {
        handles.light(0, mode);
        if (!rules.isHoverKept) {
            armed = 0;
        }
    }
    return true;
}

/// Has listeners told of an event, the last thing that it does. @return its answer
bool Gizmo::told(bool answer)
{
    listeners.deliver();
    return answer;
}

bool Gizmo::start(interaction::Picker* picker)
{
    return told(startEvent(picker));
}

bool Gizmo::startEvent(interaction::Picker* picker)
{
    if (isHeld()) {
        endDrag();  // whose stop was lost
    }
    update(false);
    if (!rules.isGrabbedLit) {
        handles.light(0, mode);  // lines are hit by the width in which they are drawn
    }
    armed = detect(picker);
    if (rules.isGrabbedLit) {
        handles.light(armed, mode);
    }
    if (armed == 0) {
        return false;
    }
    grabbedPoint = picker->getHitPoint();
    if (rules.isPreparedAtStart && !begin(View())) {
        return false;
    }
    grabbed = true;
    handles.show(mode, armed);
    return true;
}

bool Gizmo::process(const View& view)
{
    return told(processEvent(view));
}

bool Gizmo::processEvent(const View& view)
{
    endLostPause();
    if (armed == 0 || !canStep(view)) {
        return false;
    }
    if (prepared) {
        step(seen(view));
        return armed != 0;
    }
    if (rules.isPreparedAtStart) {
        return true;  // merely hovered
    }
    return begin(view);
}

bool Gizmo::begin(const View& view)
{
    if (watch.isForOtherView()) {
        placeIn(view);  // as another one was drawn since the handle was hit
    }
    track = DragTrack();
    prepared = prepare(view) && armed != 0;  // who heard of it may have ended the drag
    if (prepared) {
        beganAnew(view);
    }
    return prepared;
}

void Gizmo::beganAnew(const View& view)
{
    DragEvent what;
    what.handle = armed;
    if (const HandleRow* const row = handles.findRow(armed); row != nullptr) {
        what.handleName = row->name;
        what.action = row->action;
        beginOverlay(*row, view);
    }
    if (!listeners.isEmpty()) {
        what.targets = editedNodes();
    }
    began(what, startParameters(), view, view.unitsPerPixel(grabbedPoint));
}

void Gizmo::beginOverlay(const HandleRow& row, const View& view)
{
    if (!isDragOverlayShown() || !view.exists()) {
        return;
    }
    OverlayStart from;
    from.action = row.action;
    from.centre = centreOfHandles();
    from.grabbed = grabbedPoint;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (row.action.axes == axisBit(axis)) {
            from.axis = handles.axisOf(row, axis);
        }
    }
    from.sight = view.sightAt(from.centre);
    from.tickDeg = turnStepDeg();
    overlay.begin(overlayParent(), from);
}

void Gizmo::prepareAnew()
{
    prepared = false;
    overlay.end();
    ended();
}

void Gizmo::step(const View& view)
{
    if (isTyping()) {
        return;
    }
    const DragStep next = parametersAt(view, track);
    if (next.outcome == DragStep::Outcome::Missed) {
        return;
    }
    track = next.track;
    if (next.outcome == DragStep::Outcome::Waiting) {
        showText(true);
        return;
    }
    applyNow(limited(next.parameters));
}

void Gizmo::applyNow(const DragParameters& parameters)
{
    apply(parameters);
    if (armed == 0) {
        return;  // who heard of it has taken the gizmo out of use
    }
    changed(parameters);
    showText(true);
    placeIn(View());  // that of the event may be gone, too
    overlay.show(parameters, centreOfHandles());
    announce();
}

// == Beside the pointer

DragParameters Gizmo::startParameters() const
{
    const HandleRow* const row = handles.findRow(armed);
    const HandleAction action = row != nullptr ? row->action : HandleAction();
    DragParameters start(action.kind, osg::Vec3f());
    start.values[0] = action.kind == DragParameters::Kind::Factor ? 1.0 : 0.0;
    return start;
}

void Gizmo::restore()
{
    DragParameters start = startParameters();
    start.isExact = true;
    apply(start);
}

bool Gizmo::ensureBegun()
{
    const View view;
    return isHeld() && armed != 0 && canStep(view) && (prepared || begin(view));
}

void Gizmo::restoreNow()
{
    if (!hasTarget()) {
        return;
    }
    restore();
    if (armed != 0) {
        placeIn(View());
        announce();
    }
}

bool Gizmo::changeAxis(std::size_t axis)
{
    const HandleRow* const held = handles.findRow(armed);
    if (held == nullptr) {
        return false;
    }
    for (const HandleRow& row : handles.getTable().rows) {
        if (row.handle != 0 && row.action.kind == held->action.kind && row.family == held->family &&
            row.action.axes == axisBit(axis) && isInModes(mode, row.visibleIn)) {
            cancelNow();
            armed = row.handle;
            handles.light(rules.isGrabbedLit ? armed : 0, mode);
            handles.show(mode, armed);
            begin(View());
            return true;
        }
    }
    return false;
}

// == The end

bool Gizmo::letGo()
{
    if (armed == 0 || (rules.isPreparedAtStart && !grabbed)) {
        return false;
    }
    release();
    if (!hasTarget()) {
        previewPause.end();
        vanish();
        return false;
    }
    return true;
}

bool Gizmo::stop()
{
    return told(stopEvent());
}

bool Gizmo::stopEvent()
{
    if (!letGo()) {
        return false;
    }
    showActive();
    if (rules.isPreviewPaused) {
        previewPause.resume();
    }
    return true;
}

void Gizmo::deactivate()
{
    if (rules.isEndedByDeactivation) {
        endDrag();
        listeners.deliver();
    }
}

void Gizmo::release()
{
    if (prepared) {
        finish();
        ended();
    }
    const bool wasHeld = isHeld();
    overlay.end();
    grabbed = false;
    prepared = false;
    armed = 0;
    handles.light(0, mode);
    if (wasHeld) {
        handles.show(mode, 0);
        showText(false);
    }
}

/// Resumes a preview that nothing to edit is left for.
void Gizmo::endLostPause()
{
    if (previewPause.isPausing() && !hasTarget()) {
        previewPause.end();
    }
}

void Gizmo::endDrag()
{
    release();
    previewPause.end();
}

void Gizmo::showText(bool isOfDrag)
{
    ValueText* const text = getText();
    if (text == nullptr) {
        return;
    }
    if (const std::optional<QString> said = isOfDrag ? describe() : QString()) {
        text->show(*said);
    }
}

// == Handles

void Gizmo::showActive()
{
    if (!hasTarget()) {
        hide();
        return;
    }
    handles.show(mode, 0);
    handles.showRoot(true);
    placeIn(View());
}

void Gizmo::hide()
{
    handles.showRoot(false);
}

void Gizmo::vanish()
{
    if (rules.isHiddenWithoutTarget) {
        hide();
    }
}

bool Gizmo::setHandleVisible(const std::string& name, bool on)
{
    const bool isKnown = handles.setHidden(name, !on);
    if (isKnown) {
        handles.show(mode, isHeld() ? armed : 0);
    }
    return isKnown;
}

void Gizmo::activateMode(int newMode)
{
    mode = newMode;
    handles.show(mode, 0);
    handles.setDefaultMaterials(mode);
    placeIn(View());
}

// == Placement

void Gizmo::update(bool force)
{
    endLostPause();
    const float own = placementNumber();
    force = handles.takePalette() || force;
    if (!force && !watch.mayHaveChanged(own)) {
        return;
    }
    if (!hasTarget()) {
        vanish();
        return;
    }
    watch.note(own);
    const View view;
    if (force || watch.isForOtherView() || watch.isSizedOtherwise() || isTreeMoved() ||
        isDisplaced(view)) {
        placeIn(view);
    }
}

void Gizmo::placeIn(const View& view)
{
    if (!hasTarget()) {
        vanish();
        return;
    }
    handles.takePalette();
    const osg::glue::EditsForOneView placing(watch.isForOtherView());
    place(view);
    fadeHandles(view);
    watch.placed();
    if (const osg::Transform3DPtr placed = handles.getRootTransform(); placed != osg::NullFC) {
        placedAt = placed->getTranslation();
        placedScale = placed->getScale();
    }
}

/// Fades handles whose motion is hardly seen, all but the held one.
void Gizmo::fadeHandles(const View& view)
{
    const HandleFading& fading = getHandleFading();
    if ((!fading.isOn && !isAnyFaded) || !view.exists()) {
        return;
    }
    const osg::Vec3f sight = view.sightAt(centreOfHandles());
    bool hasOther = false;
    isAnyFaded = false;
    const std::vector<HandleRow>& rows = handles.getTable().rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const bool isFree = rows[i].handle != 0 && !(isHeld() && rows[i].handle == armed);
        const float opacity = isFree && fading.isOn
            ? fading.opacity(rows[i].action, handles.openness(rows[i], sight))
            : 1.0F;
        hasOther = handles.setOpacity(i, opacity, mode) || hasOther;
        isAnyFaded = isAnyFaded || opacity < 1.0F;
    }
    if (hasOther) {
        handles.show(mode, isHeld() ? armed : 0);
    }
}

osg::Pnt3f Gizmo::centreOfHandles() const
{
    return osg::Pnt3f(column(handles.getRoot()->getToWorld(), 3));
}

void Gizmo::place(const View& view)
{
    const osg::Matrix target = targetToWorld();
    const osg::Vec3f anchor = column(target, 3);
    const float scale = view.scaleAt(osg::Pnt3f(anchor), getSize(), ViewDiagonal::NearPlane);
    placeTransform(handles.getRootTransform(), anchor, osg::Quaternion(),
                   osg::Vec3f(scale, scale, scale));
    watch.remember(target);
    watch.remember(view);
}

bool Gizmo::isDisplaced(const View& view) const
{
    return watch.isElsewhere(targetToWorld()) || watch.isSeenOtherwise(view);
}

bool Gizmo::isTreeMoved() const
{
    const osg::Transform3DPtr placed = handles.getRootTransform();
    return placed != osg::NullFC &&
        (placed->getTranslation() != placedAt || placed->getScale() != placedScale);
}

}  // namespace nbec::manipulator
