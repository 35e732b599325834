#pragma once

#include "actions/action.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Editing the entries of a List of Actions. A reply is what the entry dialog hands back: the exchange text
// of one entry, or an empty text. Each returns false, and changes nothing, for an empty reply and for a
// position that is out of range.
namespace corvanta {

// Puts a new entry before the entry at the position; at the end when the position is the number of entries.
bool insertActionEntry(std::vector<ActionEntry> &entries, std::size_t position, std::string_view reply);
bool replaceActionEntry(std::vector<ActionEntry> &entries, std::size_t position, std::string_view reply);
bool removeActionEntry(std::vector<ActionEntry> &entries, std::size_t position);

// What a list shows for an action: its kind's caption, empty for kinds that are not offered.
std::string actionCaption(std::string_view text);

} // namespace corvanta
