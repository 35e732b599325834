#pragma once

#include "canvas/geometry.h"

namespace corvanta {

// The object's rectangle with its top-left corner at the point, pushed back from the page's right and bottom
// edge; the corner of a larger object stays on the page.
Rect droppedRect(const Rect &object, Point at, Size pageSize);

// Moves an object of the process-wide page to where it is dropped.
void placeObjectAt(std::int16_t index, Point at);

// Adds a new object with its defaults at a point of the page and selects it; its index. A refused object (a
// fourth ticker) changes nothing and gives noObject.
std::int16_t addObjectAt(Kind kind, Point at);

// The same as a completed edit.
void dropObject(Kind kind, Point at);

} // namespace corvanta
