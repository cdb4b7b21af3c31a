// SPDX-License-Identifier: MIT
#pragma once

#include "tests/manipulator/support/TextureScene.h"

namespace nbec::manipulator::test {

inline constexpr float kSin45 = 0.70710678F;

/// A gizmo on a tire of radius 2 and height 3 around (0.5, 0, 0), a quarter of which has the
/// picture.
struct TireScene : TextureSceneOf<TireProjectionManipulator>
{
    TireScene()
    {
        editSettings([](const auto& values) {
            values->setTireCenter(Vec3f(0.5F, 0, 0));
            values->setTireScaleRadius(2);
            values->setTireScaleHeight(3);
            values->setTireScaleU(0.25F);
        });
    }

    /// World position of a place from the centre, in the object's space.
    Pnt3f inWorld(const Vec3f& fromCenter) const
    {
        Pnt3f point(settings->getTireCenter() + fromCenter);
        scene.node->getToWorld().multMatrixPnt(point);
        return point;
    }
};

}  // namespace nbec::manipulator::test
