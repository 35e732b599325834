#include "compare/compare.h"

#include "document/page_file.h"

#include <algorithm>

namespace corvanta {

namespace {

bool equalFields(const Fields &a, const Fields &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const Field &x, const Field &y) { return x.bytes == y.bytes; });
}

bool equal(const ComparedObject &a, const ComparedObject &b)
{
    return a.kind == b.kind && equalFields(a.fields, b.fields);
}

// The frames of an animation and their files are one list in two fields.
bool areLinked(const std::string &a, const std::string &b)
{
    return (a == "srcfile" && b == "frames") || (a == "frames" && b == "srcfile");
}

class Merger {
public:
    Merger(const Page &basePage, const Page &oursPage, const Page &theirsPage)
        : base(takenApart(basePage)),
          ours(takenApart(oursPage)),
          theirs(takenApart(theirsPage)),
          toOurs(matchedObjects(base, ours)),
          toTheirs(matchedObjects(base, theirs))
    {
    }

    Merge merge()
    {
        Merge result;
        parts.header = mergedFields("Page", base.header, ours.header, theirs.header);
        takeObjects();
        std::vector<std::size_t> refused;
        result.page = putTogether(parts, refused);
        for (const std::size_t index : refused)
            conflicts.push_back(parts.objects[index].title + ": the page cannot hold one more of its kind");
        result.conflicts = std::move(conflicts);
        return result;
    }

private:
    Fields mergedFields(const std::string &title, const Fields &from, const Fields &mine, const Fields &other)
    {
        Fields merged = mine;
        for (Field &field : merged) {
            const Field *before = fieldNamed(from, field.name), *theirField = fieldNamed(other, field.name);
            if (before == nullptr || theirField == nullptr || theirField->bytes == before->bytes ||
                theirField->bytes == field.bytes)
                continue;
            if (field.bytes == before->bytes && !linkedChange(field.name, from, mine))
                field = *theirField;
            else
                conflicts.push_back(title + ": " + fieldTitle(field.name) + " " + before->shown + " -> " + field.shown +
                                    " here, " + theirField->shown + " there");
        }
        return merged;
    }

    // Whether the other half of a list in two fields was changed.
    static bool linkedChange(const std::string &name, const Fields &from, const Fields &mine)
    {
        return std::any_of(from.begin(), from.end(), [&](const Field &field) {
            const Field *now = areLinked(field.name, name) ? fieldNamed(mine, field.name) : nullptr;
            return now != nullptr && now->bytes != field.bytes;
        });
    }

    // The objects of base in the order of one side, as places in base.
    static std::vector<std::size_t> baseOrder(const Matches &matches)
    {
        std::vector<std::size_t> order;
        for (std::size_t i = 0; i < matches.size(); ++i)
            if (matches[i])
                order.push_back(i);
        std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return *matches[a] < *matches[b]; });
        return order;
    }

    static bool keepsOrder(const Matches &matches)
    {
        const std::vector<std::size_t> order = baseOrder(matches);
        return std::is_sorted(order.begin(), order.end());
    }

    // What became of an object of base; none when it goes.
    std::optional<ComparedObject> mergedObject(std::size_t i)
    {
        const ComparedObject &from = base.objects[i];
        const ComparedObject *mine = toOurs[i] ? &ours.objects[*toOurs[i]] : nullptr;
        const ComparedObject *other = toTheirs[i] ? &theirs.objects[*toTheirs[i]] : nullptr;
        if (mine != nullptr && other != nullptr) {
            ComparedObject merged = *mine;
            merged.fields = mergedFields(from.title, from.fields, mine->fields, other->fields);
            return merged;
        }
        if (mine != nullptr && !equal(*mine, from))
            conflicts.push_back(from.title + ": changed here, removed there");
        else if (other != nullptr && !equal(*other, from))
            conflicts.push_back(from.title + ": removed here, changed there");
        return mine != nullptr && !equal(*mine, from) ? std::optional(*mine) : std::nullopt;
    }

    struct Placed {
        std::optional<std::size_t> oursAt, theirsAt;
    };

    // One side's order leads: theirs where only they changed it. The other side's objects follow the one that they
    // stand behind over there.
    void takeObjects()
    {
        const bool theirsLead = keepsOrder(toOurs) && !keepsOrder(toTheirs);
        if (!keepsOrder(toOurs) && !keepsOrder(toTheirs) && baseOrder(toOurs) != baseOrder(toTheirs))
            conflicts.emplace_back("Page: the order of the objects was changed here and there");
        std::vector<Placed> placed;
        std::vector<std::optional<ComparedObject>> objects = allObjects(placed);
        const auto leading = [&](std::size_t k) { return theirsLead ? placed[k].theirsAt : placed[k].oursAt; };
        const auto following = [&](std::size_t k) { return theirsLead ? placed[k].oursAt : placed[k].theirsAt; };
        std::vector<std::size_t> order, rest;
        for (std::size_t k = 0; k < objects.size(); ++k)
            (leading(k) ? order : rest).push_back(k);
        std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return *leading(a) < *leading(b); });
        std::sort(rest.begin(), rest.end(),
                  [&](std::size_t a, std::size_t b) { return *following(a) < *following(b); });
        for (const std::size_t k : rest) {
            auto behind = order.begin();
            std::optional<std::size_t> nearest;
            for (auto at = order.begin(); at != order.end(); ++at)
                if (following(*at) && *following(*at) < *following(k) && (!nearest || *following(*at) > *nearest)) {
                    nearest = following(*at);
                    behind = at + 1;
                }
            order.insert(behind, k);
        }
        for (const std::size_t k : order)
            if (objects[k])
                parts.objects.push_back(std::move(*objects[k]));
    }

    // Those of base, then what either side added; what both added alike is added once.
    std::vector<std::optional<ComparedObject>> allObjects(std::vector<Placed> &placed)
    {
        std::vector<std::optional<ComparedObject>> objects;
        for (std::size_t i = 0; i < base.objects.size(); ++i) {
            if (!toOurs[i] && !toTheirs[i])
                continue;
            objects.push_back(mergedObject(i));
            placed.push_back({toOurs[i], toTheirs[i]});
        }
        const std::size_t firstAdded = objects.size();
        const auto isNew = [](const Matches &matches, std::size_t j) {
            return std::find(matches.begin(), matches.end(), std::optional(j)) == matches.end();
        };
        for (std::size_t j = 0; j < ours.objects.size(); ++j)
            if (isNew(toOurs, j)) {
                objects.emplace_back(ours.objects[j]);
                placed.push_back({j, std::nullopt});
            }
        const std::size_t theirsFrom = objects.size();
        for (std::size_t j = 0; j < theirs.objects.size(); ++j) {
            if (!isNew(toTheirs, j))
                continue;
            std::size_t twin = firstAdded;
            while (twin < theirsFrom && (placed[twin].theirsAt || !equal(*objects[twin], theirs.objects[j])))
                ++twin;
            if (twin < theirsFrom) {
                placed[twin].theirsAt = j;
                continue;
            }
            objects.emplace_back(theirs.objects[j]);
            placed.push_back({std::nullopt, j});
        }
        return objects;
    }

    const ComparedPage base, ours, theirs;
    const Matches toOurs, toTheirs;
    ComparedPage parts;
    std::vector<std::string> conflicts;
};

} // namespace

Merge merged(const Page &base, const Page &ours, const Page &theirs)
{
    Merge result = Merger(base, ours, theirs).merge();
    if (const std::size_t bytes = serialisePage(result.page).size(); bytes > fileLimit) {
        result.page = ours;
        result.conflicts.push_back("Page: " + std::to_string(bytes) + " bytes together are more than the " +
                                   std::to_string(fileLimit) + " of a file");
    }
    return result;
}

} // namespace corvanta
