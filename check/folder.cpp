#include "check/folder.h"

#include "platform/folder_names.h"
#include "platform/text.h"

#include <algorithm>

namespace corvanta {

CheckFolder::CheckFolder(const std::filesystem::path &folder)
{
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::string host = entry->path().filename().string(), name = driveName(host);
        names.emplace(upperCase(name), name);
        if (isPageFileName(host))
            pages.push_back(host);
    }
    std::sort(pages.begin(), pages.end());
}

std::optional<std::string> CheckFolder::spelling(const std::string &name) const
{
    const auto [first, last] = names.equal_range(upperCase(name));
    if (first == last)
        return std::nullopt;
    for (auto entry = first; entry != last; ++entry)
        if (entry->second == name)
            return name;
    return first->second;
}

bool isPageFileName(std::string_view name)
{
    constexpr std::string_view extension = ".ods";
    return name.size() > extension.size() && sameText(name.substr(name.size() - extension.size()), extension);
}

} // namespace corvanta
