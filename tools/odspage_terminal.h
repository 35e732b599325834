#pragma once

#include "preview/data_source.h"

#include <optional>
#include <string>

namespace corvanta {

// The credentials of a data source (its name in bytes of the code page) from the user at the terminal; none without a
// terminal, for an empty user, and when the descriptor stopped can be read meanwhile: then the program is to end. The
// terminal is left as it was.
std::optional<Credentials> askOnTerminal(const std::string &source, int stopped);

} // namespace corvanta
