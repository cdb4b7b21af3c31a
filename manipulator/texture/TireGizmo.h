// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/RingDrag.h"
#include "manipulator/texture/AnchoredGizmo.h"
#include "manipulator/texture/TextureModes.h"

#include <nbKernel/nbController.h>

namespace nbec::manipulator::texture {

/// A tire projection in the space of its object, axle along x.
struct TireValues
{
    osg::Vec3f center;
    float scaleU = 1.0F;  ///< part of the circumference
    float height = 1.0F;
    float radius = 1.0F;
};

/// Handles and drags of the tire gizmo. Parameters of a drag: how far the centre goes along the
/// axis, units of the object; the height or radius as it becomes; the part of the circumference as
/// it becomes.
class TireGizmo : public AnchoredGizmo
{
public:
    explicit TireGizmo(const float& size);

    std::unique_ptr<TextureGizmo> clone() const override
    {
        return std::make_unique<TireGizmo>(*this);
    }

protected:
    bool capture(const View& view) override;
    DragStep parametersAt(const View& view, const DragTrack& before) const override;
    DragParameters startParameters() const override;
    void apply(const DragParameters& parameters) override;

    void announce() override { nbController::setModified(1); }

    void finish() override;
    void placeHandles(const View& view, const osg::Matrix& worldFromAnchor) override;
    std::optional<QString> describe() const override;

    const char* notifier() const override { return "tireTransformInfo"; }

private:
    TireHandle handle() const { return static_cast<TireHandle>(getArmed()); }

    /// Whether the centre is dragged.
    bool isShift() const { return handle() <= TireHandle::TranslateZ; }

    TireValues readValues() const;
    osg::Vec3f chooseDirection() const;
    double angleAt(const osg::Pnt3f& world) const;
    void choosePlane(const View& view, const osg::Matrix& worldFromObject);

    osg::Vec3f sentCenter() const { return start.center + sent.vec3(); }

    TireValues start;
    bool wasFitted = false;  ///< the setting "autoParameter" at the start
    osg::Matrix objectFromWorld;  ///< at the drag's start
    osg::Vec3f direction;  ///< unit vector that a linear drag goes along, object space
    RingDrag path;  ///< a ring about the axle for the part of the circumference
    DragParameters sent;  ///< by the last step
};

}  // namespace nbec::manipulator::texture
