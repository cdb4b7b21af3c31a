// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/UVTextureManipulator.h"
#include "manipulator/detail/AnchoredGizmo.h"

#include <OpenSG/OSGVector.h>

namespace nbec::manipulator::detail {

/// Handles and drags of the UV gizmo.
class UVGizmo : public AnchoredGizmo
{
public:
    using Mode = UVTextureManipulator::ManipulatorMode;
    using Active = UVTextureManipulator::ActiveMode;

    UVGizmo();
    std::unique_ptr<AnchoredGizmo> clone() const override;

    bool keepAspectRatio = false;
    float aspectRatio = 1.0F;

protected:
    void placeHandles(const osg::Matrix& worldFromAnchor) override;
    bool prepare(const nbOSGWidget& widget) override;
    void step(const nbOSGWidget& widget) override;

    bool needsMaterial() const override { return false; }

    bool isElseChanged() const override;

private:
    void readValues();
    void translate(const osg::Vec2f& pointer);
    void rotate(const osg::Vec2f& pointer);
    void scale(const osg::Vec2f& pointer);

    osg::Pnt3f seenAt;  ///< where the camera looked at the last placement
    osg::Vec3f seenUp;  ///< of the camera at the last placement
    float startRotate = 0.0F;  ///< degrees
    float newRotate = 0.0F;  ///< degrees
    osg::Vec2f startScale;
    osg::Vec2f startOffset;
    osg::Vec2f dragStartPixel;  ///< y from the bottom
    osg::Vec2f anchorPixel;  ///< y from the bottom
};

}  // namespace nbec::manipulator::detail
