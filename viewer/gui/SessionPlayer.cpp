// SPDX-License-Identifier: MIT
#include "viewer/gui/SessionPlayer.h"

#include "viewer/gui/ViewWidget.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/replay/SessionStage.h"

#include <nbUtils/nbQt.h>

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QTimer>
#include <QWheelEvent>

#include <utility>

namespace viewer {
namespace {

using Type = SessionStep::Type;

/// A person gets at least this long to read a caption.
constexpr int kReadingMs = 900;
constexpr int kReadingMsPerLetter = 25;

/// Qt key and modifiers of a portable key name.
int keyOf(const QString& name, Qt::KeyboardModifiers& modifiers)
{
    for (const ModifierKey& each : kModifierKeys) {
        if (name == QLatin1String(each.name)) {
            return each.key;
        }
    }
    const int combined = nbQt::firstKey(QKeySequence(name, QKeySequence::PortableText));
    modifiers |= Qt::KeyboardModifiers(combined & static_cast<int>(Qt::KeyboardModifierMask));
    return combined & ~static_cast<int>(Qt::KeyboardModifierMask);
}

/// The text that the window system gives a key's events; of letters the small one.
QString textOfKey(int key)
{
    constexpr std::pair<int, char> kControls[] = { { Qt::Key_Return, '\r' },
                                                   { Qt::Key_Tab, '\t' },
                                                   { Qt::Key_Backspace, '\b' },
                                                   { Qt::Key_Escape, 27 } };
    for (const auto& [control, text] : kControls) {
        if (key == control) {
            return QString(QLatin1Char(text));
        }
    }
    return key < Qt::Key_Escape ? QString(QChar(key).toLower()) : QString();
}

Qt::KeyboardModifier modifierOfKey(int key)
{
    for (const ModifierKey& each : kModifierKeys) {
        if (key == each.key) {
            return each.flag;
        }
    }
    return Qt::NoModifier;
}

}  // namespace

SessionPlayer::SessionPlayer(ViewWidget& targetView, QWidget& targetWindow, QObject* parent)
    : QObject(parent)
    , view(targetView)
    , window(targetWindow)
{ }

void SessionPlayer::start(const Session& newSession, Pace newPace,
                          const std::optional<QDir>& folder)
{
    session = newSession;
    view.stage().commands().setFolder(session.folder.isEmpty() ? QDir() : QDir(session.folder));
    view.stage().commands().setOutputFolder(folder.value_or(QDir()));
    pace = newPace;
    pictureFolder = folder;
    nextStep = 0;
    failures.clear();
    heldButtons = Qt::NoButton;
    heldModifiers = Qt::NoModifier;
    playing = true;
    view.setExact(true);
    paused = false;
    isStepHeld = false;
    setCaption({}, {});
    ++generation;
    scheduleNext();
}

void SessionPlayer::stop()
{
    if (!playing) {
        return;
    }
    playing = false;
    view.setExact(false);
    paused = false;
    ++generation;
    setCaption({}, {});
    for (const Qt::MouseButton button : { Qt::LeftButton, Qt::MiddleButton, Qt::RightButton }) {
        if (heldButtons.testFlag(button)) {
            heldButtons.setFlag(button, false);
            sendMouse(QEvent::MouseButtonRelease, button, heldModifiers);
        }
    }
    emit finished();
}

void SessionPlayer::setPaused(bool on)
{
    paused = on && playing;
    if (!paused && isStepHeld) {
        isStepHeld = false;
        playNext();
    }
}

void SessionPlayer::setCaption(const QString& title, const QString& text)
{
    captionTitle = title;
    captionText = text;
    if (captionsShown) {
        view.setCaption(title, text);
    }
}

void SessionPlayer::scheduleNext()
{
    const bool isTimed = pace == Pace::AsRecorded && nextStep < session.steps.size();
    const bool isToBeRead = isTimed && nextStep > 0 &&
        session.steps[nextStep - 1].type == Type::Caption && !captionTitle.isEmpty();
    const int readingMs = isToBeRead ? kReadingMs + kReadingMsPerLetter * captionText.size() : 0;
    const int pauseMs = isTimed ? qMax(session.steps[nextStep].afterMs, readingMs) : 0;
    QTimer::singleShot(pauseMs, this, [this, scheduled = generation] {
        if (scheduled == generation) {
            playNext();
        }
    });
}

void SessionPlayer::playNext()
{
    if (paused) {
        isStepHeld = true;
        return;
    }
    if (nextStep >= session.steps.size()) {
        stop();
        return;
    }
    const SessionStep step = session.steps[nextStep];
    QString error;
    if (!play(step, error)) {
        failures.append(QStringLiteral("steps[%1]: %2").arg(nextStep).arg(error));
        stop();
        return;
    }
    ++nextStep;
    scheduleNext();
}

bool SessionPlayer::play(const SessionStep& step, QString& error)
{
    switch (step.type) {
    case Type::Key:
    case Type::KeyPress:
    case Type::KeyRelease:
        return playKey(step, error);
    case Type::Command:
        return view.stage().commands().run(step.name, step.value, error);
    case Type::Caption:
        setCaption(step.name, step.text);
        return true;
    case Type::Checkpoint:
        return playCheckpoint(step, error);
    case Type::Leave: {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&view, &leave);
        return true;
    }
    default:
        return playPointer(step, error);
    }
}

bool SessionPlayer::playPointer(const SessionStep& step, QString& error)
{
    osg::Pnt2f px;
    if (!resolveTarget(step.at, view.stage(), px, error)) {
        return false;
    }
    const QPointF target = view.toLogical(px);
    const Qt::KeyboardModifiers modifiers = modifiersOf(step);
    // A real pointer never presses where it has not moved to.
    if (step.type == Type::Move || target != position) {
        position = target;
        sendMouse(QEvent::MouseMove, Qt::NoButton, modifiers);
    }
    if (step.type == Type::Press || step.type == Type::Click || step.type == Type::DoubleClick) {
        heldButtons.setFlag(step.button, true);
        sendMouse(step.type == Type::DoubleClick ? QEvent::MouseButtonDblClick
                                                 : QEvent::MouseButtonPress,
                  step.button, modifiers);
    }
    if (step.type == Type::Release || step.type == Type::Click || step.type == Type::DoubleClick) {
        heldButtons.setFlag(step.button, false);
        sendMouse(QEvent::MouseButtonRelease, step.button, modifiers);
    }
    if (step.type == Type::Wheel) {
        QWheelEvent event(position, view.mapToGlobal(QPoint(0, 0)) + position, QPoint(),
                          QPoint(0, step.wheelDelta), heldButtons, modifiers, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(&view, &event);
    }
    return true;
}

void SessionPlayer::sendMouse(QEvent::Type type, Qt::MouseButton button,
                              Qt::KeyboardModifiers modifiers)
{
    const QPointF inWindow = view.mapTo(view.window(), QPoint(0, 0)) + position;
    const QPointF onScreen = view.mapToGlobal(QPoint(0, 0)) + position;
    QMouseEvent event(type, position, inWindow, onScreen, button, heldButtons, modifiers);
    QCoreApplication::sendEvent(&view, &event);
}

bool SessionPlayer::playKey(const SessionStep& step, QString& error)
{
    Qt::KeyboardModifiers modifiers = modifiersOf(step);
    const int key = keyOf(step.key, modifiers);
    QAction* const action = step.type != Type::KeyRelease ? findShortcut(key, modifiers) : nullptr;
    if (action != nullptr && action->property(kUnplayedProperty).toBool()) {
        // It would wait for ever where nobody answers, or leave out the checkpoints to come.
        error = QStringLiteral("the key \"%1\" cannot be played").arg(step.key);
        return false;
    }
    const Qt::KeyboardModifiers before = heldModifiers;
    heldModifiers = modifiers;
    if (action != nullptr) {
        action->trigger();
    } else if (step.type != Type::KeyRelease) {
        sendKey(QEvent::KeyPress, key);
    }
    if (step.type != Type::KeyPress) {
        sendKey(QEvent::KeyRelease, key);
    }
    // Modifiers of a step end with it; only a modifier key of its own is held on.
    heldModifiers = before;
    if (step.type != Type::Key) {
        heldModifiers.setFlag(modifierOfKey(key), step.type == Type::KeyPress);
    }
    return true;
}

void SessionPlayer::sendKey(QEvent::Type type, int key)
{
    // As in events from the window system, a modifier key's own flag is set from its press on.
    Qt::KeyboardModifiers modifiers = heldModifiers;
    modifiers.setFlag(modifierOfKey(key), type == QEvent::KeyPress);
    QKeyEvent event(type, key, modifiers, textOfKey(key));
    QCoreApplication::sendEvent(&view, &event);
}

/// Does what the window system's way of a key does first: asks the view, then looks for a shortcut.
/// @return null if the view wants the key itself, or no action has it
QAction* SessionPlayer::findShortcut(int key, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent ask(QEvent::ShortcutOverride, key, modifiers, textOfKey(key));
    ask.ignore();
    QCoreApplication::sendEvent(&view, &ask);
    if (ask.isAccepted()) {
        return nullptr;
    }
    const QKeySequence pressed(key | static_cast<int>(modifiers));
    for (QAction* action : window.findChildren<QAction*>()) {
        if (action->isEnabled() && action->shortcuts().contains(pressed)) {
            return action;
        }
    }
    return nullptr;
}

bool SessionPlayer::playCheckpoint(const SessionStep& step, QString& error)
{
    failures.append(findFailures(step, view.stage()));
    if (!step.screenshot || !pictureFolder) {
        return true;
    }
    const QString path =
        view.stage().commands().outputPath(step.name + QStringLiteral(".png"), ".png", error);
    const QImage picture = path.isEmpty() ? QImage() : view.takePicture(error);
    if (picture.isNull() || !writePicture(path, picture, error)) {
        return false;
    }
    emit pictureWritten(path);
    return true;
}

}  // namespace viewer
