#pragma once

#include "platform/files.h"

#include <filesystem>

// Whole files by host path, for the folder's own sources: see files.h.
namespace corvanta {

FileContent readHostFile(const std::filesystem::path &file, std::uintmax_t limit);

std::optional<std::string> writeHostFileAtomically(const std::filesystem::path &file, std::string_view bytes,
                                                   FileMode mode = FileMode::Usual);

} // namespace corvanta
