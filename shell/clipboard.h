#pragma once

#include "canvas/geometry.h"

#include <optional>
#include <vector>

// Copying and pasting objects: within a page, between pages and editors, and as JSON to and from text editors.
namespace corvanta {

// The members of the multi-selection while it is in use, else the current object; in table order.
std::vector<std::int16_t> chosenObjects();

bool mayPaste();

void copyObjects();
void cutObjects();

// Pastes what the clipboard holds, in one edit: at the places that the objects had, each further paste of the same 10
// pixels further down and right, or with the top left corner of all at a page point. What does not hold objects changes
// nothing.
void pasteObjects(std::optional<Point> at = {});

// The chosen objects again, 10 pixels down and right of themselves; the clipboard stays as it is.
void duplicateObjects();

} // namespace corvanta
