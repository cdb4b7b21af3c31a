// SPDX-License-Identifier: MIT
#include "tests/fuzz/FilePlay.h"

#include <OpenSG/OSGSimpleGeometry.h>

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <random>

namespace viewer::test {
namespace {

std::string play(const QByteArray& text)
{
    return playFile(reinterpret_cast<const std::uint8_t*>(text.constData()),
                    static_cast<std::size_t>(text.size()));
}

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

class FilePlay : public testing::Test
{
protected:
    FilePlay()
    {
        // What is made once per process and kept.
        osg::getDefaultMaterial();
        for (const auto& [name, text] : allTexts()) {
            play(text);
        }
    }
};

TEST_F(FilePlay, TheCorpusBreaksNothing)
{
    ASSERT_GT(allTexts().size(), 10U);
    for (const auto& [name, text] : allTexts()) {
        EXPECT_EQ(play(text), "") << name;
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
            ASSERT_EQ(play(damaged), "") << name << '\n' << damaged.toStdString();
        }
    }
}

}  // namespace
}  // namespace viewer::test
