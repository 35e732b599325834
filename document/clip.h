#pragma once

#include "document/page.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Objects on their way through the clipboard: the bytes of a page file without page-wide values that holds just them.
namespace corvanta {

inline constexpr std::size_t clipLimit = 1 << 15; // bytes, which is twice what a page can have

// The objects of these indices, in table order.
std::string clipOf(const Page &p, const std::vector<std::int16_t> &indices);

// The page that a clip's bytes hold; none for bytes that are not exactly such a page with at least one object, and for
// more than clipLimit of them.
std::optional<Page> pageOfClip(std::string_view clip);

// Appends a clip's objects to a page. Tickers beyond those that a page can have are told once and left out. The indices
// of the new objects; none for bytes that are no clip.
std::vector<std::int16_t> appendClip(Page &p, std::string_view clip);

// "3 objects", or the kind's name of a single one.
std::string objectsName(const Page &p, const std::vector<std::int16_t> &indices);

} // namespace corvanta
