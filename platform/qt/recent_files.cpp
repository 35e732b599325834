#include "platform/qt/recent_files.h"

#include "platform/environment.h"

#include <algorithm>
#include <glib.h>
#include <memory>
#include <string>

namespace corvanta {

namespace {

namespace fs = std::filesystem;

constexpr const char *pageType = "application/x-corvanta-page";
constexpr std::uintmax_t longestList = 4 << 20; // bytes

struct Release {
    void operator()(GBookmarkFile *list) const { g_bookmark_file_free(list); }
    void operator()(char *text) const { g_free(text); }
    void operator()(char **texts) const { g_strfreev(texts); }
};
using List = std::unique_ptr<GBookmarkFile, Release>;
using Text = std::unique_ptr<char, Release>;

fs::path listFile()
{
    const fs::path data = environmentValue("XDG_DATA_HOME"), home = environmentValue("HOME");
    if (data.is_absolute())
        return data / "recently-used.xbel";
    return home.is_absolute() ? home / ".local/share/recently-used.xbel" : fs::path();
}

// None for a list that is not to be touched; an empty one where there is no file.
List readList(const fs::path &file)
{
    std::error_code none;
    List list(g_bookmark_file_new());
    if (file.empty() || (fs::exists(file, none) && fs::file_size(file, none) > longestList))
        return {};
    if (!fs::exists(file, none) || fs::file_size(file, none) == 0)
        return list;
    return g_bookmark_file_load_from_file(list.get(), file.c_str(), nullptr) ? std::move(list) : List();
}

std::string uriOf(const fs::path &file)
{
    const Text uri(g_filename_to_uri(file.c_str(), nullptr, nullptr));
    return uri ? uri.get() : std::string();
}

} // namespace

std::vector<fs::path> recentPages(std::size_t most)
{
    const List list = readList(listFile());
    if (!list)
        return {};
    std::vector<std::pair<gint64, fs::path>> pages; // with the microseconds of their time
    const std::unique_ptr<char *, Release> uris(g_bookmark_file_get_uris(list.get(), nullptr));
    for (char **uri = uris.get(); uri && *uri; ++uri) {
        const Text type(g_bookmark_file_get_mime_type(list.get(), *uri, nullptr));
        const Text path(g_filename_from_uri(*uri, nullptr, nullptr));
        std::error_code error;
        if (type && path && std::string_view(type.get()) == pageType && fs::is_regular_file(path.get(), error))
            if (GDateTime *time = g_bookmark_file_get_modified_date_time(list.get(), *uri, nullptr))
                pages.emplace_back(g_date_time_to_unix(time) * 1000000 + g_date_time_get_microsecond(time), path.get());
    }
    std::ranges::stable_sort(pages, std::ranges::greater(), &std::pair<gint64, fs::path>::first);
    pages.resize(std::min(pages.size(), most));
    std::vector<fs::path> files;
    files.reserve(pages.size());
    for (auto &[time, file] : pages)
        files.push_back(std::move(file));
    return files;
}

void noteRecentPage(const fs::path &file)
{
    const fs::path target = listFile();
    const List list = readList(target);
    const std::string uri = uriOf(file);
    if (!list || uri.empty())
        return;
    std::error_code none;
    fs::create_directories(target.parent_path(), none);
    g_bookmark_file_set_mime_type(list.get(), uri.c_str(), pageType);
    g_bookmark_file_add_application(list.get(), uri.c_str(), "Corvanta Form Editor", "corvanta %u");
    const std::unique_ptr<GDateTime, void (*)(GDateTime *)> now(g_date_time_new_now_utc(), g_date_time_unref);
    g_bookmark_file_set_modified_date_time(list.get(), uri.c_str(), now.get());
    g_bookmark_file_to_file(list.get(), target.c_str(), nullptr);
}

} // namespace corvanta
