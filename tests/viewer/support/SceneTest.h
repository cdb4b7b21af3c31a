// SPDX-License-Identifier: MIT
#pragma once

#include "tests/viewer/support/Files.h"
#include "tests/viewer/support/StageTest.h"
#include "viewer/loading/ModelReader.h"
#include "viewer/match/PerspectiveMatchTool.h"
#include "viewer/plates/PlatesTool.h"
#include "viewer/scenes/PreparedScene.h"
#include "viewer/scenes/SceneCapture.h"
#include "viewer/textures/TextureTool.h"

#include <QTemporaryDir>

namespace viewer {

/// A stage with all tools of the viewer, and a folder for files.
class SceneTest : public StageTest
{
protected:
    SceneTest()
        : textures(stage)
        , match(stage)
        , plates(stage)
    { }

    QString fileIn(const char* name) const { return folder.filePath(QLatin1String(name)); }

    static QString model(const char* name)
    {
        return QStringLiteral(NB_VIEWER_FOLDER "/models/") + QLatin1String(name);
    }

    void addModel(const QString& file)
    {
        const std::optional<ModelData> data = readModelFile(file, {}, error);
        ASSERT_TRUE(data) << error.toStdString();
        stage.add(*data);
    }

    /// What would be saved into the folder now.
    QByteArray text()
    {
        const std::optional<SceneDocument> document = captureScene(stage, error);
        EXPECT_TRUE(document) << error.toStdString();
        return document ? sceneText(*document, QDir(folder.path())) : QByteArray();
    }

    QTemporaryDir folder;
    TextureTool textures;
    PerspectiveMatchTool match;
    PlatesTool plates;
};

}  // namespace viewer
