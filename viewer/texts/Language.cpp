// SPDX-License-Identifier: MIT
#include "viewer/texts/Language.h"

#include "platform/nbUtils/nbQt.h"

#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <memory>
#include <vector>

/// Resources of a static library are taken into the program only when asked for, and that in no
/// namespace.
static void initialiseTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace viewer {
namespace {

struct LanguageRow
{
    const char* name;
    const char* title;
};

/// In the order of the enumeration.
constexpr std::array<LanguageRow, kLanguages.size()> kRows { {
    { "system", QT_TRANSLATE_NOOP("viewer::Language", "As the desktop") },
    { "en", "English" },
    { "de", "Deutsch" },
    { "fr", "Français" },
    { "zh_CN", "简体中文" },
} };

const LanguageRow& rowOf(Language language)
{
    return kRows[static_cast<std::size_t>(language)];
}

Language applied = Language::English;

/// Owned here, since the application only uses what is installed.
std::vector<std::unique_ptr<QTranslator>>& installed()
{
    static std::vector<std::unique_ptr<QTranslator>> translators;
    return translators;
}

void install(const QString& file, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(file, folder)) {
        QCoreApplication::installTranslator(translator.get());
        installed().push_back(std::move(translator));
    }
}

}  // namespace

QString languageName(Language language)
{
    return QLatin1String(rowOf(language).name);
}

QString languageTitle(Language language)
{
    const char* const title = rowOf(language).title;
    return language == Language::System ? QCoreApplication::translate("viewer::Language", title)
                                        : QString::fromUtf8(title);
}

std::optional<Language> languageFromName(const QString& name)
{
    const auto* const found =
        std::find_if(kLanguages.begin(), kLanguages.end(), [&name](Language language) {
            return name.compare(languageName(language), Qt::CaseInsensitive) == 0;
        });
    return found == kLanguages.end() ? std::nullopt : std::make_optional(*found);
}

Language languageOf(const QStringList& desktopLanguages)
{
    for (const QString& name : desktopLanguages) {
        switch (const QLocale locale(name); locale.language()) {
        case QLocale::English:
            return Language::English;
        case QLocale::German:
            return Language::German;
        case QLocale::French:
            return Language::French;
        case QLocale::Chinese:
            if (locale.script() == QLocale::SimplifiedChineseScript) {
                return Language::Chinese;
            }
            break;
        default:
            break;
        }
    }
    return Language::English;
}

void applyLanguage(Language language)
{
    initialiseTranslations();
    applied = language;
    installed().clear();
    const QLocale desktop = QLocale::system();
    const QString name =
        languageName(language == Language::System ? languageOf(desktop.uiLanguages()) : language);
    QLocale::setDefault(language == Language::System ? desktop : QLocale(name));
    // The one installed last is asked first.
    install(QStringLiteral("qtbase_") + name, nbQt::translationFolder());
    install(QStringLiteral("nbviewer_") + name, QStringLiteral(":/translations"));
}

Language appliedLanguage()
{
    return applied;
}

}  // namespace viewer
