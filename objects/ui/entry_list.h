#pragma once

#include "document/entries.h"
#include "platform/qt/dialogs.h"

#include <functional>
#include <string>
#include <vector>

class QListWidget;

// A list of entries with the buttons that edit it, as the dialogs of list boxes, combo boxes, grids and animations
// have.
namespace corvanta {

// Adds a row of buttons, named with their index ("lbbut0"), that hand their command and the selected row (-1: none) to
// edit. Those that need a selection are enabled while there is one. A double click on an entry edits it too.
void addEntryButtons(QBoxLayout &layout, const char *name, const std::vector<EntryCommand> &commands, QListWidget &list,
                     std::function<void(EntryCommand, int)> edit);

// Shows texts in a list and selects a row, or none for -1.
void showEntries(QListWidget &list, const std::vector<std::string> &texts, int selected);

// What entry editing with a one-line text needs to know of a kind.
struct TextEntries {
    const char *kind;   // "combo box"
    const char *title;  // of the limit message: "Combo Box Properties"
    const char *prompt; // "Combo box entry:"
};

// The text of a new, edited or inserted entry as the author enters it; empty when there is none to enter: after a
// cancel, and when the list is full, which is told.
std::string askEntryText(const TextEntries &what, EntryCommand command, std::size_t count, const std::string &current);

} // namespace corvanta
