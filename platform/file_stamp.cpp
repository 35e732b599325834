#include "platform/file_stamp.h"

#include "platform/files.h"
#include "platform/paths.h"

#include <sstream>
#include <sys/stat.h>

namespace corvanta {

namespace {

constexpr std::uintmax_t hashedBytes = 16384;

std::uint64_t hashOf(std::string_view bytes)
{
    std::uint64_t hash = 0xCBF29CE484222325U; // FNV-1a
    for (const char c : bytes)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    return hash;
}

} // namespace

std::optional<FileStamp> fileStamp(std::string_view drivePath)
{
    struct stat status;
    if (stat(hostPath(drivePath).c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    const FileContent content = readFile(drivePath, hashedBytes);
    if (content.missing || !content.error.empty())
        return std::nullopt;
    constexpr std::int64_t nanoseconds = 1'000'000'000;
    return FileStamp{status.st_dev, status.st_ino, status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec,
                     static_cast<std::uint64_t>(status.st_size), hashOf(content.bytes)};
}

bool sameFile(const FileStamp &a, const FileStamp &b)
{
    const bool untouched = a.inode == b.inode && a.time == b.time;
    return a.device == b.device && a.size == b.size && (a.size > hashedBytes ? untouched : a.hash == b.hash);
}

bool onDevice(std::string_view drivePath, const FileStamp &stamp)
{
    struct ::stat folder;
    return ::stat(hostPath(drivePath).parent_path().c_str(), &folder) != 0 || folder.st_dev == stamp.device;
}

std::string textOfStamp(const FileStamp &stamp)
{
    std::ostringstream text;
    text << stamp.device << ' ' << stamp.inode << ' ' << stamp.time << ' ' << stamp.size << ' ' << stamp.hash;
    return text.str();
}

std::optional<FileStamp> stampOfText(const std::string &text)
{
    FileStamp stamp;
    std::istringstream in(text);
    const bool whole = bool(in >> stamp.device >> stamp.inode >> stamp.time >> stamp.size >> stamp.hash);
    return whole ? std::optional(stamp) : std::nullopt;
}

} // namespace corvanta
