#include "platform/folder_names.h"

#include "platform/codepage.h"
#include "platform/text.h"

#include <algorithm>
#include <cstdint>
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

// The host names behind aliases of files that were named before they existed, by folder and alias. An alias comes from
// one name alone, so that what is remembered never changes what another name means.
std::map<std::pair<std::string, std::string>, std::string> &namedFiles()
{
    static std::map<std::pair<std::string, std::string>, std::string> names;
    return names;
}

constexpr std::size_t markLength = 16; // hexadecimal digits

std::string markOf(std::string_view hostName)
{
    std::uint64_t hash = 0xCBF29CE484222325U; // FNV-1a
    for (const char c : hostName)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    return lowerCase(hexDigits(hash, markLength));
}

// Whether a name reads like an alias: "~" and a mark before the ending.
bool readsAsAlias(std::string_view name)
{
    const std::size_t tilde = name.rfind('~');
    if (tilde == std::string_view::npos || name.size() < tilde + 1 + markLength)
        return false;
    const std::string_view mark = name.substr(tilde + 1, markLength);
    const char after = name.size() > tilde + 1 + markLength ? name[tilde + 1 + markLength] : '.';
    return after == '.' && mark.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
}

std::string aliasOf(std::string_view hostName)
{
    std::string shown = fromUtf8Lossy(hostName);
    std::replace_if(
        shown.begin(), shown.end(), [](char c) { return c == '\\' || c == ':' || c == '?' || c == '~'; }, '_');
    const std::size_t dot = shown.rfind('.');
    const std::size_t end = dot == std::string::npos || dot == 0 ? shown.size() : dot;
    return shown.substr(0, end) + '~' + markOf(hostName) + shown.substr(end);
}

} // namespace

std::string driveName(std::string_view hostName)
{
    const auto name = fromUtf8(hostName);
    const bool plain = name && name->find_first_of("\\:") == std::string::npos && !readsAsAlias(*name);
    return plain ? *name : aliasOf(hostName);
}

std::string rememberedDriveName(const std::filesystem::path &folder, std::string_view hostName)
{
    const std::string name = driveName(hostName);
    if (readsAsAlias(name))
        namedFiles()[{folder.native(), folded(name)}] = hostName;
    return name;
}

std::filesystem::path findName(const std::filesystem::path &folder, std::string_view name)
{
    const bool alias = readsAsAlias(name);
    const std::filesystem::path exact = folder / toUtf8(name);
    struct stat status;
    if ((!alias && lstat(exact.c_str(), &status) == 0) || stat(folder.c_str(), &status) != 0)
        return exact;
    const auto &hostNames = namesOf(folder, status.st_mtim).hostNames;
    const auto found = hostNames.find(folded(name));
    if (found != hostNames.end())
        return folder / found->second;
    const auto named = alias ? namedFiles().find({folder.native(), folded(name)}) : namedFiles().end();
    return named == namedFiles().end() ? exact : folder / named->second;
}

} // namespace corvanta
