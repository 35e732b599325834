#pragma once

#include "document/entries.h"
#include "platform/qt/dialogs.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QListWidget;

// A list of entries with the buttons and keys that edit it.
namespace corvanta {

// The entries of a dialog and the list that shows them.
template <class Entry> struct EntryList {
    std::vector<Entry> &entries;
    QListWidget &list;
    std::function<std::string(const Entry &, std::size_t)> line; // what the list shows of the entry at an index
    // The entry that New, Edit or Insert takes, from the selected one or an empty one; none changes nothing. Not set:
    // an empty entry.
    std::function<std::optional<Entry>(EntryCommand, const Entry &)> ask;
    std::function<void()> before; // runs before a command, where it is set
};

// Adds a row of buttons, named with their index ("lbbut0"), that hand their command and the selected row (-1: none) to
// edit. Those that need a selection are enabled while there is one. A double click on an entry edits it too, and so do
// keys in the list: F2 edits, Insert and Delete do what their buttons do, Alt+Up and Alt+Down move the entry.
void addEntryCommands(QBoxLayout &layout, const char *name, const std::vector<EntryCommand> &commands,
                      QListWidget &list, const std::function<void(EntryCommand, int)> &edit);

// Shows texts in a list and selects a row, or none for -1.
void showLines(QListWidget &list, const std::vector<std::string> &texts, int selected);

template <class Entry> void showEntries(const EntryList<Entry> &of, int selected)
{
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < of.entries.size(); ++i)
        texts.push_back(of.line(of.entries[i], i));
    showLines(of.list, texts, selected);
}

template <class Entry> void editEntries(const EntryList<Entry> &of, EntryCommand command, int selected)
{
    if (of.before)
        of.before();
    std::optional<Entry> entry(std::in_place);
    if (takesEntry(command) && of.ask) {
        const bool any = selected >= 0 && static_cast<std::size_t>(selected) < of.entries.size();
        entry = of.ask(command, any ? of.entries[static_cast<std::size_t>(selected)] : Entry());
    }
    if (entry)
        showEntries(of, applyEntry(of.entries, command, selected, std::move(*entry)));
}

template <class Entry>
void addEntryButtons(QBoxLayout &layout, const char *name, const std::vector<EntryCommand> &commands,
                     const EntryList<Entry> &of)
{
    addEntryCommands(layout, name, commands, of.list,
                     [of](EntryCommand command, int selected) { editEntries(of, command, selected); });
}

} // namespace corvanta
