#include "check/page_map.h"

#include "actions/links.h"
#include "check/folder.h"
#include "platform/folder_names.h"
#include "platform/text.h"

#include <set>

namespace corvanta {

std::vector<PageLink> pageLinks(const Page &p)
{
    std::vector<PageLink> links;
    eachAction(p, [&](std::int16_t object, const Action &action) {
        for (const std::size_t place : pageParameters(action.code))
            if (!action.values[place].empty())
                links.push_back({object, action.values[place]});
    });
    return links;
}

void PageMap::add(const std::string &file, const Page &p)
{
    std::string name = driveName(file);
    if (isPageFileName(name))
        name.resize(name.size() - 4);
    byName.try_emplace(upperCase(name), entries.size());
    entries.push_back({file, name, p.PageType, p.pgcaption, pageLinks(p)});
}

std::string PageMap::start() const
{
    for (const char *usual : {"TOP", "MENU"})
        if (const auto found = byName.find(usual); found != byName.end())
            return entries[found->second].name;
    for (const Entry &entry : entries)
        if (entry.type == static_cast<std::int16_t>(PageKind::Menu))
            return entry.name;
    return entries.empty() ? std::string() : entries.front().name;
}

const PageMap::Entry *PageMap::find(const std::string &name) const
{
    auto found = byName.find(upperCase(name));
    if (found == byName.end() && sameText(name, "TOP"))
        found = byName.find(upperCase(start()));
    return found == byName.end() ? nullptr : &entries[found->second];
}

std::vector<std::string> PageMap::unreachable() const
{
    std::set<const Entry *> reached;
    std::vector<const Entry *> next{find(start())};
    while (!next.empty()) {
        const Entry *entry = next.back();
        next.pop_back();
        if (entry == nullptr || !reached.insert(entry).second)
            continue;
        for (const PageLink &link : entry->links)
            next.push_back(find(link.page));
    }
    std::vector<std::string> files;
    for (const Entry &entry : entries)
        if (!reached.contains(&entry))
            files.push_back(entry.file);
    return files;
}

} // namespace corvanta
