// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/texture/PlanarDrag.h"
#include "manipulator/texture/TextureGizmo.h"

namespace nbec::manipulator::texture {

/// Course of the planar gizmo, whose face is PlanarTextureManipulator.
class PlanarGizmo : public TextureGizmo
{
public:
    /// @param size  see Gizmo
    PlanarGizmo(bool withDepthPass, const float& size);
    PlanarGizmo(const PlanarGizmo&) = default;

    std::unique_ptr<TextureGizmo> clone() const override
    {
        return std::make_unique<PlanarGizmo>(*this);
    }

    void setComponent(const osg::MaterialPtr& material, const std::string& name,
                      nbStateChunkBase* gui) override;
    /// Binds to an object, or null, and prepares for it; a drag goes on with the new one.
    void setNode(const osg::NodePtr& node);
    /// Reads the projection and its settings and pauses the preview. Nothing for null.
    void prepareManipulator(const osg::NodePtr& node);
    /// Sets both pivots of the object to the projection's centre.
    bool centerPivot();
    /// Chooses the plane of the drag anew.
    void updateManipulatorPlane();

    // == Handles shown

    void setDefaultMaterials() { handles.setDefaultMaterials(getMode()); }

    void highlightMode() { handles.light(getArmed(), getMode()); }

    void highlightControlElement();
    void showAll(bool on);
    void setZScaleVisible(bool on);
    void showZScaleValue(bool on);

    PlanarSettings settings;

protected:
    bool hasTarget() const override { return getNode() != osg::NullFC; }

    bool canStep(const View& view) override;
    bool prepare(const View& view) override;
    DragStep parametersAt(const View& view, const DragTrack& before) const override;
    DragParameters startParameters() const override;
    void apply(const DragParameters& parameters) override;

    bool isPictureAt(const SurfacePlace& place) const override;
    osg::Vec3f pictureOffset(const SurfacePlace& from, const SurfacePlace& to) const override;

    std::vector<osg::NodePtr> editedNodes() const override { return { getNode() }; }

    void place(const View& view) override;

    /// The projection may have been edited, which no matrix of the scene tells.
    bool isDisplaced(const View& /*view*/) const override { return true; }

    float placementNumber() const override { return getSize(); }

    std::optional<QString> describe() const override;

    const char* notifier() const override { return "textureTransformInfo"; }

private:
    osg::NodePtr getNode() const { return resolveContainer<osg::NodePtr>(nodeId); }

    void readProjection(const osg::NodePtr& node);
    void askScaleValues();
    osg::Transform3DPtr projection() const;
    void capture(const View& view);
    void capturePicture(const View& view);
    void choosePath(const View& view);
    void showElements();
    void placeRows(const osg::Matrix& worldFromAxes, const osg::Matrix& axes,
                   const osg::Vec3f& scales);
    void setTranslationIn(nbMessage& message, const osg::Vec3f& shift) const;

    osg::UInt32 nodeId = 0;
    bool zScaleVisible = true;
    bool zScaleValueShown = true;
    ProjectionFrame frame;
    ProjectionDrag drag;
    osg::Vec3f pivot;  ///< texel that a turn or scale of the picture keeps, from its centre, along
                       ///< the axes; object units
    RingDrag path;
    bool isTargetReady = false;  ///< whether the object has been made a transform in this drag
};

}  // namespace nbec::manipulator::texture
