#include "platform/media.h"

#include <algorithm>
#include <sstream>
#include <string>

namespace corvanta {

namespace {

struct MediaFolder {
    std::string prefix;
    int depth; // names below it that make a mount point
};

const MediaFolder mediaFolders[] = {{"/media/", 2}, {"/run/media/", 2}, {"/mnt/", 1}};

bool isOctal(char c) { return c >= '0' && c <= '7'; }

// Blanks, tabs, newlines and backslashes of a mount point stand as "\040" and the like.
std::string withoutEscapes(const std::string &field)
{
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        const std::string_view digits = std::string_view(field).substr(i + 1, 3);
        if (field[i] == '\\' && digits.size() == 3 && std::all_of(digits.begin(), digits.end(), isOctal)) {
            text += static_cast<char>((digits[0] - '0') * 64 + (digits[1] - '0') * 8 + digits[2] - '0');
            i += 3;
        } else {
            text += field[i];
        }
    }
    return text;
}

bool isMediaMountPoint(const std::string &folder)
{
    return std::any_of(std::begin(mediaFolders), std::end(mediaFolders), [&](const MediaFolder &media) {
        return folder.starts_with(media.prefix) &&
               std::count(folder.begin() + static_cast<std::ptrdiff_t>(media.prefix.size()), folder.end(), '/') + 1 ==
                   media.depth;
    });
}

} // namespace

std::vector<std::filesystem::path> mountedMedia(std::istream &mountTable)
{
    std::vector<std::filesystem::path> media;
    std::string line, device, mountPoint;
    while (std::getline(mountTable, line)) {
        std::istringstream fields(line);
        fields >> device >> mountPoint;
        const std::string folder = withoutEscapes(mountPoint);
        if (isMediaMountPoint(folder) && std::find(media.begin(), media.end(), folder) == media.end())
            media.emplace_back(folder);
    }
    return media;
}

bool isBelowMediaFolder(const std::filesystem::path &hostPath)
{
    return std::any_of(std::begin(mediaFolders), std::end(mediaFolders),
                       [&](const MediaFolder &media) { return hostPath.native().starts_with(media.prefix); });
}

} // namespace corvanta
