#include "platform/paths.h"

#include "platform/codepage.h"
#include "platform/folder_names.h"
#include "platform/media.h"
#include "platform/text.h"

#include <algorithm>
#include <fstream>

namespace corvanta {

namespace {

namespace fs = std::filesystem;

struct Drive {
    char letter = 'C';
    fs::path root = "/";
};

struct ShownDirectory {
    std::string shown;
    fs::path folder;
};

ShownDirectory &shownDirectory()
{
    static ShownDirectory directory;
    return directory;
}

struct Drives {
    std::vector<Drive> list = {{}}; // C: first, then the media
    bool withMedia = true;
    char current = 'C';
    fs::path directory; // host path of the current directory
};

Drives &drives()
{
    static Drives state = [] {
        Drives initial;
        std::error_code error;
        initial.directory = fs::current_path(error);
        if (error)
            initial.directory = "/";
        return initial;
    }();
    return state;
}

// Nothing can exist below this device, nor be made there.
fs::path nowhere() { return "/dev/null/nothing"; }

Drive *findDrive(char letter)
{
    auto &list = drives().list;
    const auto found = std::find_if(list.begin(), list.end(), [&](const Drive &d) { return d.letter == letter; });
    return found == list.end() ? nullptr : &*found;
}

// Media that are still there keep their letters; new ones get the first free letters.
void refreshMedia()
{
    if (!drives().withMedia)
        return;
    auto &list = drives().list;
    std::ifstream mountTable("/proc/self/mounts");
    std::vector<fs::path> media = mountedMedia(mountTable);
    std::erase_if(list, [&](const Drive &drive) {
        return drive.letter != 'C' && std::find(media.begin(), media.end(), drive.root) == media.end();
    });
    std::erase_if(media, [&](const fs::path &root) {
        return std::any_of(list.begin(), list.end(), [&](const Drive &drive) { return drive.root == root; });
    });
    for (char letter = 'D'; letter <= 'Z' && !media.empty(); ++letter) {
        if (findDrive(letter) == nullptr) {
            list.push_back({letter, media.front()});
            media.erase(media.begin());
        }
    }
    std::sort(list.begin(), list.end(), [](const Drive &a, const Drive &b) { return a.letter < b.letter; });
}

bool isLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool isSeparator(char c) { return c == '\\' || c == '/'; }

// Takes "D:" off the front; the current drive's letter when there is none.
char takeDriveLetter(std::string_view &path)
{
    if (path.size() < 2 || path[1] != ':' || !isLetter(path[0]))
        return drives().current;
    const char letter = static_cast<char>(path[0] & ~0x20);
    path.remove_prefix(2);
    return letter;
}

bool isWithin(const fs::path &path, const fs::path &root)
{
    return std::mismatch(root.begin(), root.end(), path.begin(), path.end()).first == root.end();
}

fs::path withoutTrailingSeparator(const fs::path &path)
{
    return path.has_filename() || path == path.root_path() ? path : path.parent_path();
}

// Goes down from a folder of a drive, name by name.
fs::path descend(fs::path folder, std::string_view names, const fs::path &root)
{
    while (!names.empty()) {
        const auto end =
            static_cast<std::size_t>(std::find_if(names.begin(), names.end(), isSeparator) - names.begin());
        const std::string_view name = names.substr(0, end);
        names.remove_prefix(std::min(end + 1, names.size()));
        if (name == ".." && folder != root)
            folder = folder.parent_path();
        else if (!name.empty() && name != "." && name != "..")
            folder = findName(folder, name);
    }
    return folder;
}

const Drive *driveOf(const fs::path &path)
{
    if (isBelowMediaFolder(path))
        refreshMedia();
    const Drive *nearest = nullptr;
    for (const Drive &drive : drives().list) {
        if (isWithin(path, drive.root) &&
            (nearest == nullptr || drive.root.native().size() > nearest->root.native().size()))
            nearest = &drive;
    }
    return nearest;
}

std::string pathOnDrive(const Drive &drive, const fs::path &path)
{
    std::string result = {drive.letter, ':', '\\'};
    fs::path folder = drive.root;
    auto name = std::next(path.begin(), std::distance(drive.root.begin(), drive.root.end()));
    for (; name != path.end(); ++name) {
        if (folder != drive.root)
            result += '\\';
        result += rememberedDriveName(folder, name->native());
        folder /= *name;
    }
    return result;
}

std::vector<fs::directory_entry> entries(const fs::path &folder)
{
    std::vector<fs::directory_entry> found;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        found.push_back(*entry);
    return found;
}

} // namespace

void setDriveRoot(const fs::path &hostFolder)
{
    std::error_code error;
    const fs::path absolute = fs::absolute(hostFolder, error);
    const fs::path root = withoutTrailingSeparator((error ? hostFolder : absolute).lexically_normal());
    drives() = {{{'C', root}}, false, 'C', root};
    shownDirectory() = {};
}

std::vector<std::string> driveList()
{
    refreshMedia();
    std::vector<std::string> letters;
    for (const Drive &drive : drives().list)
        letters.push_back({drive.letter, ':'});
    return letters;
}

fs::path hostPath(std::string_view drivePath)
{
    if (drivePath.find('\0') != std::string_view::npos)
        return nowhere();
    const ShownDirectory &known = shownDirectory();
    if (!known.shown.empty() && drivePath.starts_with(known.shown))
        return descend(known.folder, drivePath.substr(known.shown.size()), known.folder);
    const char letter = takeDriveLetter(drivePath);
    if (findDrive(letter) == nullptr)
        refreshMedia();
    const Drive *drive = findDrive(letter);
    if (drive == nullptr)
        return nowhere();
    const bool fromRoot = letter != drives().current || (!drivePath.empty() && isSeparator(drivePath.front()));
    return descend(fromRoot ? drive->root : drives().directory, drivePath, drive->root);
}

std::string drivePath(const fs::path &hostPath)
{
    std::error_code error;
    const fs::path path = withoutTrailingSeparator(fs::absolute(hostPath, error).lexically_normal());
    const Drive *drive = error ? nullptr : driveOf(path);
    return drive == nullptr ? std::string() : pathOnDrive(*drive, path);
}

void letStandFor(std::string_view shown, std::string_view directory)
{
    shownDirectory() = {};
    shownDirectory() = {std::string(shown), hostPath(directory)};
}

std::string realPath(std::string_view drivePath)
{
    if (drivePath.find('~') == std::string_view::npos)
        return toUtf8(drivePath);
    std::string real;
    std::size_t begin = 0;
    while (begin <= drivePath.size()) {
        const std::size_t end = std::min(drivePath.find('\\', begin), drivePath.size());
        const std::string_view name = drivePath.substr(begin, end - begin);
        const bool alias = name.find('~') != std::string_view::npos;
        real += alias ? hostPath(drivePath.substr(0, end)).filename().string() : toUtf8(name);
        if (end < drivePath.size())
            real += '\\';
        begin = end + 1;
    }
    return real;
}

std::string currentDirectory()
{
    const Drive *drive = findDrive(drives().current);
    if (drive == nullptr) // the medium is gone
        return {drives().current, ':', '\\'};
    return pathOnDrive(*drive, drives().directory);
}

bool changeDirectory(std::string_view directory)
{
    if (!directoryExists(directory))
        return false;
    const fs::path folder = hostPath(directory);
    drives().current = takeDriveLetter(directory);
    drives().directory = folder;
    return true;
}

bool fileExists(std::string_view drivePath)
{
    std::error_code error;
    return fs::is_regular_file(hostPath(drivePath), error);
}

bool directoryExists(std::string_view drivePath)
{
    std::error_code error;
    const fs::directory_iterator listing(hostPath(drivePath), error);
    return !error;
}

std::vector<std::string> subdirectories(std::string_view directory)
{
    std::vector<std::string> names;
    for (const fs::directory_entry &entry : entries(hostPath(directory))) {
        std::error_code error;
        const std::string name = entry.path().filename().string();
        if (!name.starts_with('.') && entry.is_directory(error))
            names.push_back(driveName(name));
    }
    std::sort(names.begin(), names.end(), [](const std::string &a, const std::string &b) {
        const std::string upperA = upperCase(a), upperB = upperCase(b);
        return upperA != upperB ? upperA < upperB : a < b;
    });
    return names;
}

} // namespace corvanta
