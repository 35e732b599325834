#pragma once

#include "document/page.h"

#include <array>

// Rectangles of the page in pixels, and where the tracker handles stand round them.
namespace corvanta {

struct Point {
    int x = 0, y = 0;
    bool operator==(const Point &) const = default;
};

struct Size {
    int width = 0, height = 0;
    bool operator==(const Size &) const = default;
};

struct Rect {
    int left = 0, top = 0, width = 0, height = 0;
    bool operator==(const Rect &) const = default;

    int right() const { return left + width; }  // first column beyond the rectangle
    int bottom() const { return top + height; } // first row beyond the rectangle
};

bool intersects(const Rect &a, const Rect &b);
Rect united(const Rect &a, const Rect &b);
Rect spanned(Point a, Point b); // with the points as corners
Rect movedBy(const Rect &r, int dx, int dy);

Rect rectOf(const ObjectRecord &object);
Size sizeOf(const Page &p);

// A pixel value as the 16 bits of a record; values beyond them become the nearest one.
std::int16_t toPixels(int value);

inline constexpr int handleCount = 8;
inline constexpr int handleSize = 5;   // pixels, of tracker handles and frame markers
inline constexpr int smallestSide = 4; // pixels, that resizing leaves

// Handles count clockwise from the top-left corner.
enum class Handle { TopLeft, Top, TopRight, Right, BottomRight, Bottom, BottomLeft, Left };
enum class PointerShape { SizeNwSe, SizeVertical, SizeNeSw, SizeHorizontal };

PointerShape pointerShape(Handle handle);

// The top-left corners of the handles round an object, in the order of Handle.
std::array<Point, handleCount> trackerPositions(const Rect &object, int size = handleSize);

// The rectangle pushed back inside the page. What is larger than the page ends at its right or bottom edge.
Rect pushedInside(Rect r, Size pageSize);

// The point brought back onto the page.
Point clampedPoint(Point p, Size pageSize);

// The object with the handle's edges at the point, never below smallestSide; the opposite edges stay.
Rect resized(const Rect &object, Handle handle, Point p);

} // namespace corvanta
