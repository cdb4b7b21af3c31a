// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/RingDrag.h"
#include "manipulator/texture/AnchoredGizmo.h"
#include "manipulator/texture/TextureDragMath.h"

#include <nbKernel/nbController.h>

class nbMessage;

namespace nbec::manipulator::texture {

/// Handles and drags of the triplanar gizmo. Parameters of a drag: how far along the axis, frame
/// units; the turn about it, degrees; the factor of the scales.
class TriplanarGizmo : public AnchoredGizmo
{
public:
    explicit TriplanarGizmo(const float& size);

    std::unique_ptr<TextureGizmo> clone() const override
    {
        return std::make_unique<TriplanarGizmo>(*this);
    }

    /// Mode Initial leaves the handles as they are.
    void showActive() override;

protected:
    bool isPictureAt(const SurfacePlace& /*place*/) const override { return true; }

    osg::Vec3f pictureOffset(const SurfacePlace& from, const SurfacePlace& to) const override;

    bool capture(const View& view) override;
    DragStep parametersAt(const View& view, const DragTrack& before) const override;
    void apply(const DragParameters& parameters) override;

    void announce() override { nbController::setModified(1); }

    void placeHandles(const View& view, const osg::Matrix& worldFromAnchor) override;

private:
    /// Axis of the armed handle; kNoAxis for the uniform one.
    osg::UInt32 axis() const { return armedAction().axis(); }

    void readValues();
    void capturePicture(const View& view);
    osg::Quaternion setTurn(nbMessage& message, double turnDeg) const;
    void choosePlane(const View& view, const osg::Matrix& worldFromFrame);

    RingDrag path;
    osg::Matrix frameFromWorld;  ///< at the drag's start
    osg::Vec3f startRotation;
    TriplanarPairs startOffsets;
    TriplanarPairs startScales;
    osg::Quaternion startTurn;
    std::optional<osg::Vec3f> pivot;  ///< place that keeps its texel, from where the picture begins
    osg::UInt32 main = 0;  ///< projection with the greatest weight where the picture was grabbed
};

}  // namespace nbec::manipulator::texture
