#pragma once

#include <cstddef>
#include <utility>
#include <vector>

// Editing of the lists that dialogs show with buttons for new, edit, insert and delete.
namespace corvanta {

enum class EntryCommand { New, Edit, Insert, Delete };

// Whether a command needs a selected entry.
inline bool needsSelection(EntryCommand command) { return command != EntryCommand::New; }

// Applies a confirmed command to a list; selected is the selected entry's index or -1. Returns the index that is
// selected afterwards, or -1.
template <class Entry> int applyEntry(std::vector<Entry> &entries, EntryCommand command, int selected, Entry value = {})
{
    const bool valid = selected >= 0 && static_cast<std::size_t>(selected) < entries.size();
    if (needsSelection(command) && !valid)
        return selected;
    switch (command) {
    case EntryCommand::New: entries.push_back(std::move(value)); return static_cast<int>(entries.size()) - 1;
    case EntryCommand::Edit: entries[static_cast<std::size_t>(selected)] = std::move(value); return selected;
    case EntryCommand::Insert: entries.insert(entries.begin() + selected, std::move(value)); return selected;
    case EntryCommand::Delete: entries.erase(entries.begin() + selected); return -1;
    }
    return selected;
}

} // namespace corvanta
