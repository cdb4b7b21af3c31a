// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/TireProjectionManipulator.h"
#include "manipulator/detail/AnchoredGizmo.h"
#include "manipulator/detail/DragGeometry.h"
#include "manipulator/detail/DragPlane.h"

namespace nbec::manipulator::detail {

/// A tire projection in the space of its object, axle along x.
struct TireValues
{
    osg::Vec3f center;
    float scaleU = 1.0F;  ///< part of the circumference
    float height = 1.0F;
    float radius = 1.0F;
};

/// Handles and drags of the tire gizmo.
class TireGizmo : public AnchoredGizmo
{
public:
    using Mode = TireProjectionManipulator::ManipulatorMode;
    using Active = TireProjectionManipulator::ActiveMode;

    TireGizmo();
    std::unique_ptr<AnchoredGizmo> clone() const override;

protected:
    void placeHandles(const osg::Matrix& worldFromAnchor) override;
    bool prepare(const nbOSGWidget& widget) override;
    void step(const nbOSGWidget& widget) override;
    void finish() override;

private:
    TireValues readValues() const;
    void chooseDirection();
    void choosePlane(const nbOSGWidget& widget);
    void changeTo(const osg::Pnt3f& hit);

    TireValues start;
    osg::Matrix worldFromObject;  ///< at the drag's start
    osg::Matrix objectFromWorld;
    DragPlane dragPlane;
    osg::Vec3f direction;  ///< unit vector that a linear drag goes along, object space
    RingFrame ring;  ///< of a drag about the axle
    bool hasSent = false;
};

}  // namespace nbec::manipulator::detail
