#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace corvanta {

// A new host folder that is the root of drive C: while this lives, with C:\ as the current directory.
// Removed at the end; C: is the host's root again then.
class TemporaryDrive {
public:
    TemporaryDrive();
    ~TemporaryDrive();
    TemporaryDrive(const TemporaryDrive &) = delete;
    TemporaryDrive &operator=(const TemporaryDrive &) = delete;

    const std::filesystem::path &root() const { return folder; }

    // Makes a file with its folders, by a path relative to the root ("PAGES/MENU.ODS"); its host path.
    std::filesystem::path add(const std::filesystem::path &name, std::string_view bytes = {}) const;

private:
    std::filesystem::path folder;
};

// The bytes of a host file; empty when there is none.
std::string hostBytes(const std::filesystem::path &file);

} // namespace corvanta
