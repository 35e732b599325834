#pragma once

#include "database/connection.h"

#include <functional>

class QWidget;

namespace corvanta {

// Lets a field take a column that is dragged from the list of columns (a drag tagged "fld"); anything else is ignored.
void acceptColumn(QWidget &field, std::function<void(const DroppedColumn &)> dropped);

} // namespace corvanta
