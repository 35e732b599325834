#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The names in a folder of pages, read once.
namespace corvanta {

class CheckFolder {
public:
    explicit CheckFolder(const std::filesystem::path &folder);

    // The name as the folder spells it (bytes of the code page): the exact one, else one that differs in case only.
    std::optional<std::string> spelling(const std::string &name) const;

    // Names of the page files (UTF-8 host names), sorted.
    const std::vector<std::string> &pageFiles() const { return pages; }

private:
    std::multimap<std::string, std::string> names; // by upper case
    std::vector<std::string> pages;
};

// Whether a file name ends like that of a page file.
bool isPageFileName(std::string_view name);

} // namespace corvanta
