#include "preview/pages.h"

#include "converter/host_names.h"
#include "document/media.h"
#include "document/page_file.h"
#include "document/reading_failure.h"
#include "document/tablist.h"
#include "platform/codepage.h"
#include "platform/folder_names.h"
#include "platform/host_files.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <set>
#include <sys/stat.h>

namespace corvanta {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t mediaLimit = 16 << 20; // bytes
constexpr std::size_t deepestMedia = 4;         // folders
constexpr std::size_t longestName = 255;        // bytes

struct MediaType {
    const char *extension, *type;
};
constexpr MediaType mediaTypes[] = {
    {".bmp", "image/bmp"},  {".gif", "image/gif"},  {".ico", "image/x-icon"}, {".cur", "image/x-icon"},
    {".jpg", "image/jpeg"}, {".jpe", "image/jpeg"}, {".jpeg", "image/jpeg"},  {".png", "image/png"},
    {".wav", "audio/wav"},  {".mid", "audio/midi"}, {".midi", "audio/midi"},  {".mp3", "audio/mpeg"},
    {".ogg", "audio/ogg"},
};

bool plain(std::string_view name)
{
    return !name.empty() && name.size() <= longestName && name.front() != '.' && plainFileName(name);
}

bool inside(const fs::path &folder, const fs::path &file)
{
    std::error_code error;
    const fs::path real = fs::canonical(file, error);
    const auto end = std::mismatch(folder.begin(), folder.end(), real.begin(), real.end());
    return !error && end.first == folder.end();
}

// Empty when the page's file is not there or elsewhere.
fs::path pageFile(const PageFolder &pages, const std::string &name)
{
    for (const fs::path &folder : {pages.overlay, pages.folder}) {
        const fs::path file = folder.empty() ? fs::path() : fileIn(folder, name + ".ods");
        if (!file.empty() && inside(folder, file))
            return file;
    }
    return {};
}

std::string failureOf(const FileContent &content)
{
    const std::string failure = readingFailure(content);
    return failure.empty() && !isPageFile(content.bytes) ? "not a page file" : failure;
}

// Names of the pages in a folder, without ".ods", in the order of their bytes.
std::vector<std::string> pageNames(const fs::path &folder)
{
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const std::string name = driveName(entry->path().filename().string());
        if (name.size() > 4 && plain(name) && sameText(name.substr(name.size() - 4), ".ods"))
            names.push_back(name.substr(0, name.size() - 4));
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::set<std::string> namedFiles(const Page &p)
{
    std::set<std::string> files{p.bkgfile, p.sndfn};
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const std::string &list = p.objects[static_cast<std::size_t>(i)].srcfile;
        for (int n = 0; n < fieldCount(list); ++n)
            files.insert(trimmed(fieldAt(list, n)));
    }
    return files;
}

std::string fileStamp(const fs::path &file)
{
    struct stat status = {};
    if (file.empty() || stat(file.c_str(), &status) != 0)
        return "-";
    return std::to_string(status.st_ino) + "." + std::to_string(status.st_size) + "." +
           std::to_string(status.st_mtim.tv_sec) + "." + std::to_string(status.st_mtim.tv_nsec);
}

const char *mediaType(std::string_view name)
{
    const std::size_t dot = name.rfind('.');
    for (const MediaType &m : mediaTypes)
        if (dot != std::string_view::npos && sameText(name.substr(dot), m.extension))
            return m.type;
    return nullptr;
}

} // namespace

std::string startPage(const PageFolder &pages)
{
    const std::vector<std::string> names = pageNames(pages.folder);
    for (const char *usual : {"TOP", "MENU"})
        for (const std::string &name : names)
            if (sameText(name, usual))
                return name;
    for (const std::string &name : names)
        if (const LoadedPage loaded = loadPage(pages, name);
            loaded.failure.empty() && loaded.page.PageType == static_cast<std::int16_t>(PageKind::Menu))
            return name;
    return names.empty() ? std::string() : names.front();
}

std::optional<std::string> pageOfAddress(const PageFolder &pages, std::string_view address)
{
    const std::size_t dot = address.rfind('.');
    if (dot == std::string_view::npos ||
        !(sameText(address.substr(dot), ".hts") || sameText(address.substr(dot), ".ods")))
        return std::nullopt;
    std::optional<std::string> name = fromUtf8(address.substr(0, dot));
    if (!name || !plain(*name))
        return std::nullopt;
    std::error_code error;
    if (sameText(*name, "TOP") && !fs::exists(pageFile(pages, *name), error))
        return pages.start;
    return name;
}

LoadedPage loadPage(const PageFolder &pages, const std::string &name)
{
    LoadedPage loaded;
    loaded.name = name;
    const fs::path file = pageFile(pages, name);
    const FileContent content = file.empty() ? FileContent() : readHostFile(file, fileLimit);
    loaded.missing = file.empty() || content.missing;
    loaded.failure = loaded.missing ? "no such page" : failureOf(content);
    if (loaded.failure.empty())
        parsePage(loaded.page, content.bytes);
    return loaded;
}

std::optional<MediaFile> mediaFile(const PageFolder &pages, std::string_view address)
{
    const char *type = mediaType(address);
    if (!type)
        return std::nullopt;
    fs::path file = pages.folder;
    for (std::size_t depth = 0; !address.empty(); ++depth) {
        const std::size_t end = std::min(address.find('/'), address.size());
        const std::optional<std::string> part = fromUtf8(address.substr(0, end));
        if (!part || !plain(*part) || depth >= deepestMedia)
            return std::nullopt;
        file = fileIn(file, *part);
        address.remove_prefix(std::min(end + 1, address.size()));
    }
    if (!inside(pages.folder, file))
        return std::nullopt;
    FileContent content = readHostFile(file, mediaLimit);
    if (content.missing || content.tooLarge || !content.error.empty())
        return std::nullopt;
    return MediaFile{type, std::move(content.bytes)};
}

std::string pageStamp(const PageFolder &pages, const std::string &name)
{
    std::string stamps = fileStamp(pageFile(pages, name));
    for (const std::string &file : namedFiles(loadPage(pages, name).page))
        if (plain(file))
            stamps += "," + fileStamp(fileIn(pages.folder, file));
    return std::to_string(std::hash<std::string>()(stamps));
}

} // namespace corvanta
