#include "preview/picture_sources.h"

#include "converter/address.h"
#include "platform/codepage.h"
#include "platform/text.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr std::size_t mostFolders = 1000;

bool isHostCharacter(char c)
{
    return (c >= '0' && c <= '9') || ((c | 0x20) >= 'a' && (c | 0x20) <= 'z') || c == '.' || c == '-' || c == ':';
}

// "https://example.com:8080" of an address; empty for all others.
std::string hostOf(std::string_view address)
{
    const std::size_t start = sameText(address.substr(0, 7), "http://")    ? 7
                              : sameText(address.substr(0, 8), "https://") ? 8
                                                                           : std::string_view::npos;
    if (start == std::string_view::npos)
        return {};
    const std::size_t end = std::min(address.find('/', start), address.size());
    const std::string_view host = address.substr(start, end - start);
    return !host.empty() && std::all_of(host.begin(), host.end(), isHostCharacter) ? std::string(address.substr(0, end))
                                                                                   : std::string();
}

std::string withSlashes(std::string path)
{
    std::replace(path.begin(), path.end(), '\\', '/');
    while (path.starts_with("./"))
        path.erase(0, 2);
    return path;
}

// What stands before the last "/" of a picture's path; with a name of a directory all of it.
std::string folderOf(const std::string &path, bool directory)
{
    const std::size_t end = directory ? path.find_last_not_of('/') + 1 : std::min(path.rfind('/'), path.size());
    return directory || end < path.size() ? path.substr(0, end) : std::string();
}

std::string valueNamed(const std::vector<TemplateValue> &values, const std::string &utf8)
{
    const auto found = std::find_if(values.begin(), values.end(), [&](const auto &v) { return v.name == utf8; });
    return found == values.end() ? std::string() : fromUtf8Lossy(found->value);
}

template <class Visit> void visitImageDbs(const Page &p, Visit visit)
{
    for (const ObjectRecord &o : p.objects)
        if (kindOf(o.kind) == Kind::ImageDb)
            visit(o);
}

} // namespace

std::vector<std::string> pictureHosts(const Page &p)
{
    std::vector<std::string> hosts;
    visitImageDbs(p, [&](const ObjectRecord &o) { hosts.push_back(hostOf(imageAddress(o.srcfile, o.ctlname))); });
    std::erase(hosts, std::string());
    return hosts;
}

std::vector<std::string> pictureFolders(const Page &p, const std::vector<TemplateValue> &values)
{
    std::vector<std::string> folders;
    visitImageDbs(p, [&](const ObjectRecord &o) {
        const std::string path = trimmed(o.srcfile);
        const bool directory = !path.empty();
        const std::string folder =
            folderOf(withSlashes(directory ? path : valueNamed(values, toUtf8(o.ctlname))), directory);
        if (!folder.empty())
            folders.push_back(folder);
    });
    return folders;
}

void PictureFolders::add(const std::vector<std::string> &named)
{
    for (const std::string &folder : named) {
        if (holds(folder))
            continue;
        const std::lock_guard lock(mutex);
        if (folders.size() >= mostFolders)
            folders.erase(folders.begin());
        folders.push_back(folder);
    }
}

bool PictureFolders::holds(std::string_view folder) const
{
    const std::lock_guard lock(mutex);
    return std::any_of(folders.begin(), folders.end(), [&](const std::string &f) { return sameText(f, folder); });
}

} // namespace corvanta
