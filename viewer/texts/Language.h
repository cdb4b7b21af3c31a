// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace viewer {

/// Language of the window.
enum class Language
{
    System,  ///< the first one of the desktop that there is, else English
    English,
    German,
    French,
    Chinese  ///< simplified
};

constexpr std::array<Language, 5> kLanguages { Language::System, Language::English,
                                               Language::German, Language::French,
                                               Language::Chinese };

/// Word for a language in settings and on the command line: "system", or the locale's name, such as
/// "de" or "zh_CN".
QString languageName(Language language);

/// What a person chooses from: the name of a language in itself, for Language::System a
/// text in the program's present one.
QString languageTitle(Language language);

/// @return nothing for an unknown word
std::optional<Language> languageFromName(const QString& name);

/// The language that a desktop gets whose own languages are these, the most wanted one first:
/// locale names such as "de-AT" or "zh_Hans_CN".
Language languageOf(const QStringList& desktopLanguages);

/// Lets the application, which must exist, speak a language, with Qt's own dialogs as far as Qt's
/// translations are installed, and write numbers as it is usual there. Every window is told by an
/// event of its own (LanguageChange). Without a call the program speaks English.
void applyLanguage(Language language);

/// What applyLanguage() was called with last.
Language appliedLanguage();

}  // namespace viewer
