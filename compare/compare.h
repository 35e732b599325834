#pragma once

#include "compare/fields.h"

#include <optional>

// Differences of two pages, and merges of two that come from one. Texts are bytes of the code page.
namespace corvanta {

struct FieldChange {
    std::string field, from, to; // in the author's words
};

struct Difference {
    enum class What { Added, Removed, Changed, Reordered };
    What what = What::Changed;
    std::string title; // of the object; "Page" for the page itself
    std::vector<FieldChange> changes;
};

// What of a leads to b: the page's own fields first, then the objects in the order of b, then those removed.
std::vector<Difference> differences(const Page &a, const Page &b);

// The object of b that each object of a became, by name, kind and place; none for one that was removed.
using Matches = std::vector<std::optional<std::size_t>>;
Matches matchedObjects(const ComparedPage &a, const ComparedPage &b);

struct Merge {
    Page page;
    std::vector<std::string> conflicts; // left as in ours
};

// Both sides' changes of base in one page. It always reads back from a file.
Merge merged(const Page &base, const Page &ours, const Page &theirs);

} // namespace corvanta
