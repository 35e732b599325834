#pragma once

#include "document/entries.h"

#include <string>

namespace corvanta {

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
