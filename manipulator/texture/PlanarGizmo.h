// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/Gizmo.h"
#include "manipulator/texture/MaterialComponent.h"
#include "manipulator/texture/PlanarDrag.h"
#include "manipulator/texture/PlanarModes.h"

#include <string>

class nbMessage;

namespace nbec::manipulator::texture {

/// Settings of one planar gizmo; see PlanarTextureManipulator.
struct PlanarSettings
{
    bool keepAspectRatio = false;
    bool useTextureScale = false;
    bool useObjectScale = false;
    bool useObjectTranslation = false;
    bool applyRotationToTranslation = false;
    float aspectRatio = 1.0F;
};

/// Course of the planar gizmo, whose face is PlanarTextureManipulator.
class PlanarGizmo : public Gizmo
{
public:
    /// @param size  see Gizmo
    PlanarGizmo(bool withDepthPass, const float& size);
    PlanarGizmo(const PlanarGizmo&) = default;

    /// Binds to an object, or null, and prepares for it; a drag goes on with the new one.
    void setNode(const osg::NodePtr& node);
    /// Reads the projection and its settings and pauses the preview. Nothing for null.
    void prepareManipulator(const osg::NodePtr& node);
    /// Sets both pivots of the object to the projection's centre.
    bool centerPivot();
    /// Chooses the plane of the drag anew.
    void updateManipulatorPlane();

    // == Handles shown

    void setDefaultMaterials();
    void highlightMode();
    void highlightControlElement();
    void showAllElements();
    void hideAllElements();
    void setZScaleVisible(bool on);
    void showZScaleValue(bool on);

    PlanarActiveMode getActiveMode() const { return static_cast<PlanarActiveMode>(getArmed()); }

    // == Fields

    MaterialComponent component;
    std::string messageReceiver;
    PlanarSettings settings;
    osg::Vec3f initialTextureScale { 1.0F, 1.0F, 1.0F };
    osg::Vec2f projectionSize;

protected:
    bool hasTarget() const override;
    bool canStep(const View& view) override;
    bool prepare(const View& view) override;
    DragStep parametersAt(const View& view, const DragTrack& before) const override;
    void apply(const DragParameters& parameters) override;
    void place(const View& view) override;
    bool isDisplaced(const View& view) const override;
    float placementNumber() const override;
    std::optional<QString> describe() const override;
    ValueText* getText() const override;

private:
    osg::NodePtr getNode() const;
    void readProjection(const osg::NodePtr& node);
    void askScaleValues();
    void capture(const View& view);
    void showElements();
    void placeTabs(const osg::Matrix& worldFromAxes, const osg::Matrix& axes,
                   const osg::Vec3f& scales);
    void setTranslationIn(nbMessage& message, const osg::Vec3f& shift) const;

    osg::UInt32 nodeId = 0;
    bool zScaleVisible = true;
    bool zScaleValueShown = true;
    ProjectionFrame frame;
    ProjectionDrag drag;
    bool isTargetReady = false;  ///< whether the object has been made a transform in this drag
};

}  // namespace nbec::manipulator::texture
