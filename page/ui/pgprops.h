#pragma once

#include <functional>

namespace corvanta {

// Opens the dialog pgprops, "Page Properties", beside the ODBC tool window, the other windows switched off. closed runs
// when it has closed. While it is open a further call only raises it.
void openPageProperties(std::function<void()> closed = {});

} // namespace corvanta
