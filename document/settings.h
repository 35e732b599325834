#pragma once

#include <cstdint>

// Window positions, check marks and the page directory, kept in CORVANTA.INI between runs.
namespace corvanta {

struct WindowSettings {
    int MainTop = 0, MainLeft = 0;                                // twips
    int PageTop = 0, PageLeft = 0, PageHeight = 0, PageWidth = 0; // twips
    bool ShowToolbar = true, ShowStatus = true;
    bool ShowBindings = false;                      // bound fields show their names
    int OdbcLoginTimeout = 5, OdbcCallTimeout = 15; // seconds, 1 to 3600; read, not stored
};

// The settings as stored; a value that is absent is taken from the argument. Sets curdir to the stored
// directory, or to the process's current directory when there is none of that name.
WindowSettings loadSettings(const WindowSettings &current);

// Stores the settings and curdir. False when the file could not be written.
bool saveSettings(const WindowSettings &settings);

// Moves a window's edge back onto the screen: the position (twips) of a window of this extent on a
// screen of this size, never negative.
int keptOnScreen(int position, int extent, int screen);

} // namespace corvanta
