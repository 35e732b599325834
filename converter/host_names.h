#pragma once

#include <filesystem>
#include <string_view>

// Host files by the names that pages and callers have for them. Any thread may ask: one at a time looks.
namespace corvanta {

// A file of a folder, found without regard to case; the name as it is written when there is none.
std::filesystem::path fileIn(const std::filesystem::path &folder, std::string_view name);

// The host path of a drive path. A relative one starts from the process's current directory as it is now.
std::filesystem::path hostFile(std::string_view drivePath);

// Whether a file, its links followed, lies directly in a folder.
bool liesIn(const std::filesystem::path &folder, const std::filesystem::path &file);

} // namespace corvanta
