#pragma once

#include <string>

namespace corvanta {

// The dialog seldsn, "Select Data Source", with the connected source selected. Returns source, user name and password,
// tab-separated; an empty text after a cancel.
std::string askDataSource(const std::string &connected);

} // namespace corvanta
