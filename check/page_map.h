#pragma once

#include "document/page.h"

#include <map>
#include <string>
#include <vector>

// Which pages of a directory lead where. Names are bytes of the code page, without the extension, and compare without
// regard to case.
namespace corvanta {

struct PageLink {
    std::int16_t object = noObject;
    std::string page; // as the action spells it
};

// The links of a page: its actions and those of its entries and lists.
std::vector<PageLink> pageLinks(const Page &p);

class PageMap {
public:
    struct Entry {
        std::string file; // host name
        std::string name;
        std::int16_t type = 0;
        std::string caption;
        std::vector<PageLink> links;
    };

    void add(const std::string &file, const Page &p); // in the order of the file names
    const std::vector<Entry> &pages() const { return entries; }

    // Where readers begin: TOP, MENU, the first page of the type "Menu", the first page; empty without any page.
    std::string start() const;
    // File names of the pages to which no way leads from there.
    std::vector<std::string> unreachable() const;
    // The page of a name; none where there is no such page. "TOP" is the start page where no page has that name.
    const Entry *find(const std::string &name) const;

private:
    std::vector<Entry> entries;
    std::map<std::string, std::size_t> byName; // upper case
};

} // namespace corvanta
