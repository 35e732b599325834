#pragma once

#include "canvas/geometry.h"

#include <vector>

namespace corvanta {

// A place of this size for something new, on the page and over no object: under the current object or else at the top
// left, then further down and to the right. Objects that fill much of the page lie behind others and count as none. On
// a full page things lie over each other.
Point freePlace(const Page &p, std::int16_t current, Size wanted);

// Rows of a label and what it names, all labels as wide as the widest, in as many columns as the page's height asks
// for.
struct LabelledRow {
    Rect label, field;
};
struct LabelledRows {
    std::vector<LabelledRow> rows; // from the point 0, 0
    Size whole;
};
LabelledRows labelledRows(const std::vector<Size> &labels, Size field, Size pageSize);

} // namespace corvanta
