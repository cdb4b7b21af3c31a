// SPDX-License-Identifier: MIT
#include "viewer/core/ObjectCommands.h"

#include "viewer/core/SceneBuilder.h"
#include "viewer/core/Stage.h"
#include "viewer/core/StartScene.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>

#include <QJsonArray>
#include <QtWidgets/QUndoStack>

#include <gtest/gtest.h>

namespace viewer {
namespace {

class ObjectCommands : public testing::Test
{
protected:
    ObjectCommands()
        : stage(view)
    {
        stage.resize(640, 480, 1.0F);
        stage.showStartScene();
    }

    /// @return the reason of a refusal, "" if it was done
    QString run(const char* command, const QJsonValue& value)
    {
        QString error;
        const bool isDone = stage.commands().run(command, value, error);
        EXPECT_EQ(isDone, error.isEmpty());
        return error;
    }

    QJsonValue valueOf(const char* name)
    {
        return stage.commands().value(name).value_or(QJsonValue::Undefined);
    }

    static int stepCount() { return nbUndoService::the()->getStack()->index(); }

    nbOSGWidget view;
    Stage stage;
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
    EXPECT_EQ(run("scene.select", QJsonArray { path }), "");
    EXPECT_EQ(stage.selectedName(), kStartSceneMainObject);
    EXPECT_NE(run("scene.select", QJsonArray { path, "99" }), "");
    EXPECT_NE(run("scene.select", path), "");
    EXPECT_EQ(stage.selectedName(), kStartSceneMainObject) << "a refusal changes nothing";
}

TEST_F(ObjectCommands, EveryVectorIsSetAsOneStepAndReadBack)
{
    for (const char* name : { "object.translation", "object.rotation", "object.scale",
                              "object.rotatePivot", "object.scalePivot" }) {
        const QJsonValue before = valueOf(name);
        const int steps = stepCount();

        EXPECT_EQ(run(name, QJsonArray { 1.5, 20.0, 3.25 }), "") << name;

        EXPECT_TRUE(isNear(valueOf(name), QJsonArray { 1.5, 20.0, 3.25 }, 1e-4)) << name;
        EXPECT_EQ(stepCount(), steps + 1) << name;
        EXPECT_TRUE(stage.undo());
        EXPECT_TRUE(isNear(valueOf(name), before, 1e-6)) << name;
    }
}

TEST_F(ObjectCommands, ASwitchActsOnAllSelectedObjectsAndIsTakenBack)
{
    stage.selectAll();
    const std::vector<osg::NodePtr> objects = stage.selectedObjects();
    ASSERT_GT(objects.size(), 2U);

    EXPECT_EQ(run("object.visible", false), "");
    for (const osg::NodePtr& object : objects) {
        EXPECT_FALSE(object->getActive());
    }
    EXPECT_EQ(run("object.visible", false), "");
    EXPECT_EQ(stepCount(), 1) << "the second time changed nothing";
    EXPECT_TRUE(stage.undo());
    for (const osg::NodePtr& object : objects) {
        EXPECT_TRUE(object->getActive());
    }
}

TEST_F(ObjectCommands, RefusalsSayWhyAndChangeNothing)
{
    EXPECT_EQ(run("object.translation", QJsonArray { 1, 2 }),
              "object.translation: expected an array of 3 numbers");
    EXPECT_NE(run("object.translation", QJsonArray { 1, 2, "3" }), "");
    EXPECT_NE(run("object.translation", QJsonArray { 1e300, 0, 0 }), "");
    EXPECT_NE(run("object.visible", 1), "");
    const QJsonValue before = valueOf("object.translation");
    EXPECT_EQ(run("object.locked", true), "");
    EXPECT_EQ(run("object.translation", QJsonArray { 1, 2, 3 }),
              "the selected object is locked or cannot take this value");
    EXPECT_EQ(valueOf("object.translation"), before);
    stage.select(osg::NullFC);
    EXPECT_EQ(run("object.scale", QJsonArray { 1, 2, 3 }), "nothing is selected");
    EXPECT_TRUE(valueOf("object.name").isNull());
}

}  // namespace
}  // namespace viewer
