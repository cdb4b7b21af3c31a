// SPDX-License-Identifier: MIT
#include "viewer/gui/SessionRecorder.h"

#include "viewer/commands/JsonNumbers.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/replay/SessionNames.h"

#include <nbUtils/nbQt.h>

#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace viewer {
namespace {

using Type = SessionStep::Type;

constexpr qint64 kLongestPauseMs = 2000;
/// Moves that come faster than this are one.
constexpr int kFinestMovesMs = 40;
constexpr double kPlacesPerPx = 100.0;

double rounded(double px)
{
    return std::round(px * kPlacesPerPx) / kPlacesPerPx;
}

template <class Point>
std::array<double, 3> arrayOf(const Point& p)
{
    return { shortDouble(p[0]), shortDouble(p[1]), shortDouble(p[2]) };
}

SessionCamera cameraOf(const CameraPose& pose)
{
    SessionCamera camera;
    camera.from = arrayOf(pose.from);
    camera.at = arrayOf(pose.at);
    camera.up = arrayOf(pose.up);
    camera.pivot = arrayOf(pose.pivot);
    camera.fovDeg = shortDouble(pose.fovDeg);
    camera.orthographic = pose.orthographic;
    camera.zUp = pose.zUp;
    return camera;
}

bool isKnownButton(Qt::MouseButton button)
{
    return button == Qt::LeftButton || button == Qt::MiddleButton || button == Qt::RightButton;
}

QString keyName(int key)
{
    for (const ModifierKey& each : kModifierKeys) {
        if (key == each.key) {
            return QLatin1String(each.name);
        }
    }
    return QKeySequence(key).toString(QKeySequence::PortableText);
}

}  // namespace

SessionRecorder::SessionRecorder(ViewWidget& targetView, QObject* parent)
    : QObject(parent)
    , view(targetView)
{ }

void SessionRecorder::start(const QStringList& files)
{
    session = Session();
    session.sizePx = view.sizePx();
    session.files = files;
    session.camera = cameraOf(view.stage().pose());
    session.selection = QString::fromStdString(view.stage().selectedName());
    session.manipulator = QString::fromStdString(view.stage().manipulatorName());
    checkpoints = 0;
    recording = true;
    clock.start();
    view.installEventFilter(this);
}

Session SessionRecorder::stop()
{
    view.removeEventFilter(this);
    recording = false;
    return std::move(session);
}

void SessionRecorder::addCheckpoint()
{
    SessionStep step;
    step.type = Type::Checkpoint;
    step.name = QStringLiteral("checkpoint %1").arg(++checkpoints);
    step.screenshot = true;
    step.expectation.hover = QString::fromStdString(view.stage().hoveredHandle());
    step.expectation.selection = QString::fromStdString(view.stage().selectedName());
    add(step);
}

void SessionRecorder::addShortcut(const QString& keys)
{
    if (recording && !keys.isEmpty()) {
        SessionStep step;
        step.type = Type::Key;
        step.key = keys;
        add(step);
    }
}

void SessionRecorder::addCommand(const QString& name, const QJsonValue& value)
{
    if (recording) {
        SessionStep step;
        step.type = Type::Command;
        step.name = name;
        step.value = value;
        add(step);
    }
}

bool SessionRecorder::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        addMouse(Type::Move, *static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseButtonPress:
    // The release that follows a double click is an event of its own, so it is a press here.
    case QEvent::MouseButtonDblClick:
        addMouse(Type::Press, *static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseButtonRelease:
        addMouse(Type::Release, *static_cast<QMouseEvent*>(event));
        break;
    case QEvent::Wheel:
        addWheel(*static_cast<QWheelEvent*>(event));
        break;
    case QEvent::Leave: {
        SessionStep step;
        step.type = Type::Leave;
        add(step);
        break;
    }
    case QEvent::KeyPress:
        addKey(Type::KeyPress, *static_cast<QKeyEvent*>(event));
        break;
    case QEvent::KeyRelease:
        addKey(Type::KeyRelease, *static_cast<QKeyEvent*>(event));
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void SessionRecorder::add(SessionStep step)
{
    step.afterMs = static_cast<int>(std::min(clock.restart(), kLongestPauseMs));
    if (isMergedMove(step)) {
        step.afterMs += session.steps.back().afterMs;
        session.steps.back() = std::move(step);
        return;
    }
    session.steps.push_back(std::move(step));
}

bool SessionRecorder::isMergedMove(const SessionStep& step) const
{
    const std::vector<SessionStep>& steps = session.steps;
    // The first move after anything else stays: with it a drag chooses what it measures on.
    const bool followsMoves = steps.size() > 1 && step.type == Type::Move &&
        steps.back().type == Type::Move && steps[steps.size() - 2].type == Type::Move;
    return followsMoves && steps.back().modifiers == step.modifiers &&
        steps.back().afterMs + step.afterMs < kFinestMovesMs;
}

SessionTarget SessionRecorder::pixelAt(const QPointF& logical) const
{
    SessionTarget target;
    const QPointF px = logical * view.devicePixelRatioF();
    target.offsetPx = QPointF(rounded(px.x()), rounded(px.y()));
    return target;
}

void SessionRecorder::addMouse(Type type, const QMouseEvent& event)
{
    if (type != Type::Move && !isKnownButton(event.button())) {
        return;
    }
    SessionStep step;
    step.type = type;
    step.at = pixelAt(nbQt::position(event));
    step.modifiers = event.modifiers();
    if (type != Type::Move) {
        step.button = event.button();
    }
    add(step);
}

void SessionRecorder::addWheel(const QWheelEvent& event)
{
    if (event.angleDelta().y() == 0 || ViewWidget::isOfTouchpad(event)) {
        return;
    }
    SessionStep step;
    step.type = Type::Wheel;
    step.at = pixelAt(event.position());
    step.modifiers = event.modifiers();
    step.wheelDelta = event.angleDelta().y();
    add(step);
}

void SessionRecorder::addKey(Type type, const QKeyEvent& event)
{
    const QString name = keyName(event.key());
    if (name.isEmpty() || event.isAutoRepeat()) {
        return;
    }
    SessionStep step;
    step.type = type;
    step.key = name;
    add(step);
}

}  // namespace viewer
