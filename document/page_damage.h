#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvanta {

// What saving a page file would lose.
struct PageDamage {
    std::string summary;            // one line; empty for a sound file
    std::vector<std::string> lines; // the details

    explicit operator bool() const { return !summary.empty(); }
};

// Looks into the bytes of a page file: whether it is cut short, holds bytes or counts beyond what a page can have, or
// is no page at all. Files of older versions, which only gain fields, are sound.
PageDamage damageOf(std::string_view bytes);

} // namespace corvanta
