// SPDX-License-Identifier: MIT
#include "viewer/textures/ProjectionPose.h"

#include <gtest/gtest.h>

namespace viewer {
namespace {

constexpr float kTolerance = 1e-5F;

osg::Vec3f turned(const osg::Quaternion& rotation, const osg::Vec3f& vector)
{
    osg::Vec3f result;
    rotation.multVec(vector, result);
    return result;
}

void expectNear(const osg::Vec3f& found, const osg::Vec3f& expected, const char* what)
{
    EXPECT_TRUE(found.equals(expected, kTolerance)) << what << ": " << found;
}

TEST(ProjectionPose, ANewPictureLiesUprightOnTheSideThatFacesTheEye)
{
    struct Row
    {
        const char* name;
        osg::Vec3f toEye;
        osg::Vec3f up;
        osg::Vec3f place;
        osg::Vec3f y;
        osg::Vec3f scale;  ///< for a square picture over half of the side
    };

    // A box of 4 x 2 x 6 about (1, 0, 0).
    // clang-format off
    const Row rows[] = {
        { "front", { 0.2F, 0.3F, 2.0F }, { 0, 1, -0.2F }, { 1, 0, 3 }, { 0, 1, 0 }, { 0.5F, 0.5F, 3 } },
        { "back", { 0, 0, -1 }, { 0, 1, 0 }, { 1, 0, -3 }, { 0, 1, 0 }, { 0.5F, 0.5F, 3 } },
        { "left", { -3, 1, 1 }, { 0, 1, 0 }, { -1, 0, 0 }, { 0, 1, 0 }, { 0.5F, 0.5F, 2 } },
        { "above", { 0, 1, 0 }, { 0, 0, -1 }, { 1, 1, 0 }, { 0, 0, -1 }, { 1, 1, 1 } },
        { "upside down", { 0, 0, 1 }, { 0, -1, 0 }, { 1, 0, 3 }, { 0, -1, 0 }, { 0.5F, 0.5F, 3 } },
    };
    // clang-format on
    osg::BoxVolume box;
    box.setBounds(osg::Pnt3f(-1, -1, -3), osg::Pnt3f(3, 1, 3));
    for (const Row& row : rows) {
        const ProjectionPose pose = poseOnFront(box, row.toEye, row.up, 1.0F, 0.5F);
        expectNear(pose.translation, row.place, row.name);
        expectNear(turned(pose.rotation, { 0, 1, 0 }), row.y, row.name);
        expectNear(pose.scale, row.scale, row.name);
        EXPECT_GT(turned(pose.rotation, { 0, 0, 1 }).dot(row.toEye), 0.0F) << row.name;
    }
}

}  // namespace
}  // namespace viewer
