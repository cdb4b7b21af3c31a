// SPDX-License-Identifier: MIT
// The pages of the manual about the viewer name what it has, and nothing else; what they show can
// be played.
#include "tests/viewer/support/ShownWindow.h"
#include "viewer/core/CommandLine.h"
#include "viewer/core/SceneFields.h"
#include "viewer/core/Session.h"
#include "viewer/core/SessionNames.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <utility>

namespace viewer {
namespace {

const QString kPages = QStringLiteral(NB_VIEWER_FOLDER "/../docs/");

QString textOf(const QString& page)
{
    QFile file(kPages + page);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << page.toStdString();
    return QString::fromUtf8(file.readAll());
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

TEST(ViewerPage, NamesTheKeysOfSessions)
{
    const std::pair<const char*, SessionPart> parts[] = {
        { "### The session", SessionPart::Session },
        { "### Camera", SessionPart::Camera },
        { "### Steps", SessionPart::Step },
        { "### Places in the view", SessionPart::Target },
        { "### Checkpoints", SessionPart::Expectation },
        { "### Objects at a checkpoint", SessionPart::NodeExpectation },
    };
    for (const auto& [heading, part] : parts) {
        QStringList keys;
        for (const QStringList& cells : rowsOf(section("viewer.md", heading))) {
            keys += codesIn(cells.value(0));
        }
        EXPECT_EQ(listOf(keys), listOf(sessionKeys(part))) << heading;
    }
}

TEST(ViewerPage, NamesTheTypesOfSteps)
{
    QStringList types;

    for (const QStringList& cells : rowsOf(section("viewer.md", "### Steps"))) {
        types += matches(cells.value(0), "\"(\\w+)\"");
    }

    EXPECT_EQ(listOf(types), listOf(stepTypeNames()));
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

// == Scene files

/// An archive of SceneFields.h that writes down which keys each object has, once.
class KeyList
{
public:
    template <class Value>
    bool visit(Value value)
    {
        const QString outer = std::exchange(title, QLatin1String(titleOf(value)));
        if (!visited.contains(title)) {
            visited.insert(title);
            scenefields::describe(*this, value);
        }
        title = outer;
        return true;
    }

    template <class... Rest>
    bool field(const char* key, Rest&&...)
    {
        keys.append(title + QLatin1Char('.') + QLatin1String(key));
        return true;
    }

    template <class... Rest>
    bool words(const char* key, Rest&&...)
    {
        return field(key);
    }

    template <class... Rest>
    bool names(const char* key, Rest&&...)
    {
        return field(key);
    }

    bool version(const char* key, int /*number*/) { return field(key); }

    bool bits(const char* key, osg::UInt32& /*mask*/) { return field(key); }

    bool path(const char* key, QString& /*file*/) { return field(key); }

    template <class Value>
    bool object(const char* key, const Value&)
    {
        return field(key) && visit(Value());
    }

    template <class Value>
    bool part(const char* key, const std::optional<Value>&)
    {
        return field(key) && visit(Value());
    }

    template <class Value>
    bool list(const char* key, const std::vector<Value>&)
    {
        return field(key) && visit(Value());
    }

    QStringList keys;

private:
    static const char* titleOf(const SceneDocument&) { return "the scene"; }

    static const char* titleOf(const CameraPose&) { return "camera"; }

    static const char* titleOf(const SceneModel&) { return "model"; }

    static const char* titleOf(const SceneNode&) { return "node"; }

    static const char* titleOf(const nbTransformState&) { return "transform"; }

    static const char* titleOf(const SceneSurface&) { return "surface"; }

    static const char* titleOf(const SceneComponent&) { return "component"; }

    static const char* titleOf(const SceneSettings&) { return "settings"; }

    static const char* titleOf(const SceneClipPlane&) { return "clip plane"; }

    static const char* titleOf(const SceneBranch&) { return "branch"; }

    static const char* titleOf(const ScenePlate&) { return "plate"; }

    static const char* titleOf(const SceneMatch&) { return "match"; }

    QString title;
    QSet<QString> visited;
};

TEST(ViewerPage, NamesTheKeysOfSceneFiles)
{
    KeyList known;
    known.visit(SceneDocument());
    QStringList onPage;

    for (const QStringList& cells : rowsOf(section("scene-files.md", "## Keys"))) {
        for (const QString& key : codesIn(cells.value(1))) {
            onPage.append(cells.value(0) + QLatin1Char('.') + key);
        }
    }

    EXPECT_EQ(listOf(onPage), listOf(known.keys));
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

TEST_F(ViewerPages, ShowASceneFileThatIsOpened)
{
    const QTemporaryDir folder;
    const QStringList examples = examplesOf("scene-files.md");
    ASSERT_EQ(examples.size(), 1);
    QFile file(folder.filePath("a.nbscene"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(examples.first().toUtf8());
    file.close();

    EXPECT_TRUE(run("scene.open", file.fileName()));

    EXPECT_TRUE(stage().selectByName("Tall vase"));
    EXPECT_EQ(commands().value("plates.list"), QJsonValue(QJsonArray { "Corner" }));
}

}  // namespace
}  // namespace viewer
