// SPDX-License-Identifier: MIT
#include "manipulator/course/Gizmo.h"

#include "manipulator/course/HandleFading.h"
#include "manipulator/course/ValueText.h"
#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/HandleNodes.h"

#include <nbInteraction/Picker.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <map>
#include <utility>

#include <EditStamp.h>

namespace nbec::manipulator {

Gizmo::Gizmo(const CourseRules& courseRules, HandleTable table, HandleSet::Materials materials,
             int startMode, const float& size)
    : handles(std::move(table), std::move(materials))
    , rules(courseRules)
    , classSize(&size)
    , mode(startMode)
{
    handles.show(mode, 0);
}

Gizmo::~Gizmo()
{
    if (shownText != nullptr) {
        shownText->show(QString());
    }
}

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
    if (handles.isLitThinner()) {
        handles.light(0, mode);  // or else one moment it is hit, the next one not
    }
    const osg::NodePtr hit = hasTarget()
        ? pickHandle(picker,
                     [this](const osg::NodePtr& part) { return rankSeen(handles, part, View()); })
        : osg::NodePtr();
    return nbNodeUtils::hasParent(hit, root.get()) ? handles.find(hit) : 0;
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

bool Gizmo::start(interaction::Picker* picker)
{
    const ToldLast last(listeners);
    if (isHeld()) {
        endDrag();  // whose stop was lost
    }
    update(false);
    armed = detect(picker);
    if (armed != 0) {
        grabbedPoint = picker->getHitPoint();
    } else if (picker != nullptr && hasTarget()) {
        armed = grabBeside(grabbedPoint);
    }
    handles.light(rules.isGrabbedLit ? armed : 0, mode);
    if (armed == 0 || (rules.isPreparedAtStart && !begin(View()))) {
        return false;
    }
    grabbed = true;
    handles.show(mode, armed);
    return true;
}

bool Gizmo::process(const View& view)
{
    const ToldLast last(listeners);
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
    if (const HandleRow* const row = armedRow(); row != nullptr) {
        what.handleName = row->name;
        what.action = row->action;
        if (row == handles.findRow(armed)) {
            beginOverlay(*row, view);
        }
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
    from.centre = centreOfDrag();
    from.grabbed = grabbedPoint;
    from.axis = handles.axisOf(row, firstAxis(row.action.axes));
    from.sight = view.sightAt(from.centre);
    from.unit = column(handles.getRoot()->getToWorld(), 0).length();
    from.tickDeg = turnStepDeg();
    from.parts = handles.partsOf(row);
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
    const DragStep next = isTyping() ? DragStep() : parametersAt(view, track);
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
    overlay.show(parameters, centreOfDrag());
    announce();
}

DragParameters Gizmo::startParameters() const
{
    const DragParameters::Kind kind = armedAction().kind;
    DragParameters start(kind, osg::Vec3f());
    start.values[0] = kind == DragParameters::Kind::Factor ? 1.0 : 0.0;
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
    const HandleRow* const row = handles.findAlike(armed, axis, mode);
    if (row == nullptr) {
        return false;
    }
    cancelNow();
    armed = row->handle;
    handles.light(rules.isGrabbedLit ? armed : 0, mode);
    handles.show(mode, armed);
    begin(View());
    return true;
}

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
    const ToldLast last(listeners);
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
    static std::map<std::string, ValueText> texts;  // of all gizmos, by their notifiers
    const char* const name = notifier();
    if (name == nullptr) {
        return;
    }
    if (const std::optional<QString> said = isOfDrag ? describe() : QString()) {
        ValueText& text = texts.try_emplace(name, name).first->second;
        text.show(*said);
        shownText = isOfDrag ? &text : nullptr;
    }
}

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
    if (adaptToView(handles, view, mode, isHeld() ? armed : 0)) {
        handles.show(mode, isHeld() ? armed : 0);
    }
    watch.placed();
    if (const osg::Transform3DPtr placed = handles.getRootTransform(); placed != osg::NullFC) {
        placedAt = placed->getTranslation();
        placedScale = placed->getScale();
    }
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
