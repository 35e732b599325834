#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// Host names (UTF-8) as the program sees them, and the way back. No two names of a folder share a drive name.
namespace corvanta {

// A host name in bytes of the code page. A name that the code page cannot spell, or that holds "\" or ":", has an
// alias, as short names of old: what can be shown of it, "~" and a mark made of the whole name
// ("__~0123456789abcdef.ods"). The alias of a name is always the same.
std::string driveName(std::string_view hostName);

// Like driveName, for a file that need not exist yet: its alias stands for it from now on.
std::string rememberedDriveName(const std::filesystem::path &folder, std::string_view hostName);

// The host path of a name in a folder: of an alias the file that has it; else the exact name, else the first in byte
// order that is equal without regard to case, else the name as it is written.
std::filesystem::path findName(const std::filesystem::path &folder, std::string_view name);

} // namespace corvanta
