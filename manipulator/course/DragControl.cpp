// SPDX-License-Identifier: MIT
#include "manipulator/course/DragControl.h"

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/course/DragReadout.h"
#include "manipulator/course/ValueText.h"

#include <nbKernel/nbOSGWidget.h>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator {

namespace {

constexpr float kFinePart = 0.1F;
constexpr int kMostDecimals = 6;

/// As many that the last one changes with a pixel.
int decimalsOf(double unitsPerPixel)
{
    return std::isfinite(unitsPerPixel) && unitsPerPixel > 0.0
        ? std::clamp(static_cast<int>(std::ceil(-std::log10(unitsPerPixel))), 0, kMostDecimals)
        : 2;
}

}  // namespace

DragControl::DragControl(const DragControl& other)
    : limitsOf(other.limitsOf)
    , isReadoutShown(other.isReadoutShown)
    , pixelRatio(other.pixelRatio)
{ }

DragControl::~DragControl()
{
    // Who hears of the end may send events.
    ManipulatorInteractionContext::forget(event.manipulator);
    event.manipulator = nullptr;
    ended();
}

// == From outside

bool DragControl::takeBack()
{
    if (!isBegun) {
        return false;
    }
    cancelNow();
    return true;
}

void DragControl::cancelNow()
{
    isCancelled = true;
    if (isChanged) {
        isChanged = false;
        restoreNow();
    }
}

TypedKey DragControl::typeKey(QChar key)
{
    constexpr ushort kEscape = 27;
    if (!ensureBegun()) {
        return TypedKey::Ignored;
    }
    if (key == QLatin1Char('\r') || key == QLatin1Char('\n')) {
        return typed.isRight() ? TypedKey::Commit : TypedKey::Taken;
    }
    if (key == QChar(kEscape)) {
        if (!typed.isActive()) {
            return TypedKey::Cancel;
        }
        typed.clear();
        showReadout();
        return TypedKey::Taken;
    }
    if (key == QLatin1Char('\t')) {
        typed.goToNext(freeNumbers(event.action).size());
        return TypedKey::Taken;
    }
    if (key == QLatin1Char('\b')) {
        typed.removeLast();
        return edited();
    }
    const int axis = QStringLiteral("xyz").indexOf(key.toLower());
    if (axis >= 0) {
        return !typed.isActive() && changeAxis(static_cast<std::size_t>(axis)) ? TypedKey::Taken
                                                                               : TypedKey::Ignored;
    }
    return typed.add(key) ? edited() : TypedKey::Ignored;
}

/// Applies what is typed; a wrong expression keeps the value of before.
TypedKey DragControl::edited()
{
    const std::optional<DragParameters> parameters = typed.in(event.parameters, event.action);
    if (parameters && typed.isActive()) {
        applyNow(limited(*parameters));
    }
    showReadout();
    return TypedKey::Taken;
}

QString DragControl::getReadout() const
{
    if (!isBegun) {
        return QString();
    }
    const QString value =
        describeDrag(event.action, event.parameters, becomes(event.parameters), decimals);
    if (!typed.isActive()) {
        return value;
    }
    return typed.getText() +
        (typed.isRight() ? QStringLiteral(" = ") + value : QStringLiteral(" ?"));
}

// == For the course

void DragControl::began(const DragEvent& what, const DragParameters& start, const View& view,
                        double unitsPerPixel)
{
    ended();
    decimals = decimalsOf(unitsPerPixel);
    Manipulator* const face = event.manipulator;
    event = what;
    event.manipulator = face;
    event.parameters = start;
    typed.clear();
    isBegun = true;
    isChanged = false;
    isCancelled = false;
    behind = osg::Vec2f();
    lastPointer = view.getPointer();
    note(DragEvent::Phase::Begin);
}

void DragControl::changed(const DragParameters& parameters)
{
    event.parameters = parameters;
    isChanged = true;
    showReadout();
    note(DragEvent::Phase::Change);
}

/// Beside the pointer, below to the right; at the view's right or lower edge moved back into the
/// view, but above the pointer in the corner of both. The host moves what begins in the last pixel.
void DragControl::showReadout() const
{
    static ValueText text("dragReadout");
    constexpr float kBesidePx = 16.0F;
    constexpr float kHeightPx = 26.0F;
    constexpr float kWidthPx = 240.0F;  // of long ones
    if (!isReadoutShown) {
        return;
    }
    const View view;
    const float ratio = nbOSGWidget::getPixelRatio(-1, pixelRatio);
    const float right = static_cast<float>(view.getWidth()) / ratio;
    const float bottom = static_cast<float>(view.getHeight()) / ratio;
    const osg::Pnt2f pointer = lastPointer * (1.0F / ratio);
    const osg::Pnt2f beside = pointer + osg::Vec2f(kBesidePx, kBesidePx);
    const float lowest = beside.x() + kWidthPx > right ? pointer.y() - kBesidePx : bottom;
    text.showAt(
        getReadout(),
        { std::min(beside.x(), right - 1.0F),
          beside.y() + kHeightPx > bottom ? std::min(lowest, bottom) - kHeightPx : beside.y() });
}

void DragControl::ended()
{
    if (isBegun) {
        isBegun = false;
        isFine = false;
        typed.clear();
        showReadout();
        note(isCancelled ? DragEvent::Phase::Cancel : DragEvent::Phase::Commit);
    }
    isCancelled = false;
}

void DragControl::note(DragEvent::Phase phase)
{
    event.phase = phase;
    listeners.note(event);
}

View DragControl::seen(const View& view)
{
    const osg::Pnt2f& pointer = view.getPointer();
    if (isFine) {
        behind += (lastPointer - pointer) * (1.0F - kFinePart);
    }
    lastPointer = pointer;
    return behind == osg::Vec2f() ? view : view.withFinePointer(pointer + behind);
}

DragParameters DragControl::limited(const DragParameters& parameters) const
{
    const auto limits = limitsOf.find(event.handle);
    DragParameters result = parameters;
    if (limits != limitsOf.end()) {
        for (const std::size_t i : freeNumbers(event.action)) {
            result.values[i] =
                std::min(std::max(result.values[i], limits->second.least), limits->second.most);
        }
    }
    return result;
}

}  // namespace nbec::manipulator
