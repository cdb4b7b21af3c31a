// SPDX-License-Identifier: MIT
#include "viewer/loading/BuiltModel.h"
#include "viewer/textures/SurfaceMaterial.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGTriangleIterator.h>

#include <QDir>
#include <QTemporaryDir>

#include <cmath>

#include "support/Files.h"
#include "support/TextureTest.h"

namespace viewer {
namespace {

using TextureToolTest = TextureTest;

TEST_F(TextureToolTest, ADropOnAStretchedObjectIsUprightAndInThePicturesAspect)
{
    ASSERT_TRUE(stage.selectByName("Vase"));
    ASSERT_TRUE(run("object.scale", QJsonArray { 2, 0.7, 1 }));
    ASSERT_TRUE(run("object.rotation", QJsonArray { 0, 25, 30 }));

    ASSERT_TRUE(drop("Vase"));

    osg::Matrix world = tool.target().surface()->getToWorld();
    world.mult(tool.target().projection()->getMatrix());
    const osg::Vec3f x(world[0][0], world[0][1], world[0][2]);
    osg::Vec3f y(world[1][0], world[1][1], world[1][2]);
    osg::Vec3f normal = x.cross(y);
    normal.normalize();
    osg::Vec3f up = osg::Vec3f(0, 1, 0) - normal * normal.y();
    EXPECT_NEAR(x.length() / y.length(), 480.0F / 360.0F, 1e-3F);
    EXPECT_NEAR(y.dot(up), y.length() * up.length(), 1e-3F) << "not upright";
}

TEST_F(TextureToolTest, APlacingThatIsCancelledLeavesThePictureWhereItWas)
{
    ASSERT_TRUE(drop("Vase"));
    const osg::Vec3f before = tool.target().projection()->getTranslation();
    const osg::Pnt2f px = placeOf(SessionTarget::Kind::Node, "Vase");
    ASSERT_TRUE(run("texture.place", true));
    EXPECT_EQ(view.getCursor(), Qt::CrossCursor);

    EXPECT_TRUE(send("start", px + osg::Vec2f(10, 10)));
    send("process", px + osg::Vec2f(20, 15));
    EXPECT_NE(tool.target().projection()->getTranslation(), before);
    stage.interaction().cancelDrag();
    send("stop", px + osg::Vec2f(20, 15));

    EXPECT_EQ(tool.target().projection()->getTranslation(), before);
    EXPECT_EQ(steps(), 1);
    stage.showGizmo(Gizmo::Universal);
    EXPECT_FALSE(tool.isPlacing());
    EXPECT_EQ(view.getCursor(), Qt::ArrowCursor);
}

TEST_F(TextureToolTest, WhatHasNoTextureCoordinatesGetsThoseOfABox)
{
    ASSERT_TRUE(drop("Pawn"));
    const osg::GeometryPtr geometry = geometryOf(tool.target().surface());
    ASSERT_TRUE(geometry->getTexCoords() == osg::NullFC);
    const osg::Vec3f sides = nbNodeUtils::getOwnBounds(tool.target().surface()).getMax() -
        nbNodeUtils::getOwnBounds(tool.target().surface()).getMin();
    const float unit = std::max({ sides.x(), sides.y(), sides.z() });
    ASSERT_TRUE(run("texture.projection", "uv"));
    std::size_t triangles = 0;
    for (auto it = geometry->beginTriangles(); it != geometry->endTriangles(); ++it) {
        const osg::Vec3f across =
            (it.getPosition(1) - it.getPosition(0)).cross(it.getPosition(2) - it.getPosition(0));
        const float most =
            std::max({ std::abs(across.x()), std::abs(across.y()), std::abs(across.z()) });
        const osg::Vec2f a = it.getTexCoords(1) - it.getTexCoords(0);
        const osg::Vec2f b = it.getTexCoords(2) - it.getTexCoords(0);
        // Seen along an axis it is as large as there, and not mirrored.
        EXPECT_NEAR((a.x() * b.y() - a.y() * b.x()) * unit * unit, most, 1e-5F * unit * unit);
        ++triangles;
    }
    EXPECT_GT(triangles, 100U);
}

TEST_F(TextureToolTest, APictureIsShownAsAClickWouldPlaceItAndNothingIsEditedBefore)
{
    ASSERT_TRUE(drop("Vase"));
    EXPECT_EQ(value("texture.angles"), QJsonValue(QJsonArray { 75, 15 }));
    ASSERT_TRUE(run("texture.place", true));
    const auto shown = [&] {
        return nbTransformState::of(*tool.target().settings()->getShownProjection());
    };
    const auto own = [&] { return nbTransformState::of(*tool.target().projection()); };
    const nbTransformState before = own();
    const osg::Pnt2f px = placeOf(SessionTarget::Kind::Node, "Vase") + osg::Vec2f(12, 30);
    const auto turnWheel = [this](double notches, bool isFine) {
        return stage.interaction().triggerEvent({ "trigger", "camera", "zoom", notches, isFine });
    };

    send("hover", px);
    const nbTransformState upright = shown();
    EXPECT_TRUE(turnWheel(3.0, false) && turnWheel(-1.0, true));
    stage.interaction().selectMode("precisionTool");
    EXPECT_TRUE(turnWheel(2.0, false) && turnWheel(1.0, true));
    const nbTransformState placed = shown();
    EXPECT_NEAR(placed.scale[0] / upright.scale[0], 1.1 * 1.1 * 1.01, kTolerance);
    osg::Quaternion turn = upright.rotationQuaternion.inverse();
    turn.mult(placed.rotationQuaternion);
    EXPECT_NEAR(turn.z(), std::sin(0.5 * 14.0 * osg::Pi / 180.0), kTolerance);
    EXPECT_TRUE(own().isSame(before));
    EXPECT_EQ(steps(), 1);

    send("start", px);
    send("stop", px);
    EXPECT_TRUE(own().isSame(placed)) << "another place than shown";
    EXPECT_EQ(steps(), 2);
    send("hover", px + osg::Vec2f(9, 0));
    ASSERT_TRUE(stage.undo());
    stage.update();
    EXPECT_EQ(shown().scale, upright.scale) << "turned and sized once more";
    send("stopHover", px);
    EXPECT_TRUE(shown().isSame(before));
    send("hover", px);
    EXPECT_TRUE(tool.leaveMode());
    EXPECT_TRUE(shown().isSame(before));
}

TEST_F(TextureToolTest, ASharedGeometryGetsThePictureOnOneOfItsObjectsAlone)
{
    ModelData model;
    model.meshes.resize(1);
    model.materials.resize(1);
    model.meshes[0].positions = { { 0, 0, 0 }, { 1, 0, 0 }, { 0, 1, 0 } };
    model.meshes[0].triangles = { 0, 1, 2 };
    model.root.children.resize(2);
    model.root.children[0].meshes = model.root.children[1].meshes = { 0 };
    model.root.children[0].name = "first";
    model.root.children[1].name = "second";
    stage.clear();
    const osg::NodePtr root = stage.add(model);
    const osg::NodePtr first = surfaceOf(root->getChild(0), {});
    const osg::NodePtr second = surfaceOf(root->getChild(1), {});
    ASSERT_EQ(first->getCore(), second->getCore());

    stage.select(root);
    EXPECT_NE(tool.hindrance(), "");
    EXPECT_FALSE(run("texture.picture", kLabel));
    stage.select(root->getChild(0));
    ASSERT_TRUE(run("texture.picture", kLabel));

    EXPECT_EQ(value("texture.angles"), QJsonValue(QJsonArray { 180, 0 })) << "no body";
    EXPECT_NE(uberMaterialOf(first), osg::NullFC);
    EXPECT_EQ(uberMaterialOf(second), osg::NullFC);
    EXPECT_EQ(geometryOf(first)->getPositions(), geometryOf(second)->getPositions());
    ASSERT_TRUE(stage.undo());
    EXPECT_EQ(first->getCore(), second->getCore());
    EXPECT_EQ(steps(), 0);
}

TEST_F(TextureToolTest, ValuesAreWhatWasTypedAndEachEditIsAStep)
{
    stage.selectByName("Column");
    ASSERT_TRUE(run("texture.picture", kLabel));

    expectSteps(
        {
            { "texture.translation", QJsonArray { 0.5, -1, 2 } },
            { "texture.rotation", QJsonArray { 10, 20, 30 } },
            { "texture.scale", QJsonArray { 2, 3, 4 } },
            { "texture.keepAspect", false },
            { "texture.repeatU", true },
            { "texture.repeatV", true },
            { "texture.endInDepth", false },
            { "texture.mask", true },
            { "texture.invert", true },
            { "texture.angles", QJsonArray { 60, 20 } },
            { "texture.uvOffset", QJsonArray { 0.5, -1 } },
            { "texture.uvRepeat", QJsonArray { 2, -3 } },
            { "texture.uvRotate", 30 },
            { "texture.triplanarRotation", QJsonArray { 10, 20, 30 } },
            { "texture.triplanarOffsetU", QJsonArray { 1, 2, 3 } },
            { "texture.triplanarOffsetV", QJsonArray { 4, 5, 6 } },
            { "texture.triplanarRepeatU", QJsonArray { 7, 8, 9 } },
            { "texture.triplanarRepeatV", QJsonArray { 10, 11, 12 } },
            { "texture.tireCenter", QJsonArray { 1, 2, 3 } },
            { "texture.tireHeight", 3 },
            { "texture.tireRadius", 4 },
            { "texture.tireScaleU", 0.25 },
            { "texture.tireFit", false },
        },
        1e-5);

    const QJsonArray scale = value("texture.scale").toArray();
    ASSERT_TRUE(
        run("texture.scale", QJsonArray { 2 * scale.at(0).toDouble(), scale.at(1), scale.at(2) }));
    EXPECT_NEAR(value("texture.scale").toArray().at(1).toDouble(), 2 * scale.at(1).toDouble(),
                1e-5);

    ASSERT_TRUE(run("texture.projection", "tire"));
    ASSERT_TRUE(run("texture.tireScaleU", 0.5));
    EXPECT_EQ(value("texture.tireFit"), QJsonValue(true)) << "it is never fitted";
    ASSERT_TRUE(run("texture.handles", "universal"));
    stage.update();
    const QJsonValue fittedRadius = value("texture.tireRadius");
    const osg::Pnt2f fitted = placeOf(SessionTarget::Kind::Handle, "radiusShape");
    ASSERT_TRUE(run("texture.tireRadius", 2.5));
    EXPECT_EQ(value("texture.tireFit"), QJsonValue(false)) << "set by hand";
    stage.update();
    EXPECT_NE(stage.handleAt(fitted), "radiusShape") << "the handles stayed behind";
    ASSERT_TRUE(run("texture.tireFit", true));
    EXPECT_EQ(value("texture.tireRadius"), fittedRadius);
}

TEST_F(TextureToolTest, ComponentsHavePicturesOfTheirOwn)
{
    ASSERT_TRUE(run("texture.picture", kLabel));
    ASSERT_TRUE(run("texture.component", "transparency"));

    EXPECT_EQ(value("texture.picture"), QJsonValue(""));
    EXPECT_TRUE(value("texture.scale").isNull());
    EXPECT_FALSE(run("texture.place", true)) << "there is nothing to place";
    ASSERT_TRUE(run("texture.picture", kLabel));
    ASSERT_TRUE(run("texture.picture", QJsonValue()));
    EXPECT_EQ(value("texture.picture"), QJsonValue(""));
    ASSERT_TRUE(run("texture.component", "diffuse"));
    EXPECT_EQ(value("texture.picture"), QJsonValue("label.png"));
}

TEST_F(TextureToolTest, BadInputIsOneLineAndChangesNothing)
{
    QTemporaryDir folder;
    stage.commands().setFolder(QDir(folder.path()));
    writeFile(folder.filePath("broken.png"), "\x89PNG\r\n\x1a\nand no more");

    expectRefusals({
        { "texture.picture", "missing.png" },
        { "texture.picture", "broken.png" },
        { "texture.picture", QJsonValue() },
        { "texture.drop", QJsonObject { { "file", "missing.png" }, { "at", "here" } } },
        { "texture.drop",
          QJsonObject { { "file", "missing.png" }, { "at", QJsonObject { { "node", "Vase" } } } } },
        { "texture.component", "scent" },
        { "texture.handles", "bend" },
        { "texture.translation", QJsonArray { 1, 2, 3 } },
        { "texture.keepAspect", true },
        { "texture.place", true },
        { "texture.projection", "uv" },
        { "texture.uvRotate", 3 },
        { "texture.planeTransparency", 1.5 },
        { "texture.showDepth", 1 },
    });
    EXPECT_EQ(steps(), 0);
    EXPECT_EQ(tool.target().material(), osg::NullFC);

    ASSERT_TRUE(run("texture.picture", kLabel));
    const nbTextureValues before = tool.target().values();
    expectRefusals({
        { "texture.scale", QJsonArray { 1, 0, 1 } },
        { "texture.scale", QJsonArray { 1, -2, 1 } },
        { "texture.scale", QJsonArray { 1, 2 } },
        { "texture.scale", "large" },
        { "texture.projection", "round" },
        { "texture.uvOffset", QJsonArray { 1 } },
        { "texture.uvRepeat", QJsonArray { 0, 1 } },
        { "texture.uvRepeat", QJsonArray { 1e-60, 1 } },
        { "texture.triplanarRepeatU", QJsonArray { 1, 1, 0 } },
        { "texture.triplanarOffsetU", QJsonArray { 1, 1, 1e300 } },
        { "texture.tireRadius", 0 },
        { "texture.anchor", "here" },
    });
    EXPECT_EQ(tool.target().values(), before);
}

}  // namespace
}  // namespace viewer
