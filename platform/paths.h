#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// Drive paths ("C:\PAGES\MENU.ODS", bytes of the code page) over the host's file system. "C:" is the
// host's root, or the folder set with setDriveRoot; mounted media have the letters after it. Names
// compare without regard to case: the exact name first, else the first in byte order that matches.
namespace corvanta {

// Makes a host folder the root of drive C: and C:\ the current directory. Drives after C: go.
void setDriveRoot(const std::filesystem::path &hostFolder);

// The letters of the drives with their colon ("C:", "D:", ...).
std::vector<std::string> driveList();

// The host path of a drive path; relative paths and paths without a drive start from the current drive
// and directory. "/" counts as a separator, ".." never leaves the drive. Parts that do not exist are
// taken as they are written. Never fails; an unknown drive gives a path that does not exist.
std::filesystem::path hostPath(std::string_view drivePath);

// The drive path of a host path (made absolute first). Empty when it is outside every drive.
std::string drivePath(const std::filesystem::path &hostPath);

// A drive path as people read it, in UTF-8: with the real names of files that have aliases.
std::string realPath(std::string_view drivePath);

// From now on a drive path of a directory, with its trailing "\", stands for the directory that another one means at
// this moment: so capitals can be shown for it where others differ in case only. One at a time.
void letStandFor(std::string_view shown, std::string_view directory);

// The process's current drive and directory, without a trailing "\" except for a drive root.
std::string currentDirectory();

// Changes the current drive and directory. False, and nothing changes, when no such directory exists.
bool changeDirectory(std::string_view directory);

bool fileExists(std::string_view drivePath);      // a regular file
bool directoryExists(std::string_view drivePath); // a directory that can be listed

// Names of the sub-directories of a directory, sorted without regard to case; hidden ones left out.
// Empty when it cannot be read.
std::vector<std::string> subdirectories(std::string_view directory);

} // namespace corvanta
