// SPDX-License-Identifier: MIT
// Drags of the picture itself, and turns and scales that keep a place: what is seen there is looked
// up before and after as the renderer does.
#include "tests/manipulator/support/TextureScene.h"
#include "tests/platform/support/Edited.h"

#include <nbOpenSGRenderAction/UberMaterialState.h>

#include <OpenSG/OSGSimpleGeometry.h>

#include <random>

namespace nbec::manipulator::test {

namespace {

using Settings = osg::ColorComponentSettings;

constexpr int kViews = 500;

std::mt19937 engine;

float roll(float low, float high)
{
    return std::uniform_real_distribution<float>(low, high)(engine);
}

Vec3f rollVector(float low, float high)
{
    return { roll(low, high), roll(low, high), roll(low, high) };
}

/// Texture coordinates of the surfaces: linear, so that they are known everywhere.
Vec2f coordinatesAt(const Pnt3f& place)
{
    return { 0.3F * place.x() + 0.1F * place.z(), 0.4F * place.y() - 0.2F * place.z() };
}

osg::NodePtr surface(int kind)
{
    const osg::NodePtr node = kind == 0 ? osg::makeBox(2, 2, 2, 1, 1, 1)
        : kind == 1                     ? osg::makeSphere(2, 1.3F)
                                        : osg::makeTorus(0.4F, 1.2F, 24, 48);
    const auto geometry = osg::GeometryPtr::dcast(node->getCore());
    const auto coordinates = osg::GeoTexCoords2f::create();
    for (osg::UInt32 i = 0; i < geometry->getPositions()->getSize(); ++i) {
        coordinates->push_back(coordinatesAt(geometry->getPositions()->getValue(i)));
    }
    nbtest::edited(geometry)->setTexCoords(coordinates);
    (*nbtest::edited(geometry)->getMFIndexMapping())[0] =
        osg::Geometry::MapPosition | osg::Geometry::MapNormal | osg::Geometry::MapTexCoords;
    return node;
}

}  // namespace

template <class Gizmo>
class PictureGrab : public testing::Test, public TextureSceneOf<Gizmo>
{
public:
    PictureGrab()
        : TextureSceneOf<Gizmo>(TextureScene::Receiver::Editor)
    {
        engine.seed(22);  // whichever tests run
        const osg::ImagePtr image = osg::Image::create();
        image->set(osg::Image::OSG_RGB_PF, 2, 2);
        this->material->setImage(osg::UberMaterial::kDiffuseComponent, image);
        this->gizmo.setGrabsPicture(true);
    }

    /// Another surface, object, projection and camera.
    void rollAll(int round)
    {
        const osg::NodePtr shape = surface(round % 3);
        osg::GeometryPtr::dcast(shape->getCore())->setMaterial(this->material.get());
        nbtest::edited(this->scene.node)->replaceChild(0, shape);
        this->edit(this->core(), [](const auto& of) {
            of->setRotation(rollVector(-180, 180));
            of->setScale(rollVector(0.5F, 2));
        });
        this->editSettings([this](const auto& of) {
            of->setPlanarProjectionFlags(Settings::RepeatU | Settings::RepeatV);
            nbtest::edited(this->projection)->setTranslation(rollVector(-1, 1));
            nbtest::edited(this->projection)->setRotation(rollVector(-180, 180));
            nbtest::edited(this->projection)->setScale(rollVector(0.3F, 3));
            of->setOffset(Vec2f(roll(-1, 1), roll(-1, 1)));
            of->setRepeat(Vec2f(roll(0.5F, 4), roll(0.5F, 4)));
            of->setRotate(roll(-180, 180));
            of->setTriplanarRotation(rollVector(-3, 3));
            const Vec3f begins = rollVector(-1, 1);
            of->setTriplanarOffsetU(Vec3f(begins[1], begins[0], begins[0]));
            of->setTriplanarOffsetV(Vec3f(begins[2], begins[2], begins[1]));
            of->setTriplanarRepeatU(rollVector(20, 200));
            of->setTriplanarRepeatV(rollVector(20, 200));
        });
        this->scene.setOrthographic(round % 2 == 0);
        this->scene.lookFrom(Pnt3f(rollVector(-1, 1) * 3.0F) + Vec3f(0, 0, 7));
        this->manipulator.update(true);
    }

    bool isOnSurface(const Pnt2f& px)
    {
        return probe.pickAt(px) != osg::NullFC && probe.pickAt(px + Vec2f(1, 0)) != osg::NullFC &&
            probe.pickAt(px + Vec2f(0, 1)) != osg::NullFC;
    }

    /// A pixel at which the surface is seen, beside the handles.
    Pnt2f rollPixel()
    {
        Pnt2f px;
        do {
            px.setValues(std::floor(roll(200, 600)), std::floor(roll(100, 500)));
        } while (!isOnSurface(px) || this->scene.send("hover", px));
        return px;
    }

    /// A vector of the world along the axes of the object, of unit length there.
    Vec3f alongObject(const Vec3f& world, bool isPlace)
    {
        const osg::Matrix object = this->scene.node->getToWorld();
        osg::Matrix objectFromWorld;
        object.inverse(objectFromWorld);
        Vec3f result;
        objectFromWorld.multMatrixVec(world, result);
        for (osg::UInt32 i = 0; i < 3; ++i) {
            const Vec3f axis(object[i][0], object[i][1], object[i][2]);
            result[i] = isPlace ? result[i] * axis.length() : world.dot(axis) / axis.length();
        }
        return result;
    }

    Vec3f inPicture(const Vec3f& place) const
    {
        Pnt3f found;
        picture().pictureFromSurface.multMatrixPnt(Pnt3f(place), found);
        return found.subZero();
    }

    nbrender::ProjectedPicture picture() const
    {
        return nbrender::resolveUberMaterial(this->material.get())->pictures[0];
    }

    /// What is seen at a pixel, of a triplanar picture by the projection `main`.
    Vec2f seenAt(const Pnt2f& px)
    {
        probe.pickAt(px);
        const bool isTriplanar = picture().kind == Settings::TriplanarProjection;
        osg::Matrix objectFromWorld;
        this->scene.node->getToWorld().inverse(objectFromWorld);
        Pnt3f place;
        objectFromWorld.multMatrixPnt(probe.getHitPoint(), place);
        if (picture().kind == Settings::UVProjection) {
            const Vec2f in = coordinatesAt(place);
            place.setValues(in.x(), in.y(), 0);
        }
        const Vec3f at = inPicture(isTriplanar ? alongObject(probe.getHitPoint().subZero(), true)
                                               : place.subZero());
        const osg::Vec4f tile = picture().tiles[main];
        return isTriplanar ? Vec2f(at[main == 0 ? 1 : 0] * tile[0] + tile[2],
                                   at[main == 2 ? 1 : 2] * tile[1] + tile[3])
                           : Vec2f(at.x(), at.y());
    }

    /// The same at a pixel, by the projection that counts most there.
    Vec2f seenMostAt(const Pnt2f& px)
    {
        probe.pickAt(px);
        const Vec3f normal = inPicture(alongObject(probe.getHitNormal(), false));
        for (osg::UInt32 i = main = 0; i < 3; ++i) {
            main = std::abs(normal[i]) > std::abs(normal[main]) ? i : main;
        }
        return seenAt(px);
    }

    /// By how many pixels a texel is beside a pixel, from what is seen at its neighbours.
    float pixelsBeside(const Pnt2f& px, const Vec2f& texel)
    {
        const Vec2f here = seenAt(px);
        const Vec2f x = seenAt(px + Vec2f(1, 0)) - here;
        const Vec2f y = seenAt(px + Vec2f(0, 1)) - here;
        const Vec2f off = texel - here;
        const float area = x.x() * y.y() - x.y() * y.x();
        return std::hypot(off.x() * y.y() - off.y() * y.x(), x.x() * off.y() - x.y() * off.x()) /
            std::abs(area);
    }

    interaction::Picker probe;
    osg::UInt32 main = 0;
};

using GrabbingKinds =
    testing::Types<PlanarTextureManipulator, TriplanarTextureManipulator, UVTextureManipulator>;
TYPED_TEST_SUITE(PictureGrab, GrabbingKinds, );

TYPED_TEST(PictureGrab, TheTexelStaysUnderThePointer)
{
    for (int round = 0; round < kViews; ++round) {
        this->rollAll(round);
        const Pnt2f from = this->rollPixel();
        const Pnt2f to = this->rollPixel();
        const Vec2f before = this->seenMostAt(from);
        ASSERT_TRUE(this->scene.send("start", from)) << round;
        this->scene.send("process", from);
        ASSERT_TRUE(this->scene.send("process", to)) << round;
        EXPECT_LT(this->pixelsBeside(to, before), 1) << round;
        EXPECT_TRUE(this->gizmo.cancelDrag());
        EXPECT_EQ(this->seenAt(from), before);
    }
    this->gizmo.setGrabsPicture(false);
    EXPECT_FALSE(this->scene.send("start", this->rollPixel()));
}

TYPED_TEST(PictureGrab, ThePictureTurnsAndGrowsAboutTheTexel)
{
    for (int round = 0; round < kViews; ++round) {
        this->rollAll(round);
        this->gizmo.activateRotateManipulator();
        if (round % 4 < 2) {
            if constexpr (std::is_same_v<TypeParam, PlanarTextureManipulator>) {
                this->gizmo.activateScaleManipulator();
            } else {
                this->gizmo.activateRotateScaleManipulator();
            }
        }
        const Pnt2f from = this->rollPixel();
        const Vec2f before = this->seenMostAt(from);
        const Vec2f beside = this->seenAt(from + Vec2f(1, 0));
        ASSERT_TRUE(this->scene.send("start", from)) << round;
        this->scene.send("process", from);
        ASSERT_TRUE(this->scene.send("process", from + Vec2f(120, 20))) << round;
        EXPECT_LT(this->pixelsBeside(from, before), 0.1F) << round;
        EXPECT_GT((this->seenAt(from + Vec2f(1, 0)) - beside).length(), 0);
        this->scene.send("process", Pnt2f(round % 2 == 0 ? 1e6F : -1e6F, 20));
        EXPECT_TRUE(std::isfinite(this->seenAt(from).length())) << round;
        this->scene.send("stop", from);
    }
}

template <class Gizmo>
using PivotAtHandles = PictureGrab<Gizmo>;

using TurningKinds = testing::Types<TriplanarTextureManipulator, UVTextureManipulator>;
TYPED_TEST_SUITE(PivotAtHandles, TurningKinds, );

TYPED_TEST(PivotAtHandles, TurnsAndScalesKeepTheTexelThere)
{
    this->gizmo.setPivotsAtHandles(true);
    this->gizmo.setGrabsPicture(false);
    this->gizmo.activateRotateScaleManipulator();
    for (int round = 0; round < kViews; ++round) {
        this->rollAll(round);
        const Pnt2f there = this->rollPixel();
        const Vec2f before = this->seenMostAt(there);
        osg::Matrix objectFromWorld;
        this->scene.node->getToWorld().inverse(objectFromWorld);
        Pnt3f place;
        objectFromWorld.multMatrixPnt(this->probe.getHitPoint(), place);
        this->gizmo.setAnchor(this->scene.node, place);
        Pnt2f handle;
        do {
            handle = there + Vec2f(std::floor(roll(-150, 150)), std::floor(roll(-150, 150)));
        } while (!this->scene.send("start", handle));
        this->scene.send("process", handle);
        EXPECT_TRUE(this->gizmo.typeKey('2'));
        EXPECT_LT(this->pixelsBeside(there, before), 0.1F) << round;
        this->scene.send("stop", handle);
    }
}

}  // namespace nbec::manipulator::test
