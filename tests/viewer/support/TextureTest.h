// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/core/SessionTargets.h"
#include "viewer/core/Stage.h"
#include "viewer/core/TextureCommands.h"
#include "viewer/core/TextureTool.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>

#include <OpenSG/OSGGeometry.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QtWidgets/QUndoStack>

#include <gtest/gtest.h>

namespace viewer {

inline const QString kLabel = QStringLiteral(NB_VIEWER_FOLDER "/models/label.png");
constexpr float kTolerance = 1e-4F;

/// The start scene without a window, with the texture tool and its commands.
class TextureTest : public testing::Test
{
protected:
    TextureTest()
        : stage(view)
        , tool(stage)
        , commands(stage, tool)
    {
        stage.resize(1200, 800, 1.0F);
        stage.showStartScene();
        stage.update();
    }

    ~TextureTest() override { stage.clear(); }

    bool run(const char* name, const QJsonValue& value)
    {
        error.clear();
        const bool isDone = stage.commands().run(QLatin1String(name), value, error);
        EXPECT_EQ(isDone, error.isEmpty()) << name << ": " << error.toStdString();
        EXPECT_FALSE(error.contains(QLatin1Char('\n')));
        return isDone;
    }

    bool drop(const char* node)
    {
        return run("texture.drop",
                   QJsonObject { { "file", kLabel },
                                 { "at", QJsonObject { { "node", QLatin1String(node) } } } });
    }

    QJsonValue value(const char* name)
    {
        return stage.commands().value(QLatin1String(name)).value_or(QJsonValue("no value"));
    }

    osg::Pnt2f placeOf(SessionTarget::Kind kind, const char* name)
    {
        SessionTarget target;
        target.kind = kind;
        target.name = QLatin1String(name);
        osg::Pnt2f px;
        EXPECT_TRUE(resolveTarget(target, stage, px, error)) << error.toStdString();
        return px;
    }

    /// An event with the pointer at a pixel, as the window delivers it.
    bool send(const char* event, const osg::Pnt2f& px)
    {
        view.setMousePosition(px);
        stage.interaction().pointerMoved(px);
        return stage.interaction().triggerEvent(nbec::interaction::InteractionEvent(
            event, nbec::interaction::names::kTool, nbec::interaction::names::kSelect));
    }

    static osg::GeometryPtr geometryOf(const osg::NodePtr& node)
    {
        return osg::GeometryPtr::dcast(node->getCore());
    }

    static int steps() { return nbUndoService::the()->getStack()->index(); }

    nbOSGWidget view;
    Stage stage;
    TextureTool tool;
    TextureCommands commands;
    QString error;
};

}  // namespace viewer
