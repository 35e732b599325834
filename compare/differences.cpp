#include "compare/compare.h"

#include <algorithm>

namespace corvanta {

namespace {

std::vector<FieldChange> changedFields(const Fields &a, const Fields &b)
{
    std::vector<FieldChange> changes;
    for (const Field &field : b) {
        const Field *before = fieldNamed(a, field.name);
        if (before != nullptr && before->bytes != field.bytes)
            changes.push_back({fieldTitle(field.name), before->shown, field.shown});
    }
    return changes;
}

bool isReordered(const Matches &matches)
{
    std::vector<std::size_t> order;
    for (const auto &match : matches)
        if (match)
            order.push_back(*match);
    return !std::is_sorted(order.begin(), order.end());
}

} // namespace

std::vector<Difference> differences(const Page &a, const Page &b)
{
    const ComparedPage before = takenApart(a), after = takenApart(b);
    const Matches matches = matchedObjects(before, after);
    std::vector<Difference> found;
    if (auto changes = changedFields(before.header, after.header); !changes.empty())
        found.push_back({Difference::What::Changed, "Page", std::move(changes)});
    if (isReordered(matches))
        found.push_back({Difference::What::Reordered, "Page", {}});
    for (std::size_t j = 0; j < after.objects.size(); ++j) {
        const auto from = std::find(matches.begin(), matches.end(), std::optional(j));
        if (from == matches.end()) {
            found.push_back({Difference::What::Added, after.objects[j].title, {}});
            continue;
        }
        const ComparedObject &old = before.objects[static_cast<std::size_t>(from - matches.begin())];
        if (auto changes = changedFields(old.fields, after.objects[j].fields); !changes.empty())
            found.push_back({Difference::What::Changed, old.title, std::move(changes)});
    }
    for (std::size_t i = 0; i < matches.size(); ++i)
        if (!matches[i])
            found.push_back({Difference::What::Removed, before.objects[i].title, {}});
    return found;
}

} // namespace corvanta
