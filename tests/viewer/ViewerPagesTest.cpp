// SPDX-License-Identifier: MIT
// The pages of the manual about the viewer name what it has, and nothing else; what they show can
// be played.
#include "tests/viewer/support/ShownWindow.h"
#include "viewer/gui/CommandLine.h"
#include "viewer/replay/Session.h"

#include <QRegularExpression>

#include <utility>

namespace viewer {
namespace {

const QString kPages = QStringLiteral(NB_VIEWER_FOLDER "/../docs/");

QString textOf(const QString& page)
{
    return QString::fromUtf8(readFile(kPages + page));
}

/// What stands between a heading and the next one.
QString section(const QString& page, const QString& heading)
{
    const QString text = textOf(page);
    const QString line = QLatin1Char('\n') + heading + QLatin1Char('\n');
    const int begin = text.indexOf(line);
    EXPECT_GE(begin, 0) << heading.toStdString();
    const int end = text.indexOf(QStringLiteral("\n#"), begin + line.size());
    return begin < 0 ? QString() : text.mid(begin, end < 0 ? -1 : end - begin);
}

QStringList matches(const QString& text, const char* pattern)
{
    QStringList found;
    auto match = QRegularExpression(QLatin1String(pattern)).globalMatch(text);
    while (match.hasNext()) {
        found.append(match.next().captured(1));
    }
    return found;
}

/// Cells of the rows of a text's tables, without headings.
QList<QStringList> rowsOf(const QString& text)
{
    QList<QStringList> rows;
    bool isInTable = false;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        const bool isRow = line.startsWith(QLatin1Char('|'));
        if (isRow && isInTable) {
            QStringList cells;
            for (const QString& cell : line.mid(1).split(QLatin1Char('|'))) {
                cells.append(cell.trimmed());
            }
            rows.append(cells);
        }
        isInTable = isRow && (isInTable || line.startsWith(QStringLiteral("|---")));
    }
    return rows;
}

QStringList codesIn(const QString& text)
{
    return matches(text, "`([^`]+)`");
}

/// One to a line, so that a failure shows the difference.
std::string listOf(QStringList names)
{
    names.sort();
    return names.join(QLatin1Char('\n')).toStdString();
}

/// Texts of the blocks of JSON on a page.
QStringList examplesOf(const QString& page)
{
    return matches(textOf(page), "(?s)\n```json\n(.*?)\n```\n");
}

class ViewerPages : public ShownWindow
{
protected:
    Commands& commands() { return stage().commands(); }
};

TEST_F(ViewerPages, NameTheCommandsAndValuesOfTheWindow)
{
    QStringList commandsOnPage;
    QStringList valuesOnPage;

    for (const QStringList& cells : rowsOf(textOf("commands.md"))) {
        const QStringList names = codesIn(cells.value(0));
        commandsOnPage += cells.value(1).isEmpty() ? QStringList() : names;
        valuesOnPage += cells.value(2).isEmpty() ? QStringList() : names;
    }

    EXPECT_EQ(listOf(commandsOnPage), listOf(commands().names()));
    EXPECT_EQ(listOf(valuesOnPage), listOf(commands().valueNames()));
    for (const char* page : { "commands.md", "viewer.md", "scene-files.md" }) {
        for (const QString& name :
             matches(textOf(page), "`((?:scene|view|object|texture|match|plates)\\.\\w+)`")) {
            EXPECT_TRUE(commandsOnPage.contains(name) || valuesOnPage.contains(name))
                << page << ": " << name.toStdString();
        }
    }
}

TEST_F(ViewerPages, SayWhichValuesTheirCommandsTake)
{
    const QJsonObject drop { { "file", NB_VIEWER_FOLDER "/models/label.png" },
                             { "at", QJsonObject { { "node", "Vase" } } } };
    ASSERT_TRUE(run("texture.drop", drop));
    ASSERT_TRUE(run("plates.addColor", QJsonObject { { "color", "red" } }));
    int count = 0;

    for (const QStringList& cells : rowsOf(textOf("commands.md"))) {
        const bool isTheSame =
            cells.value(2) == QStringLiteral("the same") || cells.value(1) == cells.value(2);
        const QStringList names = isTheSame ? codesIn(cells.value(0)) : QStringList();
        for (const QString& name : names.filter(QRegularExpression("^(?!texture.handles$)"))) {
            // Those of the texture tool may end that of the plates, and with it their selection.
            commands().run("plates.select", QJsonArray { "Colour" }, error);
            const QJsonValue value = commands().value(name).value_or(QJsonValue());
            EXPECT_FALSE(value.isNull()) << name.toStdString();
            EXPECT_TRUE(run(name.toUtf8(), value));
            EXPECT_TRUE(isNear(*commands().value(name), value, 1e-5)) << name.toStdString();
            ++count;
        }
    }
    EXPECT_GT(count, 40);
}

QString withStep(const QString& step)
{
    return QStringLiteral(R"({"session": 1, "size": [640, 480], "steps": [%1]})").arg(step);
}

TEST(ViewerPage, NamesKeysOfSessionsAndTypesOfStepsThatThereAre)
{
    // Sound without the key.
    const std::pair<const char*, QString> parts[] = {
        { "### The session", R"({"%1": null, "session": 1, "size": [640, 480], "steps": []})" },
        { "### Camera",
          R"({"session": 1, "size": [640, 480], "steps": [], "camera":
              {"%1": null, "from": [0, 0, 1], "at": [0, 0, 0], "up": [0, 1, 0]}})" },
        { "### Steps", withStep(R"({"%1": null, "type": "leave"})") },
        { "### Places in the view",
          withStep(R"({"type": "move", "at": {"%1": null, "node": "Knot"}})") },
        { "### Checkpoints",
          withStep(R"({"type": "checkpoint", "name": "a", "expect": {"%1": null}})") },
        { "### Objects at a checkpoint", withStep(R"({"type": "checkpoint", "name": "a", "expect":
                       {"nodes": {"Knot": {"%1": null, "scale": [1, 1, 1]}}}})") },
    };
    for (const auto& [heading, text] : parts) {
        for (const QStringList& cells : rowsOf(section("viewer.md", heading))) {
            for (const QString& key : codesIn(cells.value(0))) {
                QString error;
                parseSession(QString(text).arg(key).toUtf8(), error);
                EXPECT_FALSE(error.contains("unknown entry")) << error.toStdString();
            }
        }
    }
    int count = 0;
    for (const QStringList& cells : rowsOf(section("viewer.md", "### Steps"))) {
        for (const QString& type : matches(cells.value(0), "\"(\\w+)\"")) {
            QString error;
            parseSession(withStep(QStringLiteral(R"({"type": "%1"})").arg(type)).toUtf8(), error);
            EXPECT_FALSE(error.contains("unknown type")) << error.toStdString();
            ++count;
        }
    }
    EXPECT_EQ(count, static_cast<int>(SessionStep::Type::Checkpoint) + 1);
}

TEST(ViewerPage, NamesTheOptions)
{
    QStringList options;

    for (const QStringList& cells : rowsOf(section("viewer.md", "## Starting"))) {
        options += matches(cells.value(0), "(--\\w+)");
    }

    options.removeDuplicates();
    QStringList known = matches(commandLineHelp(), "(--\\w+)");
    known.removeDuplicates();
    EXPECT_EQ(listOf(options), listOf(known));
}

// == Examples

TEST_F(ViewerPages, ShowSessionsThatMeetTheirCheckpoints)
{
    QStringList examples = examplesOf("viewer.md") + examplesOf("commands.md");
    ASSERT_EQ(examples.size(), 2);
    for (const QString& example : examples) {
        std::optional<Session> session = parseSession(example.toUtf8(), error);
        ASSERT_TRUE(session) << error.toStdString();
        session->folder = kPages;

        replay(*session);

        EXPECT_EQ(problems, QStringList());
        EXPECT_EQ(window.player().getFailures(), QStringList());
    }
}

}  // namespace
}  // namespace viewer
