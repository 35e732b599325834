#include "check/rules.h"

#include <algorithm>

namespace corvanta {

namespace {

// Whether a reader comes to a before b without doubt: a stands above b, or left of it in one row.
bool readsBefore(const Page &p, std::int16_t first, std::int16_t second)
{
    const ObjectRecord &a = recordAt(p, first), &b = recordAt(p, second);
    const bool columns = a.pleft < b.pleft + b.pwidth && b.pleft < a.pleft + a.pwidth;
    const bool rows = a.ptop < b.ptop + b.pheight && b.ptop < a.ptop + a.pheight;
    if (columns)
        return a.ptop + a.pheight <= b.ptop;
    const bool rightToLeft = (p.pgflags & rtlFlag) != 0;
    return rows && (rightToLeft ? b.pleft + b.pwidth <= a.pleft : a.pleft + a.pwidth <= b.pleft);
}

} // namespace

std::vector<std::int16_t> tabOrder(const Page &p)
{
    std::vector<std::int16_t> order;
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const ObjectRecord &o = recordAt(p, i);
        const auto kind = kindOf(o.kind);
        if (kind && kindRow(*kind).hasTabIndex && !o.has(invisibleFlag) && o.pwidth > 0 && o.pheight > 0)
            order.push_back(i);
    }
    std::stable_sort(order.begin(), order.end(),
                     [&](std::int16_t a, std::int16_t b) { return recordAt(p, a).tbindex < recordAt(p, b).tbindex; });
    return order;
}

std::vector<std::int16_t> readingOrder(const Page &p)
{
    std::vector<std::int16_t> left = tabOrder(p), order;
    while (!left.empty()) {
        const auto next = std::find_if(left.begin(), left.end(), [&](std::int16_t candidate) {
            return std::none_of(left.begin(), left.end(),
                                [&](std::int16_t other) { return readsBefore(p, other, candidate); });
        });
        if (next == left.end())
            return {};
        order.push_back(*next);
        left.erase(next);
    }
    return order;
}

void findTabOrder(const Checked &checked, const Report &report)
{
    const Page &p = checked.page;
    const std::vector<std::int16_t> order = tabOrder(p);
    for (std::size_t later = 1; later < order.size(); ++later)
        for (std::size_t i = 0; i < later; ++i)
            if (readsBefore(p, order[later], order[i])) {
                report(order[later], "the Tab key comes to object " + std::to_string(order[i]) + " (" +
                                         objectTitle(p, order[i]) + ") first, which is read later");
                break;
            }
}

} // namespace corvanta
