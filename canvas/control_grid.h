#pragma once

#include "canvas/geometry.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace corvanta {

// The separately painted controls of a page by place, so that finding those under a rectangle takes no
// look at the others. Filled when a gesture begins: objects stay where they are until its end.
class ControlGrid {
public:
    // Takes in the Buttons, List Boxes, Text Boxes, Tickers and Grids of the page.
    void fill(const Page &p);

    // Calls found(index) once for every control that intersects the rectangle.
    template <class Found> void eachUnder(const Rect &r, Found found) const
    {
        const Span span = spanOf(r);
        for (int row = span.top; row <= span.bottom; ++row)
            for (int column = span.left; column <= span.right; ++column)
                for (const Control &c : cells[cellIndex(column, row)])
                    if (isFirstShared(c, span, column, row) && intersects(c.rect, r))
                        found(c.index);
    }

private:
    static constexpr int side = 16; // cells per row and column

    struct Span { // cells, both ends included
        int left = 0, top = 0, right = 0, bottom = 0;
    };
    struct Control {
        Rect rect;
        Span span;
        std::int16_t index = noObject;
    };

    static std::size_t cellIndex(int column, int row) { return static_cast<std::size_t>(row * side + column); }
    // A control stands in every cell that it touches; only the first one shared with the rectangle counts.
    static bool isFirstShared(const Control &c, const Span &span, int column, int row)
    {
        return column == std::max(c.span.left, span.left) && row == std::max(c.span.top, span.top);
    }
    Span spanOf(const Rect &r) const;

    int cellWidth = 1, cellHeight = 1; // pixels
    std::array<std::vector<Control>, side * side> cells;
};

} // namespace corvanta
