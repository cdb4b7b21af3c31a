// SPDX-License-Identifier: MIT
#include "tests/fuzz/FilePlay.h"

#include "viewer/loading/ModelRecords.h"
#include "viewer/loading/Shapes.h"
#include "viewer/match/PerspectiveMatchTool.h"
#include "viewer/plates/PlatesTool.h"
#include "viewer/stage/Stage.h"
#include "viewer/textures/TextureTool.h"

#include <OpenSG/OSGSimpleGeometry.h>

#include <QBuffer>
#include <QByteArray>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <random>

namespace viewer::test {
namespace {

/// The corpus and the shipped sessions, by name.
std::vector<std::pair<std::string, QByteArray>> allTexts()
{
    std::vector<std::pair<std::string, QByteArray>> texts;
    for (const char* folder : { NB_FILE_CORPUS, NB_SESSIONS }) {
        const QDir all(QLatin1String(folder), QStringLiteral("*.json *.nbscene *.txt"));
        for (const QString& name : all.entryList(QDir::Files)) {
            QFile file(all.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            texts.emplace_back(name.toStdString(), file.readAll());
        }
    }
    return texts;
}

std::vector<QByteArray> commandNames()
{
    nbOSGWidget view;
    Stage stage(view);
    TextureTool textures(stage);
    const PerspectiveMatchTool match(stage);
    const PlatesTool plates(stage);
    std::vector<QByteArray> names;
    for (const QString& name : stage.commands().names()) {
        names.push_back(name.toUtf8());
    }
    return names;
}

class FilePlay : public testing::Test
{
protected:
    FilePlay()
    {
        // What is made once per process and kept.
        osg::getDefaultMaterial();
        for (const auto& [name, text] : allTexts()) {
            playFile(text);
        }
    }
};

TEST_F(FilePlay, TheCorpusBreaksNothing)
{
    ASSERT_GT(allTexts().size(), 10U);
    for (const auto& [name, text] : allTexts()) {
        EXPECT_EQ(playFile(text), "") << name;
    }
}

TEST_F(FilePlay, CommandsInAnyOrderLeaveASceneThatCanBeOpened)
{
    const std::vector<QByteArray> names = commandNames();
    const char* const values[] = { "",
                                   "true",
                                   "false",
                                   "1",
                                   "-0.5",
                                   "1e15",
                                   "[1,2,3]",
                                   "[1e15,-1,0]",
                                   "\"0\"",
                                   "[\"0/0\"]",
                                   "1e300",
                                   "null",
                                   "{\"text\":\"a\"}",
                                   "[9,9]",
                                   "[\"1\"]" };
    const char* const arguments[] = {
        "--session", "--size=9x9",   "640x480", "--output",
        "/tmp",      "--screenshot", "a.png",   NB_SESSIONS "/camera.json",
        "--",        "-h",           "",        "=",
        "a.nbscene", "--size",       "\x80\xff"
    };
    std::mt19937 random(7);
    for (int run = 0; run < 20; ++run) {
        QByteArray lines = "nbviewer";
        for (unsigned i = random() % 5; i > 0; --i) {
            lines += ' ' + QByteArray(arguments[random() % std::size(arguments)]);
        }
        lines += '\n';
        for (int i = 0; i < 40; ++i) {
            lines += names[random() % names.size()] + ' ' + values[random() % std::size(values)];
            lines += random() % 4 == 0 ? "\nundo\n" : "\n";
        }
        ASSERT_EQ(playCommands(lines), "") << lines.toStdString();
    }
}

QByteArray soundRecords()
{
    QByteArray sound = progressRecord(0.5);
    ModelData model;
    model.materials.resize(1);
    model.meshes.push_back(makeBall(1.0F));
    model.root.meshes = { 0 };
    model.root.children.resize(2);
    writeModel(model, [&sound](const QByteArray& record) { sound += record; });
    return sound;
}

TEST_F(FilePlay, SceneModelAndPictureOutOfFilesBreakNothingTogether)
{
    QByteArray picture;
    QBuffer buffer(&picture);
    ASSERT_TRUE(QImage(4, 3, QImage::Format_RGB32).save(&buffer, "PNG"));
    const QByteArray sound = QByteArray(R"({"scene": 1,
 "camera": {"from": [1,2,3], "at": [0,0,0], "up": [0,1,0], "pivot": [0,0,0], "fov": 40},
 "models": [{"file": "a.obj"}, {"file": "a.obj", "nodes": [{"path": "1", "name": "", "newName": "b"}],
   "surfaces": [{"object": "", "name": "", "ambient": [0,0,0], "diffuse": [1,0,0],
     "specular": [0,0,0], "emission": [0,0,0], "shininess": 9,
     "components": [{"name": "diffuse", "picture": "a.png", "settings": {}}]}]}],
 "plates": [{"name": "p", "picture": "a.png", "position": [0,0], "size": [1,1]}]})") +
        kBetweenFiles + soundRecords() + kBetweenFiles + picture;
    ASSERT_EQ(playFile(sound), "");
    std::mt19937 random(11);
    for (int i = 0; i < 300; ++i) {
        QByteArray damaged = sound;
        for (unsigned n = random() % 3 + 1; n > 0; --n) {
            damaged[static_cast<int>(random() % static_cast<unsigned>(damaged.size()))] =
                static_cast<char>(random());
        }
        ASSERT_EQ(playFile(damaged), "");
    }
}

TEST(ModelPlay, DamagedRecordsAndPicturesBreakNothing)
{
    const QByteArray sound = soundRecords();
    std::mt19937 random(9);
    for (int i = 0; i < 2000; ++i) {
        QByteArray damaged = sound;
        for (unsigned n = random() % 4; n > 0; --n) {
            const int most = n == 1 ? 400 : damaged.size();
            damaged[static_cast<int>(random() % static_cast<unsigned>(most))] =
                static_cast<char>(random());
        }
        ASSERT_EQ(playModel(damaged), "");
    }
}

TEST_F(FilePlay, DamagedFilesBreakNothing)
{
    constexpr int kDamages = 12;
    std::mt19937 random(5);
    for (const auto& [name, text] : allTexts()) {
        for (int i = 0; i < kDamages; ++i) {
            QByteArray damaged = text;
            const int at = static_cast<int>(random()) & 0x7fffffff;
            damaged[at % damaged.size()] =
                static_cast<char>("0123456789-.e\"{}[],:"[random() % 20]);
            if (random() % 3 == 0) {
                damaged.truncate(static_cast<int>(random() % 100000) % damaged.size());
            }
            ASSERT_EQ(playFile(damaged), "") << name << '\n' << damaged.toStdString();
        }
    }
}

}  // namespace
}  // namespace viewer::test
