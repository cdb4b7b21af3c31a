// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/TriplanarTextureManipulator.h"
#include "manipulator/detail/AnchoredGizmo.h"
#include "manipulator/detail/DragGeometry.h"
#include "manipulator/detail/DragPlane.h"
#include "manipulator/detail/TextureDragMath.h"

namespace nbec::manipulator::detail {

/// Handles and drags of the triplanar gizmo.
class TriplanarGizmo : public AnchoredGizmo
{
public:
    using Mode = TriplanarTextureManipulator::ManipulatorMode;
    using Active = TriplanarTextureManipulator::ActiveMode;

    TriplanarGizmo();
    std::unique_ptr<AnchoredGizmo> clone() const override;

    bool areRingsTilted = false;

protected:
    void placeHandles(const osg::Matrix& worldFromAnchor) override;
    bool prepare(const nbOSGWidget& widget) override;
    void step(const nbOSGWidget& widget) override;

private:
    bool isRing() const;
    /// Axis of the active handle, 0 .. 2; 3 for the uniform one.
    osg::UInt32 axis() const;
    void readValues();
    void updatePlane(const nbOSGWidget& widget);
    RingFrame tiltedRing() const;
    void translate(const osg::Pnt3f& place);
    void rotate(const osg::Pnt3f& place);
    void scale(const osg::Pnt3f& place);
    void sendChange(nbMessage& message);

    DragPlane dragPlane;
    osg::Matrix frameMatrix;  ///< world from frame at the drag's start
    osg::Matrix inverseFrameMatrix;  ///< of the frame, or of the tilted ring
    osg::Pnt3f dragStartLocal;  ///< in the frame that inverseFrameMatrix maps to
    osg::Vec3f startRotation;
    TriplanarPairs offsets;
    TriplanarPairs scales;
    osg::Vec3f newRotation;
};

}  // namespace nbec::manipulator::detail
