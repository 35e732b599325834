#include "platform/folder_names.h"

#include "platform/codepage.h"
#include "platform/text.h"

#include <algorithm>
#include <ctime>
#include <map>
#include <sys/stat.h>
#include <unordered_map>

namespace corvanta {

namespace {

constexpr std::size_t mostFolders = 64;
constexpr std::time_t coarsestFileTime = 2; // seconds

struct FolderNames {
    int codePage = 0;
    timespec changed = {};
    bool settled = false;                                   // a later change is sure to give another time
    std::unordered_map<std::string, std::string> hostNames; // by their folded form
};

std::string folded(std::string_view name) { return upperCase(name); }

bool sameTime(const timespec &a, const timespec &b) { return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec; }

std::unordered_map<std::string, std::string> listNames(const std::filesystem::path &folder)
{
    std::unordered_map<std::string, std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        const auto [known, added] = names.try_emplace(folded(driveName(name)), name);
        if (!added)
            known->second = std::min(known->second, name);
    }
    return names;
}

const FolderNames &namesOf(const std::filesystem::path &folder, const timespec &changed)
{
    static std::unordered_map<std::string, FolderNames> folders;
    if (folders.size() >= mostFolders && !folders.contains(folder.native()))
        folders.clear();
    FolderNames &names = folders[folder.native()];
    if (!names.settled || names.codePage != codePageNumber() || !sameTime(names.changed, changed)) {
        const bool settled = std::time(nullptr) - changed.tv_sec > coarsestFileTime;
        names = {codePageNumber(), changed, settled, listNames(folder)};
    }
    return names;
}

// The host names of chosen files whose drive names are not their own, by folder and folded drive name.
std::map<std::pair<std::string, std::string>, std::string> &chosenNames()
{
    static std::map<std::pair<std::string, std::string>, std::string> names;
    return names;
}

} // namespace

std::string driveName(std::string_view hostName)
{
    std::string name = fromUtf8Lossy(hostName);
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == '\\' || c == ':'; }, '?');
    return name;
}

std::string rememberedDriveName(const std::filesystem::path &folder, std::string_view hostName)
{
    const std::string name = driveName(hostName);
    if (name.find('?') != std::string::npos)
        chosenNames()[{folder.native(), folded(name)}] = hostName;
    return name;
}

std::filesystem::path findName(const std::filesystem::path &folder, std::string_view name)
{
    if (name.find('?') != std::string_view::npos) {
        const auto chosen = chosenNames().find({folder.native(), folded(name)});
        if (chosen != chosenNames().end())
            return folder / chosen->second;
    }
    const std::filesystem::path exact = folder / toUtf8(name);
    struct stat status;
    if (lstat(exact.c_str(), &status) == 0 || stat(folder.c_str(), &status) != 0)
        return exact;
    const auto &hostNames = namesOf(folder, status.st_mtim).hostNames;
    const auto found = hostNames.find(folded(name));
    return found == hostNames.end() ? exact : folder / found->second;
}

} // namespace corvanta
