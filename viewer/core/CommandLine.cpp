// SPDX-License-Identifier: MIT
#include "viewer/core/CommandLine.h"

#include "viewer/core/SceneFile.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QRegularExpression>

#include <algorithm>

namespace viewer {
namespace {

QString languageNames()
{
    QStringList names;
    for (const Language language : kLanguages) {
        names.append(languageName(language));
    }
    return names.join(QStringLiteral(", "));
}

/// An option that takes a value, and what becomes of the value.
struct ValueOption
{
    const char* name;
    const char* valueName;
    bool (*store)(const QString& value, CommandLine& options, QString& error);
};

template <QString CommandLine::*target>
bool storeText(const QString& value, CommandLine& options, QString&)
{
    options.*target = value;
    return true;
}

bool storeSize(const QString& value, CommandLine& options, QString& error)
{
    if (!parseSize(value, options.sizePx)) {
        error = QStringLiteral("--size %1: expected WIDTHxHEIGHT, each from %2 to %3 pixels")
                    .arg(value)
                    .arg(kMinViewEdgePx)
                    .arg(kMaxViewEdgePx);
        return false;
    }
    return true;
}

bool storeLanguage(const QString& value, CommandLine& options, QString& error)
{
    options.language = languageFromName(value);
    if (!options.language) {
        error = QStringLiteral("--language %1: expected %2").arg(value, languageNames());
    }
    return options.language.has_value();
}

constexpr ValueOption kValueOptions[] = {
    { "--session", "file.json", &storeText<&CommandLine::session> },
    { "--screenshot", "out.png", &storeText<&CommandLine::screenshot> },
    { "--output", "folder", &storeText<&CommandLine::outputFolder> },
    { "--language", "name", &storeLanguage },
    { "--size", "WxH", &storeSize },
};

const ValueOption* findValueOption(const QString& name)
{
    for (const ValueOption& option : kValueOptions) {
        if (name == QLatin1String(option.name)) {
            return &option;
        }
    }
    return nullptr;
}

bool store(const ValueOption& option, const QString& value, CommandLine& options, QString& error)
{
    if (value.isEmpty()) {
        error = QStringLiteral("option %1 needs a value: %1 %2")
                    .arg(QLatin1String(option.name), QLatin1String(option.valueName));
        return false;
    }
    return option.store(value, options, error);
}

bool parseFlag(const QString& argument, CommandLine& options)
{
    if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
        options.helpWanted = true;
        return true;
    }
    if (argument == QLatin1String("--tour")) {
        options.tourWanted = true;
        return true;
    }
    if (argument == QLatin1String("--version")) {
        options.versionWanted = true;
        return true;
    }
    return false;
}

bool isReadableFile(const QString& path, QString& error)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        error = QStringLiteral("%1: no such file").arg(path);
    } else if (!info.isFile()) {
        error = QStringLiteral("%1: not a file").arg(path);
    } else if (!info.isReadable()) {
        error = QStringLiteral("%1: may not be read").arg(path);
    } else {
        return true;
    }
    return false;
}

bool isWritablePicture(const QString& path, QString& error)
{
    const QFileInfo info(path);
    const QByteArray format = info.suffix().toLower().toLatin1();
    if (!QImageWriter::supportedImageFormats().contains(format)) {
        error = QStringLiteral(
                    "--screenshot %1: not a picture format that can be written, such as .png")
                    .arg(path);
    } else if (!info.absoluteDir().exists()) {
        error = QStringLiteral("--screenshot %1: no such folder: %2").arg(path, info.path());
    } else if (info.isDir()) {
        error = QStringLiteral("--screenshot %1: is a folder").arg(path);
    } else {
        return true;
    }
    return false;
}

}  // namespace

bool parseSize(const QString& text, QSize& sizePx)
{
    static const QRegularExpression kPattern(QStringLiteral("^([0-9]{1,6})[xX]([0-9]{1,6})$"));
    const QRegularExpressionMatch match = kPattern.match(text);
    if (!match.hasMatch()) {
        return false;
    }
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const auto isInRange = [](int edge) {
        return edge >= kMinViewEdgePx && edge <= kMaxViewEdgePx;
    };
    if (!isInRange(size.width()) || !isInRange(size.height())) {
        return false;
    }
    sizePx = size;
    return true;
}

bool parseCommandLine(const QStringList& arguments, CommandLine& options, QString& error)
{
    bool onlyFiles = false;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (onlyFiles || !argument.startsWith(QLatin1Char('-')) || argument.size() == 1) {
            options.files.append(argument);
            continue;
        }
        if (argument == QLatin1String("--")) {
            onlyFiles = true;
            continue;
        }
        if (parseFlag(argument, options)) {
            continue;
        }
        const QString name = argument.section(QLatin1Char('='), 0, 0);
        const ValueOption* option = findValueOption(name);
        if (option == nullptr) {
            error = QStringLiteral("unknown option %1").arg(name);
            return false;
        }
        QString value;
        if (argument.size() > name.size()) {
            value = argument.mid(name.size() + 1);
        } else if (i + 1 < arguments.size()) {
            value = arguments.at(++i);
        }
        if (!store(*option, value, options, error)) {
            return false;
        }
    }
    return true;
}

bool checkCommandLine(const CommandLine& options, QString& error)
{
    const bool isScene = std::any_of(options.files.begin(), options.files.end(), &isSceneFileName);
    if (isScene && options.files.size() > 1) {
        error =
            QStringLiteral("%1: a scene can only be opened by itself").arg(options.files.first());
        return false;
    }
    for (const QString& file : options.files) {
        if (!isReadableFile(file, error)) {
            return false;
        }
    }
    if (!options.session.isEmpty() && !isReadableFile(options.session, error)) {
        return false;
    }
    if (!options.outputFolder.isEmpty() && !QFileInfo(options.outputFolder).isDir()) {
        error = QStringLiteral("--output %1: no such folder").arg(options.outputFolder);
        return false;
    }
    return options.screenshot.isEmpty() || isWritablePicture(options.screenshot, error);
}

QString commandLineHelp()
{
    return QStringLiteral(
               "usage: nbviewer [files] [options]\n"
               "  files                    models (OBJ, PLY, STL, glTF, GLB, 3DS, ...) and images "
               "to open,\n"
               "                           or one scene (.nbscene)\n"
               "  --session file.json      replay a session, then quit\n"
               "  --tour                   replay all shipped sessions with captions, then quit;\n"
               "                           Space pauses, Right goes on to the next, Esc quits; "
               "with\n"
               "                           --output without a person, as pictures\n"
               "  --screenshot out.png     write a picture of the 3D view, then quit\n"
               "  --output folder          where the pictures of a session go (default: here)\n"
               "  --size WxH               size of the 3D view in pixels, each edge from %1 to %2\n"
               "  --language name          language of the window: %3\n"
               "                           (default: that chosen last; English when the program "
               "runs "
               "by itself)\n"
               "  --help, --version\n")
        .arg(kMinViewEdgePx)
        .arg(kMaxViewEdgePx)
        .arg(languageNames());
}

}  // namespace viewer
