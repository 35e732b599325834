#include "compare/compare.h"

#include <algorithm>
#include <functional>

namespace corvanta {

namespace {

using Alike = std::function<bool(const ComparedObject &a, const ComparedObject &b)>;

bool sameField(const ComparedObject &a, const ComparedObject &b, const char *name)
{
    const Field *x = fieldNamed(a.fields, name), *y = fieldNamed(b.fields, name);
    return x != nullptr && y != nullptr && x->bytes == y->bytes;
}

bool sameText(const ComparedObject &a, const ComparedObject &b, const char *name)
{
    constexpr std::size_t emptyText = 2; // bytes
    const Field *x = fieldNamed(a.fields, name);
    return x != nullptr && x->bytes.size() > emptyText && sameField(a, b, name);
}

bool samePlace(const ComparedObject &a, const ComparedObject &b)
{
    return sameField(a, b, "ptop") && sameField(a, b, "pleft");
}

std::size_t equalFields(const ComparedObject &a, const ComparedObject &b)
{
    std::size_t equal = 0;
    for (std::size_t i = 0; i < std::min(a.fields.size(), b.fields.size()); ++i)
        equal += a.fields[i].bytes == b.fields[i].bytes;
    return equal;
}

bool same(const ComparedObject &a, const ComparedObject &b) { return equalFields(a, b) == a.fields.size(); }

bool mostlySame(const ComparedObject &a, const ComparedObject &b)
{
    return 3 * equalFields(a, b) >= 2 * a.fields.size();
}

} // namespace

Matches matchedObjects(const ComparedPage &a, const ComparedPage &b)
{
    Matches matches(a.objects.size());
    std::vector<bool> taken(b.objects.size());
    const auto pair = [&](std::size_t i, std::size_t j, const Alike &alike) {
        if (matches[i] || j >= taken.size() || taken[j] || a.objects[i].kind != b.objects[j].kind ||
            !alike(a.objects[i], b.objects[j]))
            return;
        matches[i] = j;
        taken[j] = true;
    };
    const Alike passes[] = {same,
                            [](const auto &x, const auto &y) { return sameText(x, y, "ctlname"); },
                            [](const auto &x, const auto &y) { return samePlace(x, y) && mostlySame(x, y); },
                            [](const auto &x, const auto &y) { return sameText(x, y, "Caption"); },
                            samePlace,
                            mostlySame};
    for (const Alike &alike : passes) {
        for (std::size_t i = 0; i < matches.size(); ++i)
            pair(i, i, alike);
        for (std::size_t i = 0; i < matches.size(); ++i)
            for (std::size_t j = 0; j < taken.size() && !matches[i]; ++j)
                pair(i, j, alike);
    }
    return matches;
}

} // namespace corvanta
