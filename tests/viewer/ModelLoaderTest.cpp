// SPDX-License-Identifier: MIT
// Loading in the background: what it tells, that it can be given up, and that nothing waits for a
// tree afterwards.
#include "viewer/gui/ModelLoader.h"

#include "tests/viewer/support/ShownWindow.h"

#include <nbInteraction/PickTreeBuilder.h>

#include <QProgressBar>
#include <QToolButton>

namespace viewer {
namespace {

class ModelLoaderTest : public ShownWindow
{
protected:
    ModelLoaderTest()
    {
        QObject::connect(&loader, &ModelLoader::finished, [this] { isFinished = true; });
        QObject::connect(&loader, &ModelLoader::failed, [this] { isFailed = true; });
    }

    const QString path = NB_VIEWER_FOLDER "/models/tire.obj";
    ModelLoader loader;
    bool isFinished = false;
    bool isFailed = false;
};

TEST_F(ModelLoaderTest, TellsBothPhasesInOrderAndBringsModelsWithTheirTrees)
{
    QList<int> percents;
    QList<ModelLoader::Phase> phases;
    QObject::connect(&loader, &ModelLoader::progressed, &loader,
                     [&](ModelLoader::Phase phase, const QString& file, int percent) {
                         EXPECT_EQ(file, path);
                         percents.append(percent);
                         phases.append(phase);
                     });

    loader.start({ path, path });
    waitUntil([this] { return isFinished; });

    ASSERT_FALSE(percents.isEmpty());
    EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
    EXPECT_EQ(percents.first(), 0);
    EXPECT_EQ(percents.last(), 100);
    EXPECT_TRUE(std::is_sorted(phases.begin(), phases.end()));
    EXPECT_EQ(phases.last(), ModelLoader::Phase::Preparing);
    const std::vector<BuiltModel> models = loader.takeModels();
    ASSERT_EQ(models.size(), 2U);
    EXPECT_EQ(models[1].triangles, models[0].triangles);
    // A builder over what has trees already finds nothing to tell of.
    int reports = 0;
    nbec::interaction::PickTreeBuilder again({ models[0].root.get(), models[1].root.get() });
    EXPECT_TRUE(again.build([&reports](double) { return ++reports > 0; }));
    EXPECT_EQ(reports, 0);
}

TEST_F(ModelLoaderTest, GivenUpInEitherPhaseItStaysSilent)
{
    for (const auto wanted : { ModelLoader::Phase::Reading, ModelLoader::Phase::Preparing }) {
        bool isCancelled = false;
        const auto connection =
            QObject::connect(&loader, &ModelLoader::progressed, &loader,
                             [&](ModelLoader::Phase phase, const QString&, int) {
                                 if (phase == wanted && !isCancelled) {
                                     isCancelled = true;
                                     loader.cancel();
                                 }
                             });
        loader.start({ path });
        waitUntil([&] { return isCancelled; });
        waitForQuiet();
        QObject::disconnect(connection);

        EXPECT_FALSE(loader.isRunning());
        EXPECT_FALSE(isFinished);
        EXPECT_FALSE(isFailed);
        EXPECT_TRUE(loader.takeModels().empty());
    }
    loader.start({ path });
    waitUntil([this] { return isFinished; });
    EXPECT_EQ(loader.takeModels().size(), 1U) << "it cannot be used any more";
}

TEST_F(ModelLoaderTest, EscapeOrTheButtonStopLoadingAndTheSceneStaysAsItWas)
{
    const std::size_t before = stage().triangleCount();
    auto* bar = find<QProgressBar>("progress");
    auto* stop = find<QToolButton>("stopLoading");
    bool isShown = false;
    QObject::connect(&window, &MainWindow::filesShown, [&isShown] { isShown = true; });

    for (const bool byKey : { true, false }) {
        window.openFiles({ path }, MainWindow::Opening::Replace);
        EXPECT_TRUE(bar->isVisibleTo(&window));
        EXPECT_TRUE(bar->text().contains("tire.obj")) << bar->text().toStdString();
        if (byKey) {
            pressKey(window.view(), Qt::Key_Escape);
        } else {
            stop->click();
        }
        waitForQuiet();

        EXPECT_FALSE(bar->isVisibleTo(&window));
        EXPECT_FALSE(isShown);
        EXPECT_EQ(stage().triangleCount(), before);
        EXPECT_FALSE(stage().selectedName().empty());
    }
}

}  // namespace
}  // namespace viewer
