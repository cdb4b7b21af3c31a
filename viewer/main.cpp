// SPDX-License-Identifier: MIT
#include "viewer/gui/CommandLine.h"
#include "viewer/gui/HelpPages.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/StartUp.h"
#include "viewer/gui/WindowMemory.h"
#include "viewer/replay/Session.h"
#include "viewer/texts/Language.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbUtils/nbQt.h>

#include <OpenSG/OSGBaseFunctions.h>

#include <QApplication>
#include <QIcon>
#include <QSurfaceFormat>
#include <QTimer>

#include <atomic>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <optional>

#include <sys/resource.h>

namespace {

using viewer::CommandLine;
using viewer::StartUp;

/// OpenGL 3.3 core for every view; the render action has samples of its own.
void requestGraphics()
{
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(format);
}

QStringList argumentsAfterName(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    return arguments;
}

/// Whether the system allows what starting takes; with less, libraries wait for ever or fault.
bool hasResources(QString& error)
{
    rlimit files {};
    rlimit bytes {};
    error = "the system allows too little: 32 open files and 1 GiB of memory are needed";
    return getrlimit(RLIMIT_NOFILE, &files) == 0 && getrlimit(RLIMIT_AS, &bytes) == 0 &&
        files.rlim_cur >= 32 && bytes.rlim_cur >= 1U << 30;
}

/// Looks through the command line before any window exists.
/// @return an exit status if the program is to end with it
std::optional<int> prepare(const QStringList& arguments, CommandLine& options,
                           std::optional<viewer::Session>& session)
{
    QString error;
    const auto refuse = [&error] {
        StartUp::complain(error);
        return StartUp::kBadInputStatus;
    };
    if (!viewer::parseCommandLine(arguments, options, error)) {
        return refuse();
    }
    if (options.helpWanted) {
        // The text takes the program's name from the application.
        char name[] = "nbviewer";
        char* names[] = { name, nullptr };
        int count = 1;
        const QCoreApplication application(count, names);
        std::fputs(qPrintable(viewer::commandLineHelp()), stdout);
        return 0;
    }
    if (options.versionWanted) {
        std::printf("nbviewer %s\n", viewer::programVersion());
        return 0;
    }
    if (!hasResources(error) || !viewer::checkCommandLine(options, error)) {
        return refuse();
    }
    if (!options.session.isEmpty()) {
        session = viewer::readSessionFile(options.session, error);
        if (!session) {
            return refuse();
        }
    }
    if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
        !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        error = "there is no display; ./nb run brings its own";
        return refuse();
    }
    return std::nullopt;
}

int runWindow(QApplication& application, const CommandLine& options,
              const std::optional<viewer::Session>& session)
{
    using Attendance = viewer::MainWindow::Attendance;
    viewer::MainWindow window(options.isUnattended() ? Attendance::Unattended
                                                     : Attendance::Attended);
    StartUp startUp(window, options, session);
    // From the event loop, which alone can be ended.
    QTimer::singleShot(0, &startUp, &StartUp::run);
    return application.exec();
}

}  // namespace

int main(int argc, char** argv)
{
    std::signal(SIGXFSZ, SIG_IGN);  // a file that may not be so large is an error to be told
    // Warnings of Qt's readers of pictures quote strangers' files, without end.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
        static std::atomic<int> left { 20 };
        if (left-- > 0) {
            StartUp::complain(text);
        }
    });
    CommandLine options;
    std::optional<viewer::Session> session;
    if (const std::optional<int> status =
            prepare(argumentsAfterName(argc, argv), options, session)) {
        return *status;
    }
    requestGraphics();
    // Pictures have the size that was asked for, whatever the screen is like.
    if (options.isUnattended()) {
        qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
    }
    nbQt::useHighDpi();
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    // Qt's own options are none of this program's, so it gets the name only.
    int qtArgc = 1;
    QApplication application(qtArgc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("nbviewer"));
    QCoreApplication::setOrganizationName(QStringLiteral("nbviewer"));
    QGuiApplication::setDesktopFileName(QStringLiteral("nbviewer.desktop"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/nbviewer.svg")));
    // Numbers have a point, whatever the language of the desktop.
    std::setlocale(LC_NUMERIC, "C");
    // Pictures and sessions are the same on every desktop.
    viewer::applyLanguage(options.language.value_or(
        options.isUnattended() ? viewer::Language::English : viewer::memory::language()));
    osg::osgInit(argc, argv);
    const int status = runWindow(application, options, session);
    nbController::clear();
    nbScenegraph::clear();
    osg::osgExit();
    return status;
}
