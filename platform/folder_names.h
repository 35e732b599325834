#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// Host names (UTF-8) as the program sees them, and the way back.
namespace corvanta {

// A host name in bytes of the code page, with "?" for what the code page lacks and for "\" and ":", which would
// take the name apart.
std::string driveName(std::string_view hostName);

// Like driveName, for a file the user has chosen: from now on the name stands for this very file, also where
// the "?" would match another.
std::string rememberedDriveName(const std::filesystem::path &folder, std::string_view hostName);

// The host path of a name in a folder: the exact name, else the first in byte order that is equal without
// regard to case, else the name as it is written.
std::filesystem::path findName(const std::filesystem::path &folder, std::string_view name);

} // namespace corvanta
