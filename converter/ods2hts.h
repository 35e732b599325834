#pragma once

#include "document/page.h"

#include <cstdint>
#include <string>
#include <string_view>

// The HTML template converter. docs/html-template.md tells what each object and action becomes.

// Writes the template of a page file beside it: the path with its last three characters replaced by "hts".
// The path is a drive path, bytes of the code page, ended by NUL. Non-zero when the template was written,
// 0 when the page could not be read or the template not be written. Asks and tells nothing.
extern "C" [[gnu::visibility("default")]] std::int16_t ConvertOdsHts(const char *path);

namespace corvanta {

// The template path of a page file's path.
std::string templatePath(std::string_view pagePath);

// The HTML template of a page, in UTF-8. The Caption of a Text Box that names a text file is the file's text.
std::string htmlTemplate(const Page &p);

} // namespace corvanta
