#pragma once

#include "canvas/geometry.h"

#include <string_view>

namespace corvanta {

// A column dropped at a point of the page (the payload of a drag tagged "fld"): a new object of the kind that is
// chosen in the ODBC tool window, bound to the column. Kinds that take no column, and pages of the type "Menu", ignore
// it.
void dropField(Point at, std::string_view payload);

} // namespace corvanta
