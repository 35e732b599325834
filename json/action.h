#pragma once

#include "json/values.h"

// Action texts in JSON: the code, the kind's parameters (or a list's entries) and, where these alone would
// not give the same bytes back, the whole text as hexadecimal "raw". Where both stand they must say the same.
namespace corvanta {

Json actionJson(std::string_view text);

// Throws JsonError.
std::string actionFromJson(const Json &value, const std::string &path);

} // namespace corvanta
