#pragma once

#include <string>

namespace corvanta {

// The "Grid Column Properties" dialog on a column descriptor (header, tab, data column name). Returns the new
// descriptor, as typed; the old one on cancel.
std::string EditGridColumn(const std::string &descriptor);

} // namespace corvanta
