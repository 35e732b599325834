#pragma once

#include <string>
#include <string_view>
#include <vector>

// The choice of the page directory.
namespace corvanta {

// What the Directory dialog shows.
struct DirectoryChoice {
    std::string drive; // "C:"
    std::string path;  // drive path without a trailing "\", except for a root
};

// The page directory where it can be read, else the process's current one.
DirectoryChoice openedDirectoryChoice();

// The root of another drive. One that cannot be read is told, and the current directory shown again.
DirectoryChoice chosenDrive(const std::string &drive);
// A directory of the list, which may have gone with its drive since it was shown: that is told in the same way.
DirectoryChoice enteredPath(const std::string &path);

// The rows of the directory list: the way down from the drive's root to the path, then the path's own folders.
struct DirectoryRow {
    std::string name;
    std::string path;
    int depth = 0;
    bool open = false; // on the way to the path
};

std::vector<DirectoryRow> directoryRows(const std::string &path);

// A directory in the form of curdir: trimmed, in upper case, with "\" at its end.
std::string normalDirectory(std::string_view directory);

// Makes a directory the page directory and the process's current one. The page's media and the files of every
// object are loaded again when it is another one than before.
void choosePageDirectory(std::string_view directory);

} // namespace corvanta
