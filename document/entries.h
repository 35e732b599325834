#pragma once

#include <algorithm>
#include <utility>
#include <vector>

// Editing of the lists that dialogs show with buttons for new, edit, insert and delete.
namespace corvanta {

enum class EntryCommand { New, Edit, Insert, Delete, Up, Down };

// Whether a command needs a selected entry.
inline bool needsSelection(EntryCommand command) { return command != EntryCommand::New; }

// Whether a command puts an entry into the list.
inline bool takesEntry(EntryCommand command)
{
    return command == EntryCommand::New || command == EntryCommand::Edit || command == EntryCommand::Insert;
}

// Applies a confirmed command to a list; selected is the selected entry's index or -1. Returns the index that is
// selected afterwards, after Delete that of the next entry, or -1.
template <class Entry> int applyEntry(std::vector<Entry> &entries, EntryCommand command, int selected, Entry value = {})
{
    const int count = static_cast<int>(entries.size());
    if (needsSelection(command) && (selected < 0 || selected >= count))
        return selected;
    const auto at = entries.begin() + (selected < 0 ? 0 : selected);
    switch (command) {
    case EntryCommand::New: entries.push_back(std::move(value)); return count;
    case EntryCommand::Edit: *at = std::move(value); return selected;
    case EntryCommand::Insert: entries.insert(at, std::move(value)); return selected;
    case EntryCommand::Delete: entries.erase(at); return selected < count - 1 ? selected : selected - 1;
    case EntryCommand::Up:
        if (selected == 0)
            return selected;
        std::iter_swap(at, at - 1);
        return selected - 1;
    case EntryCommand::Down:
        if (selected == count - 1)
            return selected;
        std::iter_swap(at, at + 1);
        return selected + 1;
    }
    return selected;
}

} // namespace corvanta
