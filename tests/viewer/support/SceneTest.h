// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/core/ModelReader.h"
#include "viewer/core/PerspectiveMatchTool.h"
#include "viewer/core/PlatesTool.h"
#include "viewer/core/SceneCapture.h"
#include "viewer/core/SceneRestore.h"
#include "viewer/core/Stage.h"
#include "viewer/core/TextureCommands.h"
#include "viewer/core/TextureTool.h"

#include <nbKernelServices/nbUndoService.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtWidgets/QUndoStack>

#include <gtest/gtest.h>

namespace viewer {

/// A stage without a window, with all tools of the viewer, and a folder for files.
class SceneTest : public testing::Test
{
protected:
    SceneTest()
        : stage(view)
        , textures(stage)
        , textureCommands(stage, textures)
        , match(stage)
        , plates(stage)
    {
        stage.resize(1200, 800, 1.0F);
        stage.showStartScene();
    }

    ~SceneTest() override { stage.clear(); }

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

    void write(const QString& path, const QByteArray& text)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }

    static QByteArray read(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }

    bool run(const char* name, const QJsonValue& value = {})
    {
        error.clear();
        return stage.commands().run(QLatin1String(name), value, error);
    }

    /// What would be saved into the folder now.
    QByteArray text()
    {
        const std::optional<SceneDocument> document = captureScene(stage, error);
        EXPECT_TRUE(document) << error.toStdString();
        return document ? sceneText(*document, QDir(folder.path())) : QByteArray();
    }

    static int steps() { return nbUndoService::the()->getStack()->count(); }

    QTemporaryDir folder;
    nbOSGWidget view;
    Stage stage;
    TextureTool textures;
    TextureCommands textureCommands;
    PerspectiveMatchTool match;
    PlatesTool plates;
    QString error;
};

}  // namespace viewer
