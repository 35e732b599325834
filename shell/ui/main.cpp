#include "database/catalogue.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/post.h"
#include "platform/qt/qt_pictures.h"
#include "shell/session.h"
#include "shell/ui/hpsedit.h"
#include "shell/ui/missing_display.h"
#include "shell/ui/pause_watch.h"
#include "shell/ui/rooms.h"
#include "shell/ui/signals.h"
#include "shell/ui/startup.h"

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QTimer>

#include <cstdlib>
#include <string>

namespace {

using namespace corvanta;

constexpr int wrongUsage = 2;
constexpr int leavingBeat = 20; // milliseconds

struct CommandLine {
    std::string pageFile;
    int codePage = 0;
};

void describe(CLI::App &usage, CommandLine &line)
{
    usage.set_version_flag("--version", "Corvanta Form Editor " CORVANTA_VERSION);
    usage.add_option("PAGE.ods", line.pageFile, "page file to open: a path of the system, or a drive path");
    usage
        .add_option("--codepage", line.codePage,
                    "code page of the pages' texts (874, 1250 to 1258); else CORVANTA_CODEPAGE, else the language's")
        ->check(CLI::Validator(
            [](const std::string &number) { return setCodePage(std::atoi(number.c_str())) ? "" : "unknown code page"; },
            "NUMBER"));
}

int runEditor(int argc, char **argv)
{
    takeFileErrorsAsErrors();
    CommandLine line;
    CLI::App usage("Lays out the pages of a host online service.", "corvanta");
    describe(usage, line);
    try {
        usage.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return usage.exit(error) == 0 ? 0 : wrongUsage;
    }
    watchForMissingDisplay();
    QApplication application(argc, argv);
    displayFound();
    watchFirstPaint(2);
    QApplication::setApplicationName("corvanta");
    QApplication::setApplicationVersion(CORVANTA_VERSION);
    QApplication::setDesktopFileName("corvanta");
    QApplication::setQuitOnLastWindowClosed(false);
    setCodePage(chosenCodePage(line.codePage));
    installDesktop();
    EditorWindows windows;
    windows.ended = &QApplication::quit;
    const Rooms rooms(windows);
    QTimer leaving; // out of every dialog and message, without asking the windows; their session ends below
    QObject::connect(&leaving, &QTimer::timeout, [] { QApplication::exit(0); });
    watchSignals([&leaving] {
        interruptSession();
        leaving.start(leavingBeat);
    });
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &application, keepSession,
                     Qt::DirectConnection);
    windows.start(line.pageFile);
    watchPauses();
    const int code = leaving.isActive() ? 0 : QApplication::exec(); // a signal may come during the start
    windows.end();
    setEventLoop({}); // abandoned threads tell nothing any more
    return code;
}

} // namespace

int main(int argc, char **argv)
{
    const int code = runEditor(argc, argv);
    if (catalogueInUse() || pictureInUse()) // a thread is in a driver or decodes: nothing that it uses may be torn down
        std::_Exit(code);
    return code;
}
