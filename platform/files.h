#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Whole files by drive path. Errors are the system's own descriptions in the code page.
namespace corvanta {

struct FileContent {
    std::string bytes;
    std::uintmax_t length = 0; // the file's length, also when it was not read
    bool missing = false;      // no such file; with an error as well, no such folder
    bool tooLarge = false;     // longer than the limit; bytes is empty
    std::string error;         // any other failure; empty on success
};

// Reads a whole regular file of at most limit bytes. Never creates a file, never reads more than
// limit + 1 bytes, never blocks on a pipe or a device (those are errors).
FileContent readFile(std::string_view drivePath, std::uintmax_t limit);

// The mode of a file that is made: as the user's files usually are, or readable by the user alone.
enum class FileMode { Usual, Private };

// Writes a file as a whole: a temporary file beside the target, flushed to disk and renamed over it.
// The target's mode is kept, a symbolic link is followed, a read-only target is no obstacle. In place
// only when the temporary file could not be opened. Returns the error's description, or none.
std::optional<std::string> writeFileAtomically(std::string_view drivePath, std::string_view bytes,
                                               FileMode mode = FileMode::Usual);

// Removes the temporary files that writers which are no more have left in a directory.
void removeStrayFiles(std::string_view directory);

// Whether other users may read a file.
bool othersMayRead(std::string_view drivePath);

// Overwrites a text that held a secret, and empties it.
void wipe(std::string &secret);

// For a program's start: a file that grows beyond the user's limit is an error of the write, and no end of the program.
void takeFileErrorsAsErrors();

} // namespace corvanta
