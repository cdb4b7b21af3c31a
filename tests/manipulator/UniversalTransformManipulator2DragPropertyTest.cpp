// SPDX-License-Identifier: MIT
// What holds for drags of arrows and planes, over random cameras, hierarchies, handles and ways of
// the pointer.
#include "manipulator/drag/DragGeometry.h"
#include "tests/manipulator/support/HandleScene.h"

#include <iterator>
#include <random>

namespace nbec::manipulator::test {

namespace {

using Gizmo = UniversalTransformManipulator2;

constexpr float kPi = 3.14159265F;
constexpr int kRuns = 300;
const char* const kOrders[] = { "xyz", "yzx", "zxy", "xzy", "yxz", "zyx" };

struct Handle
{
    const char* name;
    bool isPlane;
    osg::UInt32 axis;  ///< for planes the one at right angles
    Vec3f grab;
};

const Handle kHandles[] = {
    { "xaShape", false, 0, { 1.9F, 0, 0 } },      { "yaShape", false, 1, { 0, 1.9F, 0 } },
    { "zaShape", false, 2, { 0, 0, 1.9F } },      { "xyaShape", true, 2, { 0.25F, 0.25F, 0 } },
    { "xzaShape", true, 1, { 0.25F, 0, 0.25F } }, { "yzaShape", true, 0, { 0, 0.25F, 0.25F } },
};

/// A scene with a camera, a hierarchy and a handle drawn by a seed; the same seed gives the same.
class RandomDrag
{
public:
    explicit RandomDrag(unsigned seed)
        : random(seed)
        , handle(kHandles[pick(std::size(kHandles))])
    {
        Gizmo::setLocalSpaceManipulator(pick(2) == 1);
        drags.edit(drags.parentCore(), [&](const osg::Transform3DPtr& core) {
            core->setTranslation(vector(1.0F));
            core->setRotation(vector(180.0F));
            core->setScale(factors());
        });
        drags.edit(drags.core(), [&](const osg::Transform3DPtr& core) {
            core->setEulerRotationOrder(kOrders[pick(std::size(kOrders))]);
            core->setTranslation(vector(1.0F));
            core->setRotation(vector(180.0F));
            core->setRotationMode(static_cast<osg::Int32>(pick(3)));
            core->setRotationQuaternion(turn());
            core->setScale(factors());
            core->setRotatePivot(vector(0.5F));
            core->setScalePivot(vector(0.5F));
            core->setRotationOrientation(turn());
        });
        drags.activate(Gizmo::ManipulatorMode::Translate);
        lookAtTheGizmo();
    }

    float number(float least, float most)
    {
        return std::uniform_real_distribution<float>(least, most)(random);
    }

    Vec3f vector(float reach) { return vectorOf(-reach, reach); }

    /// Whole pixels.
    Vec2f offset(float reachPx)
    {
        return { std::round(number(-reachPx, reachPx)), std::round(number(-reachPx, reachPx)) };
    }

    /// False where another handle covers the chosen one.
    bool grab() { return drags.grabAt(handle.name, drags.onGizmo(handle.grab)); }

    /// World direction of an arrow's movement, or at right angles to a plane's. Below a parent with
    /// different scales the node's own axes are not at right angles, as the drawn ones are.
    Vec3f movementAxis() const
    {
        const auto along = [this](osg::UInt32 index) {
            Vec3f result;
            result[index % 3] = 1.0F;
            if (Gizmo::isLocalSpaceManipulator()) {
                drags.core()->getRotationAsQuaternion().multVec(result, result);
                drags.parent->getToWorld().multMatrixVec(result);
            }
            return result;
        };
        Vec3f axis = handle.isPlane ? along(handle.axis + 1).cross(along(handle.axis + 2))
                                    : along(handle.axis);
        axis.normalize();
        return axis;
    }

    DragScene drags;

private:
    std::size_t pick(std::size_t count)
    {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    }

    // Braces work numbers out in their order; that of arguments is the compiler's choice.
    Vec3f vectorOf(float least, float most)
    {
        return { number(least, most), number(least, most), number(least, most) };
    }

    Vec3f factors() { return vectorOf(0.5F, 2.0F); }

    Vec3f unit()
    {
        Vec3f result = vector(1.0F);
        result.normalize();
        return result;
    }

    osg::Quaternion turn()
    {
        const Vec3f axis = unit();
        return osg::Quaternion(axis, number(0.0F, 2.0F * kPi));
    }

    void lookAtTheGizmo()
    {
        const osg::UberCameraPtr camera = drags.scene.widget.getUberCamera();
        osg::beginEditCP(camera);
        camera->setOrthographic(pick(2) == 1);
        camera->setFov(number(20.0F, 70.0F));
        osg::endEditCP(camera);
        const Pnt3f anchor = drags.onGizmo(Vec3f(0, 0, 0));
        const Vec3f side = unit();
        const float distance = number(3.0F, 30.0F);
        const Vec3f beside = vector(0.3F);
        camera->setFromAtUp(anchor + side * distance, anchor + beside, unit());
        Gizmo::updateAllManipulators();
    }

    std::mt19937 random;

public:
    const Handle& handle;
};

}  // namespace

TEST(DragProperties, PlanesAndArrowsKeepTheGrabbedPointUnderThePointer)
{
    int grabbed = 0;
    for (unsigned seed = 1; seed <= kRuns; ++seed) {
        RandomDrag drag(seed);
        if (!drag.grab()) {
            continue;
        }
        ++grabbed;
        SCOPED_TRACE("seed " + std::to_string(seed));
        DragScene& drags = drag.drags;
        // The point of the handle that the first step's ray meets, as the gizmo carries it along.
        const Pnt3f origin = drags.onGizmo(Vec3f(0, 0, 0));
        const Vec3f axis = drag.movementAxis();
        const Vec3f sight = View().sightAt(origin);
        const bool isPlane = drag.handle.isPlane;
        const float steepness = std::abs(axis.dot(sight));
        if (isPlane ? steepness < 0.2F : steepness > 0.95F) {
            continue;  // nearly along the line of sight: a pixel is too far in the world
        }
        const Vec3f normal = isPlane ? axis : axisPlaneNormal(axis, sight);
        osg::Line ray;
        Pnt3f held;
        ray = View().pointerRay().value();
        ASSERT_TRUE(intersectPlane(osg::Plane(normal, origin), ray, held));
        const Vec2f gap = drags.rayPixelOf(held) - drags.pressed;

        const Pnt2f ahead = drags.rayPixelOf(held + axis * 0.1F);
        Vec2f along = ahead - drags.rayPixelOf(held);
        along.normalize();
        // In parallel projection an arrow follows the pointer's part along its line, however far
        // beside the line the pointer goes; in perspective that holds on the line.
        const Vec2f aside(-along.y(), along.x());
        const float reach = drags.scene.widget.getUberCamera()->isOrthographic() ? 40.0F : 0.0F;
        for (int i = 1; i <= 20; ++i) {
            const float way = 3.0F * static_cast<float>(i) * (drag.number(0, 1) < 0.5F ? 1 : -1);
            const Vec2f onArrow = along * way + aside * drag.number(-reach, reach);
            const Vec2f offset = isPlane ? drag.offset(80.0F)
                                         : Vec2f(std::round(onArrow.x()), std::round(onArrow.y()));
            ASSERT_TRUE(drags.stepTo(offset));
            Pnt3f met;
            ray = View().pointerRay().value();
            if (!intersectPlane(osg::Plane(normal, origin), ray, met)) {
                continue;  // behind the near plane, where nothing moves
            }
            const Vec3f moved = drags.onGizmo(Vec3f(0, 0, 0)) - origin;
            const Vec2f now = drags.rayPixelOf(held + moved) - (drags.pressed + offset);
            const Vec2f drift = now - gap;
            ASSERT_LT(isPlane ? drift.length() : std::abs(drift.dot(along)), 0.6F);
        }
    }
    EXPECT_GT(grabbed, kRuns / 2);
}

}  // namespace nbec::manipulator::test
