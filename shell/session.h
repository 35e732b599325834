#pragma once

#include "document/settings.h"

#include <functional>
#include <string>
#include <string_view>

// How a session of the editor begins and ends: the order of the steps. The windows do their part of them.
namespace corvanta {

struct SessionSteps {
    std::function<void()> loadCanvas;                         // creates the canvas window, not yet shown
    std::function<void()> buildAddMenu;                       // the kinds are registered
    std::function<WindowSettings()> windowPlaces;             // as the windows stand
    std::function<void(const WindowSettings &)> placeWindows; // onto the screen
    std::function<void()> showCanvas;
    std::function<void()> unloadCanvas;
};

SessionSteps &sessionSteps();

// Page files on the command line: a path of the host ("pages/menu.ods") or of a drive ("C:\PAGES\MENU.ODS"),
// in UTF-8.
struct CommandLineFile {
    std::string directory; // drive path with its trailing "\"; empty for a bare file name
    std::string name;      // empty when a directory was named
};

CommandLineFile commandLineFile(std::string_view argument);

// Begins the session with a new page or the page file of the command line (empty for none). The first new page
// loads and shows the canvas window.
void startSession(std::string_view argument);

// The session manager may end the session: settings and changes are stored, and it goes on for now.
void keepSession();

// The system ends the program: the settings are stored, and the recovery file of a page with changes is kept. Nobody is
// asked. endSession follows.
void interruptSession();

// Ends it; querySave has agreed.
void endSession();

// The sizes (twips) that decide where windows are kept on the screen.
struct ScreenSizes {
    int mainHeight = 0, mainWidth = 0;
    int frameHeight = 0, frameWidth = 0; // what a window's frame adds to the canvas
    int screenHeight = 0, screenWidth = 0;
};

// The settings with both windows on the screen: the canvas is cut to its size, both are moved.
WindowSettings keptOnScreen(WindowSettings settings, const ScreenSizes &sizes);

} // namespace corvanta
