// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/TriplanarTextureManipulator.h"
#include "manipulator/detail/AnchoredGizmo.h"
#include "manipulator/detail/TextureDragMath.h"

#include <OpenSG/OSGPlane.h>

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
    void updatePlane();
    void tiltRing(const osg::Pnt3f& grabbed);
    void beginAt(const osg::Pnt3f& hit);
    void translate(const osg::Pnt3f& place);
    void rotate(const osg::Pnt3f& place);
    void scale(const osg::Pnt3f& place);
    void sendChange(nbMessage& message);

    osg::Plane dragPlane;  ///< world
    osg::Matrix frameMatrix;  ///< world from frame at the drag's start
    osg::Matrix inverseFrameMatrix;  ///< of the frame, or of the tilted ring
    bool hasStart = false;  ///< whether a ray has met the plane yet
    osg::Pnt3f dragStartLocal;
    osg::Vec3f startRotation;
    TriplanarPairs offsets;
    TriplanarPairs scales;
    osg::Vec3f newRotation;
};

}  // namespace nbec::manipulator::detail
