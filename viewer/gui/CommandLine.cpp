// SPDX-License-Identifier: MIT
#include "viewer/gui/CommandLine.h"

#include "viewer/scenes/SceneDocument.h"
#include "viewer/texts/FileRules.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QRegularExpression>

#include <algorithm>

namespace viewer {
namespace {

const QString kSession = "session";
const QString kTour = "tour";
const QString kScreenshot = "screenshot";
const QString kOutput = "output";
const QString kSize = "size";
const QString kLanguage = "language";
const QString kHelp = "help";
const QString kVersion = "version";

QString languageNames()
{
    QStringList names;
    for (const Language language : kLanguages) {
        names.append(languageName(language));
    }
    return names.join(", ");
}

void addOptions(QCommandLineParser& parser)
{
    parser.addPositionalArgument(
        "files", "Models (OBJ, PLY, STL, glTF, GLB, 3DS, ...) and images, or one scene (.nbscene).",
        "[files...]");
    parser.addOptions({
        { kSession, "Replay a session, then quit.", "file.json" },
        { kTour,
          "Replay all shipped sessions with captions, then quit; Space pauses, Right goes on to "
          "the next, Esc quits; with --output without a person, as pictures." },
        { kScreenshot, "Write a picture of the 3D view, then quit.", "out.png" },
        { kOutput, "Where the pictures of a session go (default: here).", "folder" },
        { kSize,
          QStringLiteral("Size of the 3D view in pixels, each edge from %1 to %2.")
              .arg(kMinViewEdgePx)
              .arg(kMaxViewEdgePx),
          "WxH" },
        { kLanguage,
          QStringLiteral("Language of the window: %1 (default: that chosen last; English when the "
                         "program runs by itself).")
              .arg(languageNames()),
          "name" },
        { { "h", kHelp }, "Print the options." },
        { kVersion, "Print the version." },
    });
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
    static const QRegularExpression kPattern("^([0-9]{1,6})[xX]([0-9]{1,6})$");
    // Without a match both are 0.
    const QRegularExpressionMatch match = kPattern.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const bool isInRange = qMin(size.width(), size.height()) >= kMinViewEdgePx &&
        qMax(size.width(), size.height()) <= kMaxViewEdgePx;
    sizePx = isInRange ? size : sizePx;
    return isInRange;
}

bool parseCommandLine(const QStringList& arguments, CommandLine& options, QString& error)
{
    QCommandLineParser parser;
    addOptions(parser);
    // A parser takes the first one for the program's name.
    if (!parser.parse(QStringList { QString() } + arguments)) {
        error = parser.errorText();
        error.chop(1);
        error[0] = error[0].toLower();
        return false;
    }
    for (const QString& name : { kSession, kScreenshot, kOutput, kSize, kLanguage }) {
        if (parser.isSet(name) && parser.value(name).isEmpty()) {
            error = QStringLiteral("missing value after '--%1'").arg(name);
            return false;
        }
    }
    options.files = parser.positionalArguments();
    options.session = parser.value(kSession);
    options.screenshot = parser.value(kScreenshot);
    options.outputFolder = parser.value(kOutput);
    options.tourWanted = parser.isSet(kTour);
    options.helpWanted = parser.isSet(kHelp);
    options.versionWanted = parser.isSet(kVersion);
    const QString size = parser.value(kSize);
    if (!size.isEmpty() && !parseSize(size, options.sizePx)) {
        error = QStringLiteral("--size %1: expected WIDTHxHEIGHT, each from %2 to %3 pixels")
                    .arg(size)
                    .arg(kMinViewEdgePx)
                    .arg(kMaxViewEdgePx);
        return false;
    }
    const QString language = parser.value(kLanguage);
    options.language = languageFromName(language);
    if (!language.isEmpty() && !options.language) {
        error = QStringLiteral("--language %1: expected %2").arg(language, languageNames());
        return false;
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
        if (!isReadable(file, error)) {
            return false;
        }
    }
    if (!options.session.isEmpty() && !isReadable(options.session, error)) {
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
    QCommandLineParser parser;
    addOptions(parser);
    return parser.helpText();
}

}  // namespace viewer
