#pragma once

#include <string>
#include <string_view>

// Lists kept as one string of fields with a separator between them; fields count from 0.
namespace corvanta {

int fieldCount(std::string_view text, char separator = '\t');

// Field n; empty when the text has fewer.
std::string fieldAt(std::string_view text, int n, char separator = '\t');

// The text with field n replaced; empty fields are added where it has fewer than n.
std::string setFieldAt(std::string_view text, int n, std::string_view value, char separator = '\t');

} // namespace corvanta
