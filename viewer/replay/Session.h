// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberCamera/nbCameraNavigation.h>

#include <QJsonObject>
#include <QJsonValue>
#include <QPointF>
#include <QSize>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <vector>

namespace viewer {

/// Smallest and largest edge of the 3D view that a person may ask for, device pixels.
constexpr int kMinViewEdgePx = 16;
constexpr int kMaxViewEdgePx = 8192;

/// A place in the 3D view: a pixel, or something that is looked up when the step is played.
struct SessionTarget
{
    enum class Kind
    {
        Pixel,  ///< `offsetPx` itself, from the view's upper left corner
        Handle,  ///< a visible place of the gizmo handle of that name, plus `offsetPx`
        World,  ///< the projection of `world`, plus `offsetPx`
        Pointer,  ///< where the pointer is, plus `offsetPx`
        Node,  ///< the projected centre of the bounds of the scene node of that name, plus
               ///< `offsetPx`
    };

    Kind kind = Kind::Pixel;
    QString name;
    osg::Pnt3f world { 0.0F, 0.0F, 0.0F };  ///< world space
    QPointF offsetPx;  ///< device pixels, y down
};

/// Values that a scene node is to have at a checkpoint; an absent one demands nothing.
struct SessionNodeExpectation
{
    static constexpr double kDefaultTolerance = 1e-4;

    QString node;  ///< name of the object
    std::optional<std::array<double, 3>> translation;  ///< in the parent's frame
    std::optional<std::array<double, 3>> rotationDeg;
    std::optional<std::array<double, 3>> scale;
    double tolerance = kDefaultTolerance;  ///< of each number
};

/// What a checkpoint demands; an absent value demands nothing.
struct SessionExpectation
{
    static constexpr double kUsualTolerance = 1e-4;

    std::optional<QString> hover;  ///< name of the handle under the pointer, "" for none
    std::optional<QString> selection;  ///< name of the selected node, "" for none
    std::optional<bool> orthographic;
    std::optional<int> undoSteps;  ///< how many steps can be taken back
    std::vector<SessionNodeExpectation> nodes;
    QJsonObject values;  ///< of Commands by their names
    double tolerance = kUsualTolerance;  ///< of each number in `values`
};

/// One event of a session.
struct SessionStep
{
    enum class Type
    {
        Move,
        Press,
        Release,
        Click,  ///< press and release at one place
        DoubleClick,
        Wheel,
        Leave,  ///< the pointer leaves the view
        Key,  ///< press and release of a key
        KeyPress,
        KeyRelease,
        Command,  ///< one of Commands
        Caption,  ///< a text over the view from now on; without a title none
        Checkpoint,
    };

    Type type = Type::Move;
    SessionTarget at;
    Qt::MouseButton button = Qt::LeftButton;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    int wheelDelta = 0;  ///< eighths of a degree, positive away from the person
    QString key;  ///< portable name such as "5", "Esc" or "F"
    int afterMs = 0;  ///< pause before the step when a session is shown to a person
    QString name;  ///< of a checkpoint or a command; title of a caption
    QString text;  ///< of a caption: what is being shown
    QJsonValue value;  ///< for a command
    bool screenshot = false;
    SessionExpectation expectation;
};

/// A key that is a modifier, by the name that it has in a session file.
struct ModifierKey
{
    const char* name;
    int key;
    Qt::KeyboardModifier flag;
};

constexpr ModifierKey kModifierKeys[] = { { "Ctrl", Qt::Key_Control, Qt::ControlModifier },
                                          { "Shift", Qt::Key_Shift, Qt::ShiftModifier },
                                          { "Alt", Qt::Key_Alt, Qt::AltModifier } };

/// A series of events with everything that makes its replay give the same
/// picture.
struct Session
{
    static constexpr int kDefaultWidthPx = 1200;
    static constexpr int kDefaultHeightPx = 800;

    QSize sizePx { kDefaultWidthPx, kDefaultHeightPx };  ///< of the 3D view, device pixels
    bool areFilesChosen = false;  ///< by the command line, instead of the session's own
    QStringList files;  ///< models to open, relative to the session file; empty: the start scene
    std::optional<CameraPose> camera;  ///< absent: the camera that the scene starts with
    std::optional<QString>
        selection;  ///< name of the node selected at the start, "" for none; absent: as it starts
    QString manipulator;  ///< command name of the manipulator or tool at the start; empty: as it
                          ///< starts
    QString folder;  ///< absolute, of the file read; files named in commands are found from there
    std::vector<SessionStep> steps;
};

/// Reads a session from JSON text.
/// @param error  one line that says what is wrong and where ("line 3, column 7: ..." or
/// "steps[4].at: ...")
/// @return nothing when the text is no valid session
std::optional<Session> parseSession(const QByteArray& text, QString& error);

/// Reads a place in the view, as steps have it, out of the value of a command.
/// @param path  of the value, for the line in `error`
bool readSessionTarget(const QJsonValue& value, const QString& path, SessionTarget& target,
                       QString& error);

/// Reads a session file; paths of models become absolute.
/// @param error  one line that begins with the file's name
std::optional<Session> readSessionFile(const QString& path, QString& error);

}  // namespace viewer
