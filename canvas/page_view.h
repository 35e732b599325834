#pragma once

#include "canvas/geometry.h"

// The view that the canvas window gives onto a page, which scrolls when it is larger. Pixels; bar is the width of a
// scroll bar.
namespace corvanta {

// What the bars that a page needs in a view take of its width (the vertical one) and of its height.
Size barsFor(Size page, Size view, int bar);

// The view that shows all of a page that the room holds, with the bars for the rest.
Size viewOf(Size page, Size room, int bar);

// The page's size after the user has given the view another one. A side that did not fit when the window took the
// page's size (fitted is what it showed then) keeps scrolling, unless the view has become larger still; a side of the
// view that stays changes none of the page, and a bar's width never becomes the page's.
Size pageSizeFor(Size page, Size fitted, Size viewBefore, Size view, int bar);

// How far to scroll at once while the pointer is held at a border of a view or beyond it: the further, the faster.
Point scrollStep(Point pointer, Size view);

} // namespace corvanta
