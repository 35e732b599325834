#pragma once

#include <string>
#include <vector>

class QWidget;

namespace corvanta {

// The help page about a widget, with an anchor where one is wanted: of the nearest frame or window round it that has
// one, else the contents page.
std::string helpPageOf(const QWidget *widget);

// All pages that helpPageOf can give.
std::vector<std::string> helpPages();

// F1 in any window of the program, message boxes included, shows the page about what has the focus. Menus show the
// topic of a highlighted item by themselves.
void installHelpKey();

} // namespace corvanta
