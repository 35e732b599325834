#pragma once

#include "canvas/geometry.h"
#include "database/connection.h"

#include <string_view>
#include <vector>

namespace corvanta {

// Columns dropped at a point of the page (the payload of a drag tagged "fld"): one becomes a new object of the kind
// that is chosen in the ODBC tool window, bound to the column; several become rows of a Label and such an object, in
// one act. Kinds that take no column, and pages of the type "Menu", ignore them.
void dropField(Point at, std::string_view payload);

// The same at the next free place.
void placeColumns(const std::vector<DroppedColumn> &columns);

} // namespace corvanta
