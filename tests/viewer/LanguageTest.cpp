// SPDX-License-Identifier: MIT
// The program in other languages than its own.
#include "viewer/texts/Language.h"

#include "tests/viewer/support/ShownWindow.h"
#include "viewer/gui/LogPanel.h"
#include "viewer/gui/PanelDocks.h"
#include "viewer/texts/Text.h"

#include <nbNotification/NotificationManager.h>

#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QXmlStreamReader>

#include <set>

namespace viewer {
namespace {

constexpr std::array<Language, 3> kTranslations { Language::German, Language::French,
                                                  Language::Chinese };

/// What a file of translations has: texts of the program, and how they are said.
struct Texts
{
    std::set<QString> english;
    std::set<QString> translated;
};

Texts readTexts(Language language)
{
    const QString path = QStringLiteral(NB_VIEWER_FOLDER "/translations/nbviewer_%1.ts");
    Texts texts;
    for (QXmlStreamReader xml(readFile(path.arg(languageName(language)))); !xml.atEnd();
         xml.readNext()) {
        if (xml.isStartElement() && xml.name() == QLatin1String("source")) {
            texts.english.insert(xml.readElementText());
        } else if (xml.isStartElement() && xml.name() == QLatin1String("translation")) {
            texts.translated.insert(xml.readElementText(QXmlStreamReader::IncludeChildElements));
        }
    }
    return texts;
}

/// Everything that the window says: menus, tips, labels, titles, names for those who do not see.
std::set<QString> textsOf(const MainWindow& window)
{
    std::set<QString> texts;
    for (const QObject* object : window.findChildren<QObject*>()) {
        for (const char* property : { "text", "title", "toolTip", "windowTitle", "accessibleName",
                                      "placeholderText", "iconText" }) {
            texts.insert(object->property(property).toString());
        }
    }
    return texts;
}

void expectMnemonics(const QMenu& menu)
{
    std::set<QChar> letters;
    for (QAction* entry : menu.actions()) {
        const int mark = entry->text().indexOf(QLatin1Char('&'));
        // Panels name their own switches; there may be any number of recent
        // files.
        if (entry->isSeparator() || (mark < 0 && entry->objectName().isEmpty())) {
            continue;
        }
        ASSERT_GE(mark, 0) << entry->text().toStdString();
        EXPECT_TRUE(letters.insert(entry->text().at(mark + 1).toLower()).second)
            << menu.title().toStdString() << ": " << entry->text().toStdString();
    }
}

void expectMnemonicsOf(const QMenuBar& bar)
{
    const QList<QMenu*> menus = bar.findChildren<QMenu*>();
    EXPECT_GT(menus.size(), 8);
    for (const QMenu* menu : menus) {
        expectMnemonics(*menu);
    }
    std::set<QChar> letters;
    for (const QAction* entry : bar.actions()) {
        letters.insert(entry->text().at(entry->text().indexOf(QLatin1Char('&')) + 1));
    }
    EXPECT_EQ(static_cast<int>(letters.size()), bar.actions().size());
}

class LanguageTest : public ShownWindow
{
protected:
    LanguageTest()
    {
        window.resize(900, 700);
        waitForQuiet();
    }

    ~LanguageTest() override { applyLanguage(Language::English); }

    void speak(Language language)
    {
        run("settings.language", languageName(language));
        waitForQuiet();
    }

    void dragDown(QPointF from, double y)
    {
        constexpr int kSteps = 4;
        for (int i = 1; i <= kSteps; ++i) {
            move(from + QPointF(0, y * i / kSteps));
        }
        EXPECT_TRUE(stage().isDragging()) << "nothing is dragged";
    }

    QString textOverTheView()
    {
        const auto texts =
            nbec::notification::NotificationManager::getInstance()->getVisibleTexts(900, 700);
        return texts.empty() ? QString() : texts.back().text;
    }
};

TEST_F(LanguageTest, NothingInTheWindowStaysEnglishAndEveryEntryHasAMnemonicOfItsOwn)
{
    expectMnemonicsOf(*window.menuBar());
    for (const Language language : kTranslations) {
        const Texts texts = readTexts(language);
        EXPECT_GT(texts.translated.size(), 300U);
        speak(language);

        const std::set<QString> shown = textsOf(window);

        int translations = 0;
        for (const QString& text : shown) {
            translations += texts.translated.count(text) > 0 ? 1 : 0;
            EXPECT_FALSE(texts.english.count(text) > 0 && texts.translated.count(text) == 0)
                << languageName(language).toStdString() << ": " << text.toStdString();
        }
        EXPECT_GT(translations, 150);
        expectMnemonicsOf(*window.menuBar());
    }
}

TEST_F(LanguageTest, MenusAndTextsOverTheViewFollowAtOnce)
{
    speak(Language::German);
    EXPECT_EQ(window.menuBar()->actions().first()->text(), "&Datei");
    // How the keys are called is Qt's to translate.
    EXPECT_TRUE(action("fileOpen")->toolTip().startsWith(QString("Öffnen… (")));
    ASSERT_TRUE(stage().selectByName("Knot"));
    stage().showGizmo(Gizmo::Translate);
    waitForQuiet();
    const QPointF start = placeOf(SessionTarget::Kind::Handle, "yaShape");
    press(start);

    dragDown(start, -20);
    EXPECT_TRUE(textOverTheView().startsWith(QLatin1String("Verschiebung (0.00, ")))
        << textOverTheView().toStdString();
    applyLanguage(Language::French);
    dragDown(start, -40);
    EXPECT_TRUE(textOverTheView().startsWith(QLatin1String("Translation (0.00, ")))
        << textOverTheView().toStdString();
    applyLanguage(Language::German);
    release(start + QPointF(0, -40));
    waitForQuiet();

    // A step keeps the language in which it was done.
    EXPECT_EQ(nbUndoService::the()->getStack()->undoText(), "Entlang y verschieben");
    EXPECT_EQ(action("undo")->text(), "&Rückgängig: Entlang y verschieben");
    speak(Language::Chinese);
    EXPECT_TRUE(action("undo")->toolTip().startsWith(QString("撤销 Entlang y verschieben (")));
    speak(Language::English);
    EXPECT_EQ(window.menuBar()->actions().first()->text(), "&File");
}

TEST_F(LanguageTest, TheWindowStaysAsItIsApartFromItsTexts)
{
    window.panels().log().append(nbLog::Level::Warning, QStringLiteral("hold fast"));
    find<QDockWidget>("platesDock")->show();
    find<QToolBar>("sessionTools")->hide();
    ASSERT_TRUE(run("plates.edit", true));
    const int actions = window.findChildren<QAction*>().size();

    speak(Language::French);

    EXPECT_EQ(window.findChildren<QAction*>().size(), actions);
    EXPECT_TRUE(window.panels().log().toPlainText().endsWith("hold fast"));
    EXPECT_TRUE(find<QDockWidget>("platesDock")->isVisible());
    EXPECT_FALSE(find<QDockWidget>("sceneDock")->isVisible());
    EXPECT_TRUE(find<QToolBar>("sessionTools")->isHidden());
    EXPECT_TRUE(action("plates.edit")->isChecked());
    EXPECT_EQ(value("settings.language"), QJsonValue("fr"));
}

TEST(Language, TheDesktopsFirstLanguageThatThereIsCounts)
{
    const std::pair<QStringList, Language> rows[] = {
        { { "de-AT", "en-US" }, Language::German },
        { { "fr_CA" }, Language::French },
        { { "zh-Hans-CN" }, Language::Chinese },
        { { "zh_CN" }, Language::Chinese },
        { { "zh-Hant-TW", "de" }, Language::German },
        { { "ja-JP", "en", "de" }, Language::English },
        { { "C" }, Language::English },
        { {}, Language::English },
    };
    for (const auto& [desktop, language] : rows) {
        EXPECT_EQ(languageOf(desktop), language) << desktop.join(' ').toStdString();
    }
    EXPECT_EQ(languageFromName(QStringLiteral("ZH_cn")), Language::Chinese);
    EXPECT_EQ(languageFromName(QStringLiteral("xx")), std::nullopt);
}

}  // namespace
}  // namespace viewer
