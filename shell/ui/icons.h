#pragma once

#include "document/kinds.h"
#include "shell/menu_table.h"

#include <QIcon>

// The pictures of the toolbar and the object tools. They are drawn when they are shown, at any scale and in the
// colours of the palette, so that they suit a dark desktop.
namespace corvanta {

QIcon commandIcon(Command command); // of the toolbar's commands
QIcon kindIcon(Kind kind);          // of the kinds that the Add submenu offers
QIcon programIcon();

} // namespace corvanta
