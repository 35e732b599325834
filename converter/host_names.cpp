#include "converter/host_names.h"

#include "platform/folder_names.h"
#include "platform/paths.h"
#include "platform/text.h"

#include <mutex>
#include <string>

namespace corvanta {

namespace {

std::mutex &oneAtATime()
{
    static std::mutex mutex;
    return mutex;
}

bool isSeparator(char c) { return c == '\\' || c == '/'; }

// A drive path from the root. "C:NAME" is as relative as "NAME".
std::string fullPath(std::string_view path)
{
    const bool drive = path.size() >= 2 && path[1] == ':';
    if (drive && (path[0] == 'C' || path[0] == 'c') && !(path.size() > 2 && isSeparator(path[2])))
        path.remove_prefix(2);
    else if (drive || (!path.empty() && isSeparator(path[0])))
        return std::string(path);
    std::error_code gone;
    const std::filesystem::path here = std::filesystem::current_path(gone);
    const std::string current = gone ? std::string() : drivePath(here);
    return current.empty() ? std::string(path) : withTrailingBackslash(current).append(path);
}

} // namespace

std::filesystem::path fileIn(const std::filesystem::path &folder, std::string_view name)
{
    const std::lock_guard lock(oneAtATime());
    return findName(folder, name);
}

std::filesystem::path hostFile(std::string_view drivePath)
{
    const std::lock_guard lock(oneAtATime());
    return hostPath(fullPath(drivePath));
}

bool liesIn(const std::filesystem::path &folder, const std::filesystem::path &file)
{
    std::error_code unknown, noFolder;
    const std::filesystem::path real = std::filesystem::canonical(file, unknown);
    const std::filesystem::path home = std::filesystem::canonical(folder.empty() ? "." : folder, noFolder);
    return !unknown && !noFolder && real.parent_path() == home;
}

} // namespace corvanta
