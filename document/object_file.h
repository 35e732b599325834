#pragma once

#include "document/page.h"

#include <string>
#include <string_view>

// Object files (".hdo"): one object, for reuse on other pages. The commands act on the process-wide page.
namespace corvanta {

// The bytes of an object file.
std::string objectFileText(const Page &p, std::int16_t index);
// Appends the object of an object file's bytes; the page's version stays. Returns its index or noObject.
std::int16_t appendObjectFile(Page &p, std::string_view text);

void saveObject();      // asks for a file and writes the current object
void loadObject();      // asks for a file and appends its object
void duplicateObject(); // appends a copy of the current object in the same place

} // namespace corvanta
