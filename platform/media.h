#pragma once

#include <filesystem>
#include <istream>
#include <vector>

namespace corvanta {

// The mount points of removable and extra media in a mount table (the form of /proc/self/mounts): the folders
// /media/USER/NAME, /run/media/USER/NAME and /mnt/NAME, each once, in the table's order.
std::vector<std::filesystem::path> mountedMedia(std::istream &mountTable);

// True when a host path may lie on such a medium.
bool isBelowMediaFolder(const std::filesystem::path &hostPath);

} // namespace corvanta
