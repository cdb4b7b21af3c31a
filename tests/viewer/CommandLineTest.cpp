// SPDX-License-Identifier: MIT
#include "viewer/gui/CommandLine.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace viewer {
namespace {

TEST(CommandLine, TakesFilesAndOptionsInAnyOrder)
{
    CommandLine options;
    QString error;

    ASSERT_TRUE(parseCommandLine(
        { "a.obj", "--size", "16x8192", "--screenshot=out.png", "b.ply", "--", "-c.stl" }, options,
        error));

    EXPECT_EQ(options.files, QStringList({ "a.obj", "b.ply", "-c.stl" }));
    EXPECT_EQ(options.sizePx, QSize(16, 8192));
    EXPECT_EQ(options.screenshot, "out.png");
    EXPECT_TRUE(options.isUnattended());
}

TEST(CommandLine, SaysInOneLineWhichArgumentIsWrong)
{
    const std::pair<QStringList, const char*> rows[] = {
        { { "--frobnicate=3" }, "unknown option 'frobnicate'" },
        { { "-x" }, "unknown option 'x'" },
        { { "--tour=3" }, "after '--tour'" },
        { { "--session" }, "missing value after '--session'" },
        { { "--screenshot=" }, "missing value after '--screenshot'" },
        { { "--language", "Elvish" }, "--language Elvish: expected system, en, de, fr, zh_CN" },
        { { "--size", "15x100" }, "--size 15x100" },
        { { "--size", "100x8193" }, "from 16 to 8192" },
        { { "--size", "100" }, "--size 100" },
        { { "--size", "16x8192x3" }, "--size 16x8192x3" },
        { { "--size", "99999999999x100" }, "--size 99999999999x100" },
    };
    for (const auto& [arguments, part] : rows) {
        CommandLine options;
        QString error;

        EXPECT_FALSE(parseCommandLine(arguments, options, error)) << part;

        EXPECT_TRUE(error.contains(part)) << error.toStdString();
        EXPECT_FALSE(error.contains('\n'));
    }
}

TEST(CommandLine, FilesAndFoldersThatCannotBeThereAreNamed)
{
    const QTemporaryDir folder;
    const QString model = folder.filePath("model.obj");
    QFile(model).open(QIODevice::WriteOnly);

    const std::pair<QStringList, QString> rows[] = {
        { { folder.filePath("none.obj") }, "none.obj: no such file" },
        { { model, folder.path() }, ": not a file" },
        { { "--session", folder.filePath("none.json") }, "none.json: no such file" },
        { { "--screenshot", folder.filePath("none/out.png") }, "no such folder" },
        { { "--screenshot", folder.filePath("out.xyz") }, "not a picture format" },
        { { "--output", folder.filePath("none") }, "no such folder" },
        { { model, "--screenshot", folder.filePath("out.png"), "--output", folder.path() }, "" },
    };
    for (const auto& [arguments, part] : rows) {
        CommandLine options;
        QString error;
        ASSERT_TRUE(parseCommandLine(arguments, options, error)) << error.toStdString();

        EXPECT_EQ(checkCommandLine(options, error), part.isEmpty());

        EXPECT_TRUE(error.contains(part)) << error.toStdString();
    }
}

}  // namespace
}  // namespace viewer
