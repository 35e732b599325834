#pragma once

#include "platform/event.h"
#include "shell/menu_table.h"

#include <functional>
#include <string>

// What the main window's commands do on the process-wide page, and when they can be used.
namespace corvanta {

// The commands whose windows stand in other rooms; each room fills its own at start-up. A command whose function is
// empty is disabled.
struct RoomCommands {
    std::function<void()> openObjectProperties; // of the current object
    std::function<void()> openPageProperties;
    std::function<void()> showObjectList;
    std::function<void()> showDirectory;
    std::function<void(bool)> toggleOdbc; // shows or hides the ODBC tool window
    std::function<void()> exportHtml;
    std::function<void()> playAnimation; // the current one
    std::function<void()> helpContents, helpSearch;
    std::function<void()> about;
    std::function<void()> openSharedProperties; // of the multi-selection
    std::function<void()> checkPage, preview;
};

RoomCommands &roomCommands();

// What the commands tell the main and canvas windows.
struct CommandEvents {
    Event<> closeMain;           // as the user closes the main window
    Event<> marksChanged;        // check marks of the Page menu
    Event<bool> showMockToolbar; // on the canvas window
    Event<bool> showStatusPanel;
    Event<bool> showBindings;
};

CommandEvents &commandEvents();

// The check marks of the Page menu, and that of the canvas's context menu.
struct PageMenuMarks {
    bool mockToolbar = true, statusPanel = true, odbcToolbar = false, bindings = false;
};

const PageMenuMarks &pageMenuMarks();

// Sets a check mark and shows or hides what it stands for.
void markMockToolbar(bool shown);
void markStatusPanel(bool shown);
void markOdbcToolbar(bool shown);
void markBindings(bool shown);
// The ODBC tool window was closed by itself: its check mark goes.
void odbcToolbarClosed();

// What the selection switches.
struct ObjectCommandState {
    bool current = false;   // there is a current object: properties, duplicate, save, delete
    bool animation = false; // it is an Animation
    bool align = false;     // there is a current object and a multi-selection
    bool list = false;      // the page has objects
};

ObjectCommandState objectCommandState();

bool commandEnabled(Command command);
bool isMark(Command command); // is checked or not
bool commandChecked(Command command);
// What a command is called at the moment, where that changes ("Undo Move"); else empty.
std::string commandCaption(Command command);
void runCommand(Command command);

// Adds a new object of the kind whose item of the Add submenu has this index (from 1).
void addFromMenu(int menuIndex);

// Tells in the status panel what was deleted, and how it comes back.
void tellDeleted(const std::string &what);

// Deletes the members of the multi-selection while it is in use, else the current object.
void deleteSelection();

} // namespace corvanta
