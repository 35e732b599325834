#pragma once

#include "database/connection.h"

class QWidget;

namespace corvanta {

// The window tblrows: the first rows of a listed table, to look at. They are read in the background; closing it
// cancels.
void showTableRows(const Connection &c, int table, QWidget &owner);

} // namespace corvanta
