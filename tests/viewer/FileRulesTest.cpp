// SPDX-License-Identifier: MIT
// What files from strangers may do: docs/safety.md.
#include "viewer/texts/FileRules.h"

#include "tests/viewer/support/SceneTest.h"
#include "viewer/loading/PictureFile.h"

#include <QFileInfo>

#include <sys/stat.h>

namespace viewer {
namespace {

using FileRules = SceneTest;

TEST_F(FileRules, OnlyRegularFilesOfThisMachineAreOpened)
{
    const QString pipe = fileIn("pipe.png");
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    ASSERT_TRUE(QFile::link("/dev/zero", fileIn("endless.nbscene")));
    for (const QString& path :
         { pipe, fileIn("endless.nbscene"), QStringLiteral("/dev/full"), folder.path(),
           QStringLiteral("/proc/self/maps"), QStringLiteral("//server/share/a.png"),
           QStringLiteral("smb://server/a.png") }) {
        SCOPED_TRACE(path.toStdString());
        QByteArray bytes;
        for (const auto& open : std::vector<std::function<bool()>> {
                 [&] { return readWhole(path, 100, bytes, error); },
                 [&] { return !decodePictureFile(path, error).isNull(); },
                 [&] { return openScene(stage, path, error); },
                 [&] { return readModelFile(path, {}, error).has_value(); } }) {
            error.clear();
            EXPECT_FALSE(open());
            EXPECT_TRUE(error.startsWith(path + ": ")) << error.toStdString();
        }
    }
    ModelReader::Limits hasty;
    hasty.patienceMs = 5000;
    writeFile(fileIn("a.obj"), "mtllib pipe.png\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n");
    EXPECT_TRUE(ModelReader(hasty).read(fileIn("a.obj"), {}, error)) << error.toStdString();
    EXPECT_FALSE(saveScene(stage, "/dev/full", error));
    EXPECT_FALSE(writePicture("/dev/null", QImage(2, 2, QImage::Format_RGB32), error));
    EXPECT_FALSE(saveScene(stage, pipe, error));
}

TEST_F(FileRules, WhatASessionWritesLiesInItsFolderAndIsOfItsKind)
{
    const QDir out(fileIn("out"));
    ASSERT_TRUE(QDir(folder.path()).mkpath("out/deep"));
    writeFile(fileIn("out/kept.sh"), "echo");
    ASSERT_TRUE(QFile::link(fileIn("victim.nbscene"), out.filePath("link.nbscene")));
    ASSERT_TRUE(QFile::link(folder.path(), out.filePath("way")));
    ASSERT_EQ(mkfifo(out.filePath("pipe.nbscene").toLocal8Bit().constData(), 0600), 0);

    for (const char* name : { "a.nbscene", "deep/a.NBSCENE", "deep/../a.nbscene" }) {
        EXPECT_TRUE(pathInside(out, name, ".nbscene", error).startsWith(out.path() + '/')) << name;
    }
    EXPECT_NE(pathInside(QDir("/"), "tmp/a.png", ".png", error), "");
    for (const QString& name : std::initializer_list<QString> {
             "../a.nbscene", "/tmp/a.nbscene", "kept.sh", "a.nbscene.sh", "", "link.nbscene",
             "way/a.nbscene", "pipe.nbscene", "none/a.nbscene", "deep", "../out-of-it/a.nbscene",
             QString("kept.sh%1.nbscene").arg(QChar(0)), "a\x1b[2J.nbscene" }) {
        error.clear();
        EXPECT_EQ(pathInside(out, name, ".nbscene", error), "") << name.toStdString();
        EXPECT_NE(error, "") << name.toStdString();
    }
    EXPECT_EQ(oneLine("a\nb\x1b[2J"), "a b [2J");
}

TEST_F(FileRules, APictureTellsItsSizeBeforeItIsDecoded)
{
    // 30,000 x 30,000 pixels of one bit: small on the disk, 3.6 GB when decoded.
    writeFile(fileIn("huge.pbm"), "P4\n30000 30000\n" + QByteArray(100, '\0'));
    writeFile(fileIn("drawn.png"),
              "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    EXPECT_TRUE(decodePictureFile(fileIn("huge.pbm"), error).isNull());
    EXPECT_TRUE(error.contains("huge.pbm: the picture has 30000 x 30000")) << error.toStdString();
    EXPECT_TRUE(decodePictureFile(fileIn("drawn.png"), error).isNull());
    EXPECT_TRUE(error.contains("is no picture")) << "kinds that lead to other files";

    const QSize size(100, 50);
    writePlainPicture(fileIn("a.png"), size, Qt::red);
    EXPECT_EQ(decodePictureFile(fileIn("a.png"), error).size(), size);
    setPictureBudget(100 * 50 * 4 - 1);
    EXPECT_EQ(readPicture(fileIn("a.png"), error), osg::NullFC);
    EXPECT_FALSE(readModelFile(fileIn("a.png"), {}, error));
    setPictureBudget(256LL << 20);
}

}  // namespace
}  // namespace viewer
