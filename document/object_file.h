#pragma once

#include "document/page.h"

#include <functional>
#include <string>
#include <string_view>

// Object files (".hdo"): one object, for reuse on other pages. The commands act on the process-wide page.
namespace corvanta {

// The bytes of an object file.
std::string objectFileText(const Page &p, std::int16_t index);
// What is wrong with bytes that are to be an object file, for a sentence about it; empty when nothing is.
std::string objectFileFault(std::string_view text);
// Appends the object of an object file's bytes; the page's version stays. Returns its index or noObject.
std::int16_t appendObjectFile(Page &p, std::string_view text);

void saveObject(); // asks for a file and writes the current object
// All give the index of the object that they append, or noObject.
std::int16_t loadObject(); // asks for a file
// The same of a file (drive path); place gives the object its place before the act is complete.
std::int16_t loadObjectFile(const std::string &path, const std::function<void(std::int16_t index)> &place = {});
std::int16_t duplicateObject(); // a copy of the current object in the same place

} // namespace corvanta
