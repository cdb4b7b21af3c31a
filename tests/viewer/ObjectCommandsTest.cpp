// SPDX-License-Identifier: MIT
#include "viewer/stage/ObjectCommands.h"

#include "tests/viewer/support/StageTest.h"
#include "viewer/loading/BuiltModel.h"
#include "viewer/loading/StartScene.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

namespace viewer {
namespace {

class ObjectCommands : public StageTest
{
protected:
    /// @return the reason of a refusal, "" if it was done
    QString refusal(const char* command, const QJsonValue& argument)
    {
        run(command, argument);
        return error;
    }
};

TEST_F(ObjectCommands, PathsLeadToObjectsAndBack)
{
    const osg::NodePtr knot = findObject(nbScenegraph::getRootNode(), kStartSceneMainObject);

    const QString path = pathOf(knot);

    EXPECT_EQ(objectAt(path), knot);
    EXPECT_EQ(pathOf(osg::NullFC), "");
    for (const char* nowhere : { "", "99", "0/99", "x", "0//1", "-1" }) {
        EXPECT_EQ(objectAt(nowhere), osg::NodePtr()) << nowhere;
    }
    stage.select(osg::NullFC);
    EXPECT_EQ(refusal("scene.select", QJsonArray { path }), "");
    EXPECT_EQ(stage.selectedName(), kStartSceneMainObject);
    EXPECT_NE(refusal("scene.select", QJsonArray { path, "99" }), "");
    EXPECT_NE(refusal("scene.select", path), "");
    EXPECT_EQ(stage.selectedName(), kStartSceneMainObject) << "a refusal changes nothing";
}

TEST_F(ObjectCommands, EveryVectorIsSetAsOneStepAndReadBack)
{
    const QJsonArray numbers { 1.5, 20.0, 3.25 };
    expectSteps({ { "object.translation", numbers },
                  { "object.rotation", numbers },
                  { "object.scale", numbers },
                  { "object.rotatePivot", numbers },
                  { "object.scalePivot", numbers } },
                1e-4);

    const QJsonValue bothAlong { QJsonArray { 7, QJsonValue(), QJsonValue() } };
    QJsonArray paths;
    for (const char* name : { "Ball", "Vase" }) {
        ASSERT_TRUE(stage.selectByName(name));
        paths.append(pathOf(stage.selectedObject()));
        const QJsonValue pivot = value("object.rotatePivot");
        ASSERT_EQ(refusal("object.translation", value("object.translation")), "");
        EXPECT_TRUE(isNear(value("object.rotatePivot"), pivot, 1e-5))
            << "the first edit moves none";
    }
    const QJsonValue vaseAt = value("object.translation");
    ASSERT_EQ(refusal("scene.select", paths), "");
    ASSERT_EQ(refusal("object.translation", bothAlong), "");
    EXPECT_EQ(value("object.translation"), (QJsonArray { 7, vaseAt[1], vaseAt[2] }));
    stage.selectByName("Ball");
    EXPECT_EQ(value("object.translation")[0], 7.0);
    EXPECT_NE(value("object.translation")[1], vaseAt[1]) << "each keeps its own";
}

TEST_F(ObjectCommands, ASwitchActsOnAllSelectedObjectsAndIsTakenBack)
{
    stage.selectAll();
    const std::vector<osg::NodePtr> objects = stage.selectedObjects();
    ASSERT_GT(objects.size(), 2U);

    EXPECT_EQ(refusal("object.visible", false), "");
    for (const osg::NodePtr& object : objects) {
        EXPECT_FALSE(object->getActive());
    }
    EXPECT_EQ(refusal("object.visible", false), "");
    EXPECT_EQ(steps(), 1) << "the second time changed nothing";
    EXPECT_TRUE(stage.undo());
    for (const osg::NodePtr& object : objects) {
        EXPECT_TRUE(object->getActive());
    }
}

TEST_F(ObjectCommands, ObjectsAreDuplicatedRenamedAndDeletedInOneStepEach)
{
    const auto find = [](const char* name) {
        return findObject(nbScenegraph::getRootNode(), name);
    };
    ASSERT_TRUE(stage.selectByName("Vase"));
    ASSERT_EQ(refusal("scene.duplicate", {}), "");
    EXPECT_EQ(stage.selectedName(), "Vase 2");
    EXPECT_EQ(refusal("object.translation", QJsonArray { 1, 2, 3 }), "");
    EXPECT_NE(nbNodeUtils::getTransformNodeTranslation(find("Vase"))[0], 1.0F)
        << "a copy has nothing in common with its original";
    ASSERT_EQ(refusal("object.name", "  Urn "), "");
    EXPECT_EQ(stage.selectedName(), "Urn");
    EXPECT_NE(refusal("object.name", " "), "");
    EXPECT_EQ(steps(), 3);
    ASSERT_EQ(refusal("scene.delete", {}), "");
    EXPECT_EQ(find("Urn"), osg::NodePtr());
    EXPECT_EQ(stage.selectedObject(), osg::NodePtr());

    EXPECT_TRUE(stage.undo());
    EXPECT_EQ(stage.selectedName(), "Urn");
    EXPECT_TRUE(stage.undo());
    EXPECT_NE(find("Vase 2"), osg::NodePtr());
    EXPECT_TRUE(stage.undo() && stage.undo());
    EXPECT_EQ(find("Vase 2"), osg::NodePtr());
    EXPECT_EQ(stage.selectedName(), "Vase");
    ASSERT_TRUE(stage.selectByName("Vase"));
    EXPECT_EQ(refusal("object.locked", true), "");
    EXPECT_EQ(refusal("scene.delete", {}), "\"Vase\" is locked");
    ASSERT_EQ(refusal("scene.addClipPlane", {}), "");
    EXPECT_NE(refusal("scene.duplicate", {}), "");
    EXPECT_EQ(refusal("scene.delete", {}), "") << "a clip plane goes as its own command takes it";
    EXPECT_EQ(find("Clip plane"), osg::NodePtr());
}

TEST_F(ObjectCommands, RefusalsSayWhyAndChangeNothing)
{
    EXPECT_EQ(refusal("object.translation", QJsonArray { 1, 2 }),
              "object.translation: expected an array of 3 numbers");
    EXPECT_NE(refusal("object.translation", QJsonArray { 1, 2, "3" }), "");
    EXPECT_NE(refusal("object.translation", QJsonArray { 1e300, 0, 0 }), "");
    EXPECT_NE(refusal("object.translation", QJsonArray { 1e16, 0, 0 }), "") << "too far away";
    EXPECT_NE(refusal("object.scale", QJsonArray { 1, 0, 1 }), "");
    EXPECT_NE(refusal("object.visible", 1), "");
    const QJsonValue before = value("object.translation");
    EXPECT_EQ(refusal("object.locked", true), "");
    EXPECT_EQ(refusal("object.translation", QJsonArray { 1, 2, 3 }),
              "the selected object is locked or cannot take this value");
    EXPECT_EQ(value("object.translation"), before);
    stage.select(osg::NullFC);
    EXPECT_EQ(refusal("object.scale", QJsonArray { 1, 2, 3 }), "nothing is selected");
    EXPECT_TRUE(value("object.name").isNull());
}

}  // namespace
}  // namespace viewer
