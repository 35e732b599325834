#pragma once

#include <filesystem>
#include <string>

// Page files to template files, by host path.
namespace corvanta {

// The template of a page file beside it: the name with its last three characters replaced by "hts". Empty for a
// shorter name.
std::filesystem::path templateOf(const std::filesystem::path &pageFile);

// Writes the template of a page file, whose texts are in the thread's code page. Asks and tells nothing, throws
// nothing. Why it failed, in UTF-8; empty when the template was written.
std::string convertPageFile(const std::filesystem::path &pageFile) noexcept;

} // namespace corvanta
