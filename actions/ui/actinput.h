#pragma once

#include "actions/action.h"

#include <optional>

namespace corvanta {

// Edits one entry of a List of Actions in a modal dialog; none after a cancel. The working action is afterwards what
// it was.
std::optional<ActionEntry> editActionEntry(const ActionEntry &entry);

} // namespace corvanta
