#pragma once

#include "document/page.h"

#include <filesystem>
#include <string>

namespace corvanta {

// The HTML template of a page, in UTF-8. The folder is the host path of the page directory: text files are read from
// there, and links have the spelling of the files that stand there. Without one no file is looked at: links are as the
// page writes them, a Text Box that names a text file has its Caption as text. docs/html-template.md tells what each
// object and action becomes. Any number of threads may call it, each with a page of its own.
std::string htmlTemplate(const Page &p, const std::filesystem::path &folder = {});

} // namespace corvanta
