#include "canvas/page_view.h"

#include <algorithm>

namespace corvanta {

namespace {

int sideFor(int side, int fitted, bool viewStays, int shown)
{
    const bool scrolls = side > fitted && shown <= side;
    return scrolls || viewStays || shown <= 0 ? side : shown;
}

constexpr int border = 12, fastest = 32; // pixels

int stepAlong(int at, int extent)
{
    if (at < border)
        return -std::min(border - at, fastest);
    return at >= extent - border ? std::min(at - (extent - border) + 1, fastest) : 0;
}

} // namespace

Size barsFor(Size page, Size view, int bar)
{
    Size bars;
    for (int pass = 0; pass < 3; ++pass) // a bar can make the other one needed
        bars = {page.height > view.height - bars.height ? bar : 0, page.width > view.width - bars.width ? bar : 0};
    return bars;
}

Size viewOf(Size page, Size room, int bar)
{
    const Size bars = barsFor(page, room, bar);
    return {std::min(page.width + bars.width, room.width), std::min(page.height + bars.height, room.height)};
}

Size pageSizeFor(Size page, Size fitted, Size viewBefore, Size view, int bar)
{
    Size after = page, shown = view;
    for (int pass = 0; pass < 3; ++pass) {
        after = {sideFor(page.width, fitted.width, view.width == viewBefore.width, shown.width),
                 sideFor(page.height, fitted.height, view.height == viewBefore.height, shown.height)};
        const Size bars = barsFor(after, view, bar);
        shown = {view.width - bars.width, view.height - bars.height};
    }
    return after;
}

Point scrollStep(Point pointer, Size view)
{
    return {stepAlong(pointer.x, view.width), stepAlong(pointer.y, view.height)};
}

} // namespace corvanta
