#include "shell/directory.h"

#include "document/media.h"
#include "document/page.h"
#include "document/page_file.h"
#include "platform/asking.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace corvanta {

namespace {

constexpr std::size_t driveLength = 2, rootLength = 3; // "C:", "C:\"

DirectoryRow row(std::string name, std::string path, int depth, bool open)
{
    return {std::move(name), std::move(path), depth, open};
}

DirectoryChoice chosenPath(const std::string &path) { return {upperCase(path.substr(0, driveLength)), path}; }

} // namespace

DirectoryChoice openedDirectoryChoice()
{
    const std::string path = initialDirectory();
    const bool usable = path.size() >= rootLength && path[1] == ':' && directoryExists(path);
    return chosenPath(usable ? path : currentDirectory());
}

DirectoryChoice chosenDrive(const std::string &drive)
{
    if (directoryExists(drive + "\\"))
        return chosenPath(drive + "\\");
    showExclamation("Drive " + drive + " is invalid!", "Error");
    return chosenPath(currentDirectory());
}

DirectoryChoice enteredPath(const std::string &path)
{
    return directoryExists(path.substr(0, rootLength)) ? chosenPath(path) : chosenDrive(path.substr(0, driveLength));
}

std::vector<DirectoryRow> directoryRows(const std::string &path)
{
    const std::string folder = withTrailingBackslash(path);
    std::vector<DirectoryRow> rows{row(folder.substr(0, rootLength), folder.substr(0, rootLength), 0, true)};
    int depth = 0;
    for (std::size_t start = rootLength; start < folder.size();) {
        const std::size_t end = folder.find('\\', start);
        rows.push_back(row(folder.substr(start, end - start), folder.substr(0, end), ++depth, true));
        start = end + 1;
    }
    for (const std::string &name : subdirectories(folder))
        rows.push_back(row(name, folder + name, depth + 1, false));
    return rows;
}

std::string normalDirectory(std::string_view directory) { return withTrailingBackslash(upperCase(trimmed(directory))); }

void choosePageDirectory(std::string_view directory)
{
    std::string &curdir = editing().curdir;
    const auto before = hostPath(curdir);
    curdir = normalDirectory(directory);
    letStandFor(curdir, trimmed(directory));
    changeDirectory(curdir);
    if (before != hostPath(curdir))
        loadPageMedia();
}

} // namespace corvanta
