#include "actions/links.h"
#include "check/rules.h"
#include "document/tablist.h"

namespace corvanta {

namespace {

bool respell(std::string &name, const std::string &spelled)
{
    const bool changes = name != spelled;
    name = spelled;
    return changes;
}

bool fixMedia(Page &p, const CheckFolder &folder)
{
    bool changed = respell(p.bkgfile, mediaSpelling(folder, p.bkgfile));
    changed = respell(p.sndfn, mediaSpelling(folder, p.sndfn)) || changed;
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        std::string &files = p.objects[static_cast<std::size_t>(i)].srcfile;
        for (const int field : mediaFields(recordAt(p, i)))
            if (const std::string name = fieldAt(files, field), spelled = mediaSpelling(folder, name); spelled != name)
                changed = respell(files, setFieldAt(files, field, spelled)) || changed;
    }
    return changed;
}

bool fixTabOrder(Page &p)
{
    const std::vector<std::int16_t> order = readingOrder(p);
    if (order == tabOrder(p))
        return false;
    std::int16_t tab = 0;
    for (const std::int16_t object : order)
        p.objects[static_cast<std::size_t>(object)].tbindex = ++tab;
    return !order.empty();
}

} // namespace

bool fixPage(Page &p, const CheckFolder *folder, const SkipRule &skip)
{
    const auto wanted = [&](std::string_view rule) { return !skip || !skip(rule); };
    const RenamePage spelled = [&](const std::string &name) { return pageSpelling(*folder, name); };
    const bool media = folder != nullptr && wanted("media") && fixMedia(p, *folder);
    const bool links = folder != nullptr && wanted("page") && renamePageLinks(p, spelled);
    const bool order = wanted("tab-order") && fixTabOrder(p);
    return media || links || order;
}

} // namespace corvanta
