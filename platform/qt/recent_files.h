#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

// The desktop's list of recently used files. Both wait for the disk: they are for a thread of their own.
namespace corvanta {

// The page files that were opened or saved last and are still there, the latest first. Host paths.
std::vector<std::filesystem::path> recentPages(std::size_t most);

// Puts a page file first. Other programs' entries stay; a list that cannot be read is left alone.
void noteRecentPage(const std::filesystem::path &file);

} // namespace corvanta
