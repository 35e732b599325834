#pragma once

#include "platform/qt/dialogs.h"

#include <optional>
#include <string>

namespace corvanta {

// Asks for a page file, starting in the page directory. The chosen drive path; none on cancel.
std::optional<std::string> askPageFile();

// Beside the latest field: a button "Browse" that shows the name of a chosen page in the field, and makes the page's
// directory the page directory.
void addBrowse(Fields &fields, const char *name, QLineEdit &field);

} // namespace corvanta
