// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/Gizmo.h"
#include "manipulator/plates/PlateFrame.h"
#include "manipulator/plates/PlateModes.h"

#include <functional>
#include <vector>

namespace nbec::manipulator::plates {

/// Told of the factors of a plate's width and height, and of the offset of its centre.
using PlateResize = std::function<void(const osg::Vec2f& factors, const osg::Vec2f& offset)>;

/// Course of the scene-plate gizmo, whose drags go out as "sceneplateChanged". See
/// nbSceneplateManipulator, its face.
class PlateGizmo : public Gizmo
{
public:
    /// @param size  outlives the gizmo
    explicit PlateGizmo(const float& size);

    /// See nbSceneplateManipulator::setNodes().
    void setNodes(const std::vector<osg::NodePtr>& nodes);
    /// See nbSceneplateManipulator::setSideHandles().
    void setResize(PlateResize function);
    std::vector<osg::NodePtr> getNodes() const;

    /// Handles are shown and hit only while the gizmo is in use.
    void setInUse(bool on) { isInUse = on; }

    /// Also in a drag, of which it changes nothing.
    void showActive() override { placeIn(View()); }

    bool precisionActive = false;
    bool snappingEnabled = false;
    bool snapsToPlates = false;
    bool descriptionEnabled = true;

protected:
    bool hasTarget() const override { return isInUse && !getNodes().empty(); }

    bool canStep(const View& view) override;
    bool prepare(const View& view) override;
    DragStep parametersAt(const View& view, const DragTrack& before) const override;
    void apply(const DragParameters& parameters) override;

    std::vector<osg::NodePtr> editedNodes() const override { return getNodes(); }

    /// The preview's pause ends with every drag, also if no plate is left.
    void finish() override { previewPause.end(); }

    void place(const View& view) override;
    osg::Pnt3f centreOfDrag() const override;

    /// The camera, the view's size and every field of a plate count: placing is as quick as asking.
    bool isDisplaced(const View& /*view*/) const override { return true; }

    float placementNumber() const override { return unitPx(); }

    std::optional<QString> describe() const override;

    const char* notifier() const override { return "sceneplateInfo"; }

private:
    /// What a drag knows of its start, and how far it has come.
    struct Drag
    {
        PlateFrame start;
        osg::Pnt2f pressedPx;
        PlateStance stance;
        PlateView view;
        bool isBroken = false;  ///< other plates were set
        PlateChange change;  ///< sent last
        PlateGuides guides;
    };

    ActiveMode handle() const { return static_cast<ActiveMode>(getArmed()); }

    /// Place of the armed box.
    std::size_t box() const;

    bool isSnapping() const { return precisionActive || snappingEnabled; }

    float unitPx() const;
    bool isDragged(const View& view) const;

    std::vector<osg::SceneplatePtr> getPlates() const;
    PlateNeighbours findNeighbours() const;
    PlateChange changeOf(const DragParameters& parameters, PlateGuides& guides) const;
    void put(std::size_t row, const osg::Pnt2f& centrePx, float rotation, const osg::Vec2f& size,
             float layer) const;
    void placeHandles(const PlateHandles& layout) const;
    void placeGuides(const PlateView& view, const PlateGuides& guides) const;

    void showBoxes();
    void send(const PlateChange& change) const;

    std::vector<osg::UInt32> nodeIds;
    PlateResize resize;
    bool isInUse = false;
    Drag drag;
};

}  // namespace nbec::manipulator::plates
