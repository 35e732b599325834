#include "shell/session.h"

#include "actions/action_kinds.h"
#include "canvas/selection.h"
#include "database/catalogue.h"
#include "document/events.h"
#include "document/history.h"
#include "document/kinds.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "document/recovery.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/help.h"
#include "platform/multimedia.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "shell/commands.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

namespace corvanta {

namespace {

EventConnection showingCanvas;

bool isDrivePath(std::string_view path)
{
    const bool letter = path.size() > 1 && path[1] == ':' && ((path[0] | 0x20) >= 'a' && (path[0] | 0x20) <= 'z');
    return letter || (path.find('\\') != std::string_view::npos && path.find('/') == std::string_view::npos);
}

// A drive path from the drive's root on.
std::string absoluteDrivePath(const std::string &path)
{
    const std::string here = withTrailingBackslash(currentDirectory());
    const bool drive = path.size() > 1 && path[1] == ':';
    const std::string rest = drive ? path.substr(2) : path;
    if (rest.starts_with('\\'))
        return (drive ? path.substr(0, 2) : here.substr(0, 2)) + rest;
    return !drive || sameText(path.substr(0, 2), here.substr(0, 2)) ? here + rest : path;
}

// "file:///home/ann/a%20b.ods" as "/home/ann/a b.ods".
std::string pathOfAddress(std::string_view address)
{
    address.remove_prefix(std::string_view("file://").size());
    address.remove_prefix(std::min(address.find('/'), address.size())); // the host's name
    std::string path;
    for (std::size_t i = 0; i < address.size(); ++i) {
        unsigned value = 0;
        const char *digits = address.data() + i + 1;
        if (address[i] == '%' && i + 2 < address.size() &&
            std::from_chars(digits, digits + 2, value, 16).ptr == digits + 2) {
            path += static_cast<char>(value);
            i += 2;
        } else {
            path += address[i];
        }
    }
    return path;
}

std::string drivePathOfArgument(std::string_view argument)
{
    if (argument.starts_with("file://"))
        return drivePathOfArgument(pathOfAddress(argument));
    if (isDrivePath(argument)) {
        std::string path = fromUtf8Lossy(argument);
        std::replace(path.begin(), path.end(), '/', '\\');
        return absoluteDrivePath(path);
    }
    const std::string path = drivePath(std::filesystem::path(argument));
    return path.empty() ? fromUtf8Lossy(argument) : path;
}

void applySettings()
{
    WindowSettings current;
    if (sessionSteps().windowPlaces)
        current = sessionSteps().windowPlaces();
    current.ShowToolbar = pageMenuMarks().mockToolbar;
    current.ShowStatus = pageMenuMarks().statusPanel;
    current.ShowBindings = pageMenuMarks().bindings;
    const WindowSettings stored = loadSettings(current);
    setCatalogueTimes({stored.OdbcLoginTimeout, stored.OdbcCallTimeout});
    markMockToolbar(stored.ShowToolbar);
    markStatusPanel(stored.ShowStatus);
    markBindings(stored.ShowBindings);
    tell(sessionSteps().placeWindows, stored);
}

void storeSettings()
{
    if (!sessionSteps().windowPlaces)
        return;
    WindowSettings settings = sessionSteps().windowPlaces();
    settings.ShowToolbar = pageMenuMarks().mockToolbar;
    settings.ShowStatus = pageMenuMarks().statusPanel;
    settings.ShowBindings = pageMenuMarks().bindings;
    saveSettings(settings);
}

void startCanvas()
{
    tell(sessionSteps().loadCanvas);
    setCurrentObject(noObject);
    BuildActionKinds();
    buildKindRegistry();
    tell(sessionSteps().buildAddMenu);
    applySettings();
    page().bkgwd = page().bkght = 0; // the new page takes the size that the window has now
    tell(sessionSteps().showCanvas);
    if (roomCommands().toggleOdbc)
        markOdbcToolbar(true);
}

// A bare file name comes from the process's current directory; the page directory stays as the settings set it.
void openFromCurrentDirectory(const std::string &name)
{
    const std::string curdir = editing().curdir;
    openPage(withTrailingBackslash(currentDirectory()) + name);
    editing().curdir = curdir;
}

} // namespace

SessionSteps &sessionSteps()
{
    static SessionSteps steps;
    return steps;
}

CommandLineFile commandLineFile(std::string_view argument)
{
    if (argument.empty())
        return {};
    const std::string path = drivePathOfArgument(argument);
    if (directoryExists(path))
        return {withTrailingBackslash(path), {}};
    const bool bare = argument.find_first_of("/\\") == std::string_view::npos;
    return {bare ? std::string() : directoryPart(path), path.substr(path.rfind('\\') + 1)};
}

void startSession(std::string_view argument)
{
    showingCanvas = documentEvents().showCanvas.connect([loaded = false]() mutable {
        if (!loaded)
            startCanvas();
        loaded = true;
    });
    newPage();
    const CommandLineFile file = commandLineFile(argument);
    if (!file.directory.empty()) {
        editing().curdir = file.directory;
        changeDirectory(file.directory);
    }
    if (file.name.empty())
        return;
    if (file.directory.empty())
        return openFromCurrentDirectory(file.name);
    openPage(file.directory + file.name);
}

void keepSession()
{
    flushRecovery();
    storeSettings();
}

void interruptSession()
{
    stopRecovery(RecoveryFile::Keep);
    storeSettings();
}

void endSession()
{
    stopRecovery(RecoveryFile::Remove);
    mciSendString("Close all");
    clearObjects();
    stopHistory();
    wipe(page().dbconnect);
    storeSettings();
    showHelp(HelpCommand::Quit);
    if (pageMenuMarks().odbcToolbar)
        markOdbcToolbar(false);
    OdbcNameEndDll();
    tell(sessionSteps().unloadCanvas);
    showingCanvas.disconnect();
}

WindowSettings keptOnScreen(WindowSettings s, const ScreenSizes &sizes)
{
    s.PageHeight = std::min(s.PageHeight, sizes.screenHeight - sizes.frameHeight);
    s.PageWidth = std::min(s.PageWidth, sizes.screenWidth - sizes.frameWidth);
    s.MainTop = keptOnScreen(s.MainTop, sizes.mainHeight, sizes.screenHeight);
    s.MainLeft = keptOnScreen(s.MainLeft, sizes.mainWidth, sizes.screenWidth);
    s.PageTop = keptOnScreen(s.PageTop, s.PageHeight + sizes.frameHeight, sizes.screenHeight);
    s.PageLeft = keptOnScreen(s.PageLeft, s.PageWidth + sizes.frameWidth, sizes.screenWidth);
    return s;
}

} // namespace corvanta
