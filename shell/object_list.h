#pragma once

#include "document/page.h"

#include <string>
#include <string_view>

// The rows of the object list window and what is done to them. Rows are objects in index order.
namespace corvanta {

// Kind name, tab, a second tab after a name of fewer than 9 characters, top, tab, left.
std::string objectListRow(const Page &p, std::int16_t index);

// What the window shows beside it: the bound column and the caption.
struct ObjectListDetails {
    std::string column, caption;
};
ObjectListDetails objectListDetails(const Page &p, std::int16_t index);

// Whether a row is listed under a filter: one of its texts or the object's name holds it, without regard to case. An
// empty filter lists all.
bool listedUnder(const Page &p, std::int16_t index, std::string_view filter);

// Makes the row's object current and shows its handles, unless it is current already.
void chooseListedObject(std::int16_t index);

// Deletes the row's object.
void deleteListedObject(std::int16_t index);

} // namespace corvanta
