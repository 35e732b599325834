#pragma once

#include <string>

namespace corvanta {

// A variable of the environment; empty when it is not set. The programs set none, so that any thread may ask.
std::string environmentValue(const char *name);

} // namespace corvanta
