#pragma once

#include "document/entries.h"
#include "platform/qt/dialogs.h"

#include <functional>
#include <string>
#include <vector>

class QListWidget;

// A list of entries with the buttons that edit it.
namespace corvanta {

// Adds a row of buttons, named with their index ("lbbut0"), that hand their command and the selected row (-1: none) to
// edit. Those that need a selection are enabled while there is one. A double click on an entry edits it too.
void addEntryButtons(QBoxLayout &layout, const char *name, const std::vector<EntryCommand> &commands, QListWidget &list,
                     std::function<void(EntryCommand, int)> edit);

// Shows texts in a list and selects a row, or none for -1.
void showEntries(QListWidget &list, const std::vector<std::string> &texts, int selected);

} // namespace corvanta
