#pragma once

#include "check/page_map.h"
#include "tools/odspage_commands.h"

#include <string>
#include <vector>

// All pages of a directory at once, for the commands that look at the links between them.
namespace corvanta {

struct PageOfFolder {
    std::string file; // host name in the folder
    std::string bytes;
    Page page;
    bool whole = false; // saving it would change nothing
};

// Sorted by name. Files that hold no page are told, and make the exit code 1.
std::vector<PageOfFolder> readPages(ToolRun &run, const std::string &folder);

// A page's name as the command line gives it, without the extension, in bytes of the code page; empty, and told, when
// no page can have it.
std::string pageNameArgument(ToolRun &run, const std::string &name);

} // namespace corvanta
