// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/match/MatchPhotograph.h"
#include "viewer/stage/DragContext.h"
#include "viewer/stage/StageTool.h"

#include <nbInteraction/Picker.h>
#include <nbKernelServices/nbdCameraNode.h>

#include <QObject>

#include <array>
#include <functional>
#include <string>

#include <manipulator/PerspectiveMatchManipulator.h>

namespace viewer {

class Stage;

/// Matches the camera with a photograph behind the scene: the photograph, the six lines that are
/// laid over its edges while this is active, and their settings.
///
/// A photograph stays while other tools are active, so that models can be moved in front of it. The
/// first time that this is active in a scene the lines are laid as the camera sees a box at its
/// pivot. They keep their place on the photograph when the view gets another shape. With another
/// scene everything is as at the start.
///
/// Handles are named after their lines, "x1" to "z2", and the ends of these "x1a" and "x1b".
class PerspectiveMatchTool : public StageTool
{
public:
    static constexpr double kUsualVeil = 0.4;
    static constexpr int kLineCount = nbdPerspectiveMatch::kLineCount;

    /// @param targetStage  where this is added as a tool; outlives this
    explicit PerspectiveMatchTool(Stage& targetStage);
    ~PerspectiveMatchTool() override;

    /// The camera of the stage's view.
    nbdCameraNode camera() const;

    // == The photograph

    MatchPhotograph& photograph() { return behind; }

    const MatchPhotograph& photograph() const { return behind; }

    /// Lets the photograph be as wide as the view, or as high, as one step: the lines and what the
    /// camera shows keep their places on it.
    /// @return false with one line in `error` if there is none or the camera is locked
    bool fitPhotograph(bool byWidth, QString& error);

    /// How much the photograph also covers the models while this is active, so that its edges are
    /// seen through them.
    double veil() const { return photographVeil; }

    /// @param opacity  0 .. 1
    void setVeil(double opacity);

    // == The lines

    bool isActive() const { return active; }

    bool areLinesShown() const { return linesShown; }

    void showLines(bool on);

    /// Whether the lines have been laid in this scene.
    bool areLinesLaid() const { return linesLaid; }

    void setLinesLaid(bool laid) { linesLaid = laid; }

    /// Lays the lines as the camera sees a box at its pivot, as one step.
    /// @return false with one line in `error` if the camera is locked
    bool layLines(QString& error);

    /// Edits the match as one step, and then has the camera follow the lines.
    /// @return false with one line in `error` if the camera is locked
    bool edit(const std::function<void(const nbdPerspectiveMatch&)>& change, QString& error);

    /// Sets how many times the magnifier enlarges, as one step; the camera stays.
    /// @return false with one line in `error` if the camera is locked
    bool setMagnifyFactor(float factor, QString& error);

    /// Word of a line, "x1" to "z2".
    static const char* lineName(int line);
    /// @return -1 for an unknown word
    static int lineByName(const QString& word);

    /// Gives the lines of two axes to each other, see nbdCameraNode::turnMatch(), as one step.
    bool turn(int axis, QString& error);

    /// Moves the camera so that a line begins at the world's origin and is so long, as one step.
    bool placeByLine(int line, double length, QString& error);

    /// Fixes the field of view at that of a lens, as one step.
    /// @param focalLength, sensorWidth  same unit, > 0; the sensor is as wide as the photograph, or
    ///                                  without one as the view
    bool setLens(double focalLength, double sensorWidth, QString& error);

    /// Whether dragged lines go to edges of the photograph within 6 pixels; not while Alt is held.
    bool snapsToEdges() const { return edgeSnapping; }

    void setSnapsToEdges(bool on) { edgeSnapping = on; }

    // == As a tool of the stage

    const char* name() const override { return "match"; }

    void activate() override;
    void deactivate() override;
    void sceneCleared() final;
    void update() override;
    osg::NodePtr handles() override;
    std::string hoveredHandle() override;
    bool findHandle(const std::string& handle, osg::Pnt2f& px) override;
    HandleAction actionOf(const std::string& handle) const override;
    QString handleText(const std::string& handle) const override;
    std::vector<Label> labels() const override;
    /// Moves the end, or line, that was held or under the pointer last by 0.1 pixels.
    bool nudge(const QPoint& way, bool coarse) override;
    /// Takes a picture that is dropped while this is active as the photograph.
    bool takePicture(const QString& file, const osg::Pnt2f& px, QString& error) override;

private:
    void follow(const nbdObject& object, const QByteArray& property);
    void takePointer();
    void leavePointer();
    /// Edits the camera or its match as one step. @return false, with one line in `error` if the
    /// camera is locked, or what the edit answered
    bool asStep(const QString& title, QString& error, const std::function<bool()>& change);
    /// Device pixels of a line's middle or end.
    osg::Pnt2f placeOf(int index, osg::UInt32 part) const;

    Stage& stage;
    MatchPhotograph behind;
    nbec::interaction::Picker picker;
    nbec::manipulator::PerspectiveMatchManipulator manipulator;
    DragContext context;
    QObject listener;
    double photographVeil = kUsualVeil;
    bool active = false;
    bool linesShown = true;
    bool linesLaid = false;
    bool cameraMoved = false;
    bool cameraTurned = false;
    CameraPose resting;  ///< of the camera when nothing was dragged last
    CameraPose unheld;  ///< the last one before a match held the view
    bool edgeSnapping = false;
    std::string lastHandle;
};

}  // namespace viewer
