#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace corvanta {

// What tells whether a file is still the one that was read or written.
struct FileStamp {
    std::uint64_t device = 0, inode = 0;
    std::int64_t time = 0; // of the last change, nanoseconds
    std::uint64_t size = 0;
    std::uint64_t hash = 0; // of its first bytes, up to those of a page file
};

// By drive path. None for a file that is missing or cannot be read.
std::optional<FileStamp> fileStamp(std::string_view drivePath);

// Whether two stamps stand for the same bytes on the same device; a file that was only touched counts as the same.
bool sameFile(const FileStamp &a, const FileStamp &b);

// Whether the folder of a path still lies on a stamp's device; true when there is no such folder.
bool onDevice(std::string_view drivePath, const FileStamp &stamp);

// A stamp as text, and back; none for a text that is no stamp.
std::string textOfStamp(const FileStamp &stamp);
std::optional<FileStamp> stampOfText(const std::string &text);

} // namespace corvanta
