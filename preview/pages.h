#pragma once

#include "document/page.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// The pages and media of one directory, as requests name them. Nothing outside of it is ever read, also not through
// links. May be called from many threads.
namespace corvanta {

struct PageFolder {
    std::filesystem::path folder;  // canonical
    std::filesystem::path overlay; // its pages stand in the place of the folder's; canonical, or empty
    std::string start;             // the page that is shown first, bytes of the code page
};

struct LoadedPage {
    std::string name; // without ".ods", bytes of the code page
    Page page;
    bool missing = false;
    std::string failure; // why the page cannot be shown, UTF-8; empty when it can
};

// The name of the page that is shown first when none was named: TOP, else MENU, else the first page of the type
// "Menu", else the first page by name; empty when the folder has none. Bytes of the code page.
std::string startPage(const PageFolder &pages);

// The page of an address such as "MENU.hts" (UTF-8): its name in bytes of the code page. None for other addresses
// and for names that are not plain. "TOP" is the start page where there is no such page.
std::optional<std::string> pageOfAddress(const PageFolder &pages, std::string_view address);

LoadedPage loadPage(const PageFolder &pages, const std::string &name);

struct MediaFile {
    std::string type; // MIME
    std::string bytes;
};

// A picture or sound of the folder or of a folder below it (address in UTF-8); none for everything else. Which folders
// below it are open to visitors is the caller's to say.
std::optional<MediaFile> mediaFile(const PageFolder &pages, std::string_view address);

// A text that changes when the file of a page, or a file that the page names, changes.
std::string pageStamp(const PageFolder &pages, const std::string &name);

} // namespace corvanta
