// SPDX-License-Identifier: MIT
#pragma once

#include "tests/viewer/support/StageTest.h"
#include "viewer/textures/TextureTool.h"

#include <nbKernel/nbScenegraph.h>

#include <OpenSG/OSGGeometry.h>

namespace viewer {

inline const QString kLabel = QStringLiteral(NB_VIEWER_FOLDER "/models/label.png");
constexpr float kTolerance = 1e-4F;

/// A stage with the texture tool and its commands.
class TextureTest : public StageTest
{
protected:
    TextureTest()
        : tool(stage)
    {
        stage.showStartScene();  // what is selected in it is told to the tool
        stage.update();
    }

    bool drop(const char* node)
    {
        return run("texture.drop",
                   QJsonObject { { "file", kLabel },
                                 { "at", QJsonObject { { "node", QLatin1String(node) } } } });
    }

    static osg::GeometryPtr geometryOf(const osg::NodePtr& node)
    {
        return osg::GeometryPtr::dcast(node->getCore());
    }

    TextureTool tool;
};

}  // namespace viewer
