#pragma once

#include "document/page.h"

namespace corvanta {

// Gives a new object its kind's default size, place and text: the middle of the page. The object's element has
// been loaded from the template and has number n (for page-drawn kinds the number of its side table entry).
void setDefaults(Page &p, std::int16_t index, Kind kind, std::int16_t n);

} // namespace corvanta
