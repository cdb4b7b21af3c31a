// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/plates/PlateContexts.h"
#include "viewer/stage/StageTool.h"

#include <nbInteraction/Picker.h>
#include <nbOpenSGSceneplate/Sceneplate.h>
#include <nbSceneplateModule/nbSceneplateModule.h>

#include <OpenSG/OSGRefPtr.h>

#include <QString>

#include <optional>
#include <string>
#include <vector>

#include <manipulator/nbSceneplateManipulator.h>
#include <manipulator/nbSceneplatePickTool.h>

namespace viewer {

class Stage;

/// A plate that is to be added.
struct NewPlate
{
    osg::RefPtr<osg::ImagePtr> image;  ///< null: a plate of plain colour
    osg::Color4f color { 1.0F, 1.0F, 1.0F, 1.0F };
    osg::Vec2f sizePx;  ///< in the present view
    std::string name;  ///< a number is added if another plate has it
    bool front = true;
    osg::Int32 anchor = osg::Sceneplate::Centre;
    /// From the anchor; absent: mid-view.
    std::optional<osg::Vec2f> position;
};

/// Scene plates in the viewer: titles, logos and overlays that a person adds, selects by click or
/// rectangle and edits by their handles while this tool is active.
///
/// Plates keep their place relative to the window: a plate is anchored to one of nine places of the
/// view, and its distance from there and its size are in heights of the view. One that is dropped
/// on the view is anchored to the place that is nearest to it, others to the centre unless told.
/// The selection of plates is remembered, without outlines, while the tool is not active. A person
/// deletes plates, and everything else is done, by the commands of PlateCommands.h.
class PlatesTool : public StageTool
{
public:
    /// Adds itself and its commands to the stage. @param targetStage  outlives this
    explicit PlatesTool(Stage& targetStage);
    /// Removes the plates.
    ~PlatesTool() override;

    const char* name() const override { return "plates"; }

    void activate() override;
    void deactivate() override;

    bool isActive() const { return active; }

    void sceneCleared() final;
    void update() override;

    osg::NodePtr handles() override;
    std::string hoveredHandle() override;
    std::string handleAt(const osg::Pnt2f& px) override;
    /// "plate:NAME": a pixel at which that plate is hit.
    bool findHandle(const std::string& handle, osg::Pnt2f& px) override;
    HandleAction actionOf(const std::string& handle) const override;
    QString handleText(const std::string& handle) const override;
    /// The anchor of what is dragged.
    std::vector<Label> labels() const override;
    /// Moves the selected plates by a pixel.
    bool nudge(const QPoint& way, bool coarse) override;
    QString selectionText() const override;

    /// A picture dropped while the tool is active becomes a plate there.
    bool takePicture(const QString& file, const osg::Pnt2f& px, QString& error) override;

    // == Plates

    /// All plates, the foremost first.
    static std::vector<osg::NodePtr> all();
    /// @return the plate of that name; null if there is none
    static osg::NodePtr plateByName(const std::string& wanted);
    /// The name itself if no plate has it, else such as "Title 2".
    static std::string unusedName(const std::string& wanted);

    /// The selected plates.
    std::vector<osg::NodePtr> selected() const { return module.getSelection(); }

    /// Whether any is selected. @return false with one line in `error`
    bool hasSelection(QString& error) const;
    /// Selects plates and, if there are any, becomes the active tool.
    void select(const std::vector<osg::NodePtr>& nodes);
    /// Name of the plate under the pointer; "" for none.
    std::string preselectedName() const;

    /// Adds a plate before all others of its side and selects it.
    void add(const NewPlate& wanted);
    /// The same of a picture as large as it is, at most half the view.
    /// @param wanted  its image is not null, its size does not count
    void addPicture(NewPlate wanted);

private:
    Stage& stage;
    nbSceneplateModule module;
    nbNodeSet remembered;  ///< selection while not active
    nbec::interaction::Picker platePicker;
    nbec::interaction::Picker handlePicker;
    nbec::interaction::Picker probe;  ///< asks without touching what the others remember
    nbSceneplatePickTool pickTool;
    nbSceneplateManipulator manipulator;
    PlatePickContext pickContext;
    PlateDragContext dragContext;
    bool active = false;
};

}  // namespace viewer
