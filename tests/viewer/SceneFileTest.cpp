// SPDX-License-Identifier: MIT
#include "tests/viewer/support/SceneEdits.h"
#include "tests/viewer/support/SceneTest.h"
#include "viewer/commands/JsonReader.h"
#include "viewer/commands/SceneLimits.h"
#include "viewer/loading/BuiltModel.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/scenes/Recovery.h"
#include "viewer/textures/SurfaceMaterial.h"

#include <QJsonDocument>

#include <csignal>
#include <cstring>
#include <limits>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace viewer {
namespace {

template <class Number>
Number readBack(Number number)
{
    QString error;
    Number found[1] = {};
    const QByteArray text = QJsonDocument(QJsonArray { exactJson(number) }).toJson();
    const QJsonArray array = QJsonDocument::fromJson(text).array();
    EXPECT_TRUE(JsonReader(error).readExact(array, {}, found, 1)) << text.toStdString();
    return found[0];
}

TEST(ExactJson, GivesEveryFiniteNumberBackBitForBit)
{
    std::mt19937_64 random(11);
    std::vector<float> floats {
        0.0F, -0.0F, 0.1F, 16777216.0F, 1e-45F, -1e22F, std::numeric_limits<float>::max()
    };
    std::vector<double> doubles { -0.0, 0.1, 9007199254740993.0, 5e-324, 1e22, -1.5 };
    for (int i = 0; i < 5000; ++i) {
        const auto bits = static_cast<std::uint32_t>(random());
        float single = 0.0F;
        std::memcpy(&single, &bits, sizeof(single));
        floats.push_back(std::isfinite(single) ? single : 1.0F);
        doubles.push_back(std::ldexp(static_cast<double>(random()) * 0x1p-64,
                                     static_cast<int>(random() % 200) - 100));
    }

    for (const float number : floats) {
        const float found = readBack(number);
        ASSERT_EQ(std::memcmp(&found, &number, sizeof(number)), 0) << number;
    }
    for (const double number : doubles) {
        const double found = readBack(number);
        ASSERT_EQ(std::memcmp(&found, &number, sizeof(number)), 0) << number;
    }
    EXPECT_EQ(QJsonDocument(QJsonArray { exactJson(0.1F) }).toJson(QJsonDocument::Compact),
              "[0.1]");
}

using SceneFile = SceneTest;

TEST_F(SceneFile, SavedOpenedAndSavedAgainIsTheSameWhateverWasEdited)
{
    constexpr unsigned kScenes = 20;
    constexpr int kEdits = 25;
    const QString first = fileIn("first.nbscene");
    const QString second = fileIn("second.nbscene");
    for (unsigned seed = 0; seed < kScenes; ++seed) {
        stage.showStartScene();
        if (seed % 2 == 0) {
            addModel(model("lighthouse.glb"));
            addModel(model("tire.obj"));
        }
        Edits edits(stage, seed);
        for (int i = 0; i < kEdits; ++i) {
            edits.make();
        }

        ASSERT_TRUE(saveScene(stage, first, error)) << error.toStdString();
        ASSERT_TRUE(openScene(stage, first, error)) << "seed " << seed << error.toStdString();
        ASSERT_TRUE(saveScene(stage, second, error)) << error.toStdString();

        ASSERT_EQ(readFile(second), readFile(first)) << "seed " << seed;
        EXPECT_EQ(steps(), 0);
    }
}

TEST_F(SceneFile, KeepsTheWorldMatricesOfAShearedModel)
{
    // The shear of the upper node comes from the model alone.
    writeFile(fileIn("sheared.gltf"),
              R"({"asset": {"version": "2.0"}, "scene": 0, "scenes": [{"nodes": [0]}],
  "nodes": [{"name": "Top", "matrix": [1,0,0,0, 0.5,2,0,0, 0,0.25,1,0, 3,4,5,1], "children": [1]},
            {"name": "Leaf", "translation": [1, 0, 2], "mesh": 0}],
  "meshes": [{"primitives": [{"attributes": {"POSITION": 0}}]}],
  "accessors": [{"bufferView": 0, "componentType": 5126, "count": 3, "type": "VEC3",
                 "min": [0,0,0], "max": [1,1,0]}],
  "bufferViews": [{"buffer": 0, "byteLength": 36}],
  "buffers": [{"byteLength": 36,
               "uri": "data:application/octet-stream;base64,AAAAAAAAAAAAAAAAAACAPwAAAAAAAAAAAAAAAAAAgD8AAAAA"}]})");
    stage.clear();
    addModel(fileIn("sheared.gltf"));
    ASSERT_TRUE(stage.selectByName("sheared"));
    ASSERT_TRUE(run("object.rotation", QJsonArray { 10, 20, 30 })) << error.toStdString();
    ASSERT_TRUE(stage.selectByName("Leaf"));
    ASSERT_TRUE(run("object.translation", QJsonArray { 1, 2, 3 })) << error.toStdString();
    const osg::Matrix before = stage.selectedObject()->getToWorld();
    ASSERT_TRUE(saveScene(stage, fileIn("sheared.nbscene"), error)) << error.toStdString();
    const QByteArray saved = text();
    stage.showStartScene();

    ASSERT_TRUE(openScene(stage, fileIn("sheared.nbscene"), error)) << error.toStdString();

    ASSERT_TRUE(stage.selectByName("Leaf"));
    EXPECT_EQ(stage.selectedObject()->getToWorld(), before);
    EXPECT_EQ(text(), saved);
}

TEST_F(SceneFile, KeepsAPictureThatCameFromNoFile)
{
    stage.showStartScene();
    ASSERT_TRUE(stage.selectByName("Vase"));
    const osg::RefPtr<osg::ImagePtr> image(osg::Image::create());
    const std::vector<osg::UInt8> pixels { 1, 2, 3, 0, 250, 128, 7, 9, 4, 5, 6, 255, 0, 0, 0, 77 };
    image->set(osg::Image::OSG_RGBA_PF, 2, 2, 1, 1, 1, 0.0, pixels.data());
    textures.target().setImage(image.get(), ProjectionPose());
    ASSERT_TRUE(saveScene(stage, fileIn("painted.nbscene"), error)) << error.toStdString();

    ASSERT_TRUE(openScene(stage, fileIn("painted.nbscene"), error)) << error.toStdString();

    ASSERT_TRUE(stage.selectByName("Vase"));
    const osg::ImagePtr found = textures.target().image();
    ASSERT_NE(found, osg::NullFC);
    EXPECT_EQ(std::memcmp(found->getData(), pixels.data(), pixels.size()), 0);
}

TEST_F(SceneFile, FindsItsFilesAfterTheFolderMoved)
{
    const QDir base(folder.path());
    ASSERT_TRUE(base.mkpath("here/parts"));
    for (const char* name : { "boxes.obj", "boxes.mtl" }) {
        ASSERT_TRUE(QFile::copy(model(name), base.filePath("here/parts/") + name));
    }
    ASSERT_TRUE(QFile::copy(model("label.png"), base.filePath("here/label.png")));
    stage.clear();
    addModel(base.filePath("here/parts/boxes.obj"));
    stage.selectAll();
    ASSERT_TRUE(run("texture.picture", base.filePath("here/label.png"))) << error.toStdString();
    ASSERT_TRUE(saveScene(stage, base.filePath("here/scene.nbscene"), error));
    EXPECT_TRUE(readFile(base.filePath("here/scene.nbscene")).contains("\"parts/boxes.obj\""));
    ASSERT_TRUE(QDir(folder.path()).rename("here", "there"));

    EXPECT_TRUE(openScene(stage, base.filePath("there/scene.nbscene"), error))
        << error.toStdString();
    EXPECT_GT(stage.triangleCount(), 0U);
}

// == What cannot be opened

/// A scene with every kind of entry, as its JSON.
QByteArray richScene()
{
    return R"({"scene": 1,
 "camera": {"from": [1,2,3], "at": [0,0,0], "up": [0,1,0], "pivot": [0,0,0], "fov": 40},
 "models": [{"builtIn": "start scene",
   "nodes": [{"path": "4", "name": "Knot", "transform": {"translation": [1,"-0",2]}}],
   "surfaces": [{"object": "5", "name": "Vase", "ambient": [0,0,0], "diffuse": [1,1,1],
     "specular": [0,0,0], "emission": [0,0,0], "shininess": 20,
     "components": [{"name": "diffuse", "settings": {"flags": ["repeatU"]}}]}]}],
 "clipPlanes": [{"outline": 2, "frame": {"name": "Cut", "transform": {}}}],
 "tree": [{"kind": "plane", "number": 0, "children": [{"kind": "model", "number": 0}]},
          {"kind": "frame", "number": 0}],
 "plates": [{"name": "Bar", "anchor": "top", "position": [0,0], "size": [1,0.1], "order": 3}],
 "match": {"lines": [[0,0,1,1],[0,0,1,1],[0,0,1,1],[0,0,1,1],[0,0,1,1],[0,0,1,1]]}})";
}

TEST_F(SceneFile, ModelsOfOneFileShareWhatIsNotEdited)
{
    writeFile(fileIn("many.nbscene"), R"({"scene": 1,
 "camera": {"from": [1,2,3], "at": [0,0,0], "up": [0,1,0], "pivot": [0,0,0], "fov": 40},
 "models": [{"builtIn": "start scene"}, {"builtIn": "start scene",
   "nodes": [{"path": "4", "name": "Knot", "newName": "Other", "transform": {"scale": [2,2,2]}}],
   "surfaces": [{"object": "5", "name": "Vase", "ambient": [0,0,0], "diffuse": [1,0,0],
     "specular": [0,0,0], "emission": [0,0,0], "shininess": 9}]}]})");
    ASSERT_TRUE(openScene(stage, fileIn("many.nbscene"), error)) << error.toStdString();
    const osg::NodePtr root = nbScenegraph::getRootNode();
    ASSERT_EQ(root->getNChildren(), 2U);
    const auto surfaceAt = [&root](osg::UInt32 model, const char* name) {
        return ownSurfaces(findObject(root->getChild(model), name)).at(0)->getCore();
    };

    EXPECT_EQ(surfaceAt(0, "Knot"), surfaceAt(1, "Other"));
    EXPECT_NE(surfaceAt(0, "Vase"), surfaceAt(1, "Vase")) << "has a material of its own";
    EXPECT_EQ(findObject(root->getChild(1), "Knot"), osg::NullFC);
    const QByteArray saved = text();
    writeFile(fileIn("again.nbscene"), saved);
    ASSERT_TRUE(openScene(stage, fileIn("again.nbscene"), error)) << error.toStdString();
    EXPECT_EQ(text(), saved);
}

TEST_F(SceneFile, ARefusedFileNamesThePlaceAndLeavesTheSceneAsItIs)
{
    // part: of the sound scene
    const std::tuple<const char*, const char*, const char*> rows[] = {
        { "\"camera\"", "\"camera", "line 2, column" },
        { "\"scene\": 1", "\"scene\": 2", "scene: expected 1, the version of the format" },
        { "\"fov\": 40", "\"fov\": 1e39", "camera.fov: expected a number" },
        { "\"fov\": 40", "\"fov\": 0", "camera.fov: expected a number between 0 and 180" },
        { "\"fov\": 40", "\"fov\": 180", "camera.fov: expected a number between 0 and 180" },
        { "[1,2,3]", "[1,2,3e38]", "camera.from: expected numbers up to 1e+15" },
        { "\"fov\": 40", "\"fov\": 40, \"roll\": 0", "camera: unknown entry \"roll\"" },
        { "[1,2,3]", "[1,2]", "camera.from: expected an array of 3 numbers" },
        { "start scene", "end scene", "models[0]: there is no model \"end scene\"" },
        { "\"builtIn\": \"start scene\"", "\"file\": \"gone.obj\"", "gone.obj: no such file" },
        { "\"builtIn\": \"start scene\",", "", "models[0]: expected either" },
        { "\"path\": \"4\"", "\"path\": \"4/0/7\"", "models[0].nodes[0]: the model has no object" },
        { "\"name\": \"Knot\"", "\"name\": \"Not\"",
          "models[0].nodes[0]: expected \"Not\" in the model, which has \"Knot\" there" },
        { "{\"translation\": [1,\"-0\",2]}", "{\"scalePivot\": [3e38,0,0]}",
          "models[0].nodes[0].transform.scalePivot: expected numbers up to 1e+15" },
        { "{\"translation\": [1,\"-0\",2]}", "{\"scale\": [1,0,1]}",
          "models[0].nodes[0].transform.scale: expected numbers other than 0" },
        { "\"object\": \"5\"", "\"object\": \"5\", \"part\": 1",
          "models[0].surfaces[0]: the model has no surface" },
        { "\"name\": \"diffuse\"", "\"name\": \"diffuse\", \"picture\": \"gone.png\"",
          "models[0].surfaces[0].components[0].picture: " },
        { "\"name\": \"diffuse\"", "\"name\": \"diffuse\", \"picture\": {\"png\": \"AAAA\"}",
          "models[0].surfaces[0].components[0].picture: is no picture" },
        { "\"name\": \"diffuse\"", "\"name\": \"diffuse\", \"picture\": {\"png\": \"?\"}",
          "components[0].picture.png: expected a picture in base 64" },
        { "\"outline\": 2", "\"outline\": 0", "clipPlanes[0].outline: expected" },
        { ", \"transform\": {}}}]", "}}]", "clipPlanes[0].frame: \"transform\" is missing" },
        { "{\"kind\": \"frame\", \"number\": 0}", "{\"kind\": \"plane\", \"number\": 0}",
          "tree[1]: there is none of this number" },
        { "{\"kind\": \"model\", \"number\": 0}", "", "tree: a model, frame or plane is missing" },
        { "\"order\": 3", "\"order\": 3.5", "plates[0].order: expected a whole number" },
        { "\"lines\": [[0,0,1,1],", "\"lines\": [[0,0,1],",
          "match.lines[0]: expected an array of 4 numbers" },
        { "\"match\": {", "\"match\": {\"photograph\": \"gone.png\", ", "match.photograph: " },
    };
    ASSERT_TRUE(stage.selectByName("Vase"));
    ASSERT_TRUE(run("object.translation", QJsonArray { 1, 2, 3 }));
    const osg::NodePtr vase = stage.selectedObject();
    const QByteArray before = text();
    const QString path = fileIn("broken.nbscene");
    for (const auto& [part, instead, message] : rows) {
        SCOPED_TRACE(message);
        QByteArray broken = richScene();
        const int at = broken.indexOf(part);
        ASSERT_GE(at, 0);
        writeFile(path, broken.replace(at, static_cast<int>(std::strlen(part)), instead));

        EXPECT_FALSE(openScene(stage, path, error));

        EXPECT_TRUE(error.startsWith(path + ": ")) << error.toStdString();
        EXPECT_TRUE(error.contains(message)) << error.toStdString();
        EXPECT_FALSE(error.contains('\n'));
        EXPECT_EQ(text(), before);
        EXPECT_EQ(stage.selectedObject(), vase);
        EXPECT_EQ(steps(), 1);
    }
    writeFile(path, richScene());
    EXPECT_TRUE(openScene(stage, path, error)) << error.toStdString();
    EXPECT_EQ(steps(), 0);
    EXPECT_FALSE(openScene(stage, fileIn("absent.nbscene"), error));
    EXPECT_FALSE(openScene(stage, folder.path(), error)) << "a folder";
}

TEST_F(SceneFile, WhatCannotBeFoundAgainIsNotSaved)
{
    ModelData nowhere;
    nowhere.root.name = "Nowhere";
    stage.add(nowhere);

    EXPECT_FALSE(saveScene(stage, fileIn("scene.nbscene"), error));

    EXPECT_EQ(error, "\"Nowhere\" came from no file and cannot be saved");
    EXPECT_FALSE(QFile::exists(fileIn("scene.nbscene")));
}

// == Saving

TEST_F(SceneFile, WhatLiesBeyondTheLimitsIsSavedAtThem)
{
    ASSERT_TRUE(stage.selectByName("Vase"));
    ASSERT_TRUE(run("object.translation", QJsonArray { 1, 2, 3 }));
    const auto vase = osg::Transform3DPtr::dcast(stage.selectedObject()->getCore());
    vase->setTranslation(osg::Vec3f(NAN, -INFINITY, 1.0F));
    vase->setScale(osg::Vec3f(0.0F, -1e-30F, 1e30F));
    ASSERT_TRUE(run("scene.addClipPlane")) << "of no size";

    ASSERT_TRUE(saveScene(stage, fileIn("a.nbscene"), error)) << error.toStdString();
    ASSERT_TRUE(openScene(stage, fileIn("a.nbscene"), error)) << error.toStdString();

    ASSERT_TRUE(stage.selectByName("Vase"));
    const auto saved = osg::Transform3DPtr::dcast(stage.selectedObject()->getCore());
    EXPECT_EQ(saved->getTranslation(), osg::Vec3f(0.0F, -kLargestNumber, 1.0F));
    EXPECT_EQ(saved->getScale(), osg::Vec3f(kSmallestScale, -kSmallestScale, kLargestNumber));
}

TEST_F(SceneFile, AFullDiskLeavesTheOldFileAndNoOther)
{
    const QString path = fileIn("scene.nbscene");
    ASSERT_TRUE(saveScene(stage, path, error));
    const QByteArray before = readFile(path);
    ASSERT_TRUE(stage.selectByName("Vase"));
    ASSERT_TRUE(run("object.translation", QJsonArray { 1, 2, 3 }));
    // Files of this process stay below 100 bytes.
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit former {};
    getrlimit(RLIMIT_FSIZE, &former);
    rlimit small = former;
    small.rlim_cur = 100;
    setrlimit(RLIMIT_FSIZE, &small);

    EXPECT_FALSE(writePicture(fileIn("a.png"), QImage(90, 90, QImage::Format_RGB32), error));
    EXPECT_FALSE(saveScene(stage, path, error));

    setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, handler);
    EXPECT_TRUE(error.startsWith(path + ": ")) << error.toStdString();
    EXPECT_FALSE(error.contains('\n'));
    EXPECT_EQ(readFile(path), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList({ "scene.nbscene" }));
    EXPECT_TRUE(saveScene(stage, path, error)) << "there is room again";
    EXPECT_NE(readFile(path), before);
}

TEST_F(SceneFile, WhatAKilledProgramKeptIsTakenUpOnceAndThatOfARunningOneNever)
{
    const QDir kept(fileIn("kept"));
    const std::optional<SceneDocument> document = captureScene(stage, error);
    ASSERT_TRUE(document);
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t other = fork();
    if (other == 0) {
        Recovery recovery(kept);
        recovery.keep(*document, QImage());
        char answer = recovery.wait().isEmpty() ? 'y' : 'n';
        answer = ::write(ready[1], &answer, 1) == 1 ? answer : 'n';
        pause();
        _exit(0);
    }
    char answer = 'n';
    ASSERT_EQ(::read(ready[0], &answer, 1), 1);
    ASSERT_EQ(answer, 'y');
    {
        Recovery recovery(kept);
        EXPECT_FALSE(recovery.find()) << "it still runs";
        kill(other, SIGKILL);
        waitpid(other, nullptr, 0);
        ASSERT_EQ(mkfifo(kept.filePath("recovery-1.png").toLocal8Bit().constData(), 0600), 0);
        const std::optional<Recovery::Kept> found = recovery.find();
        ASSERT_TRUE(found);
        EXPECT_FALSE(recovery.find()) << "it is being offered";
        ASSERT_TRUE(recovery.takeUp(*found));
        EXPECT_TRUE(openScene(stage, recovery.file(), error)) << error.toStdString();
        EXPECT_FALSE(recovery.find()) << "once";
    }
    EXPECT_EQ(kept.entryList(QDir::Files), QStringList()) << "this one ended regularly";
    Recovery nowhere(QDir("/proc/nowhere"));
    EXPECT_EQ(nowhere.wait(), "") << "there is nothing to be kept yet";
    EXPECT_FALSE(nowhere.keep(*document, QImage()));
    EXPECT_NE(nowhere.wait(), "");
}

}  // namespace
}  // namespace viewer
