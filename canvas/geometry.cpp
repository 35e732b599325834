#include "canvas/geometry.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace corvanta {

namespace {

int floorHalf(int n) { return n >> 1; }

// Twice the anchor coordinate of a handle along one axis: one pixel inside the near edge, at the middle, or on
// the far edge.
enum class Place { Near, Middle, Far };

int doubledAnchor(Place place, int start, int extent)
{
    switch (place) {
    case Place::Near: return 2 * (start + 1);
    case Place::Middle: return 2 * start + extent;
    case Place::Far: return 2 * (start + extent);
    }
    return 0;
}

struct Anchor {
    Place across, down;
};

constexpr std::array<Anchor, handleCount> anchors{{{Place::Near, Place::Near},
                                                   {Place::Middle, Place::Near},
                                                   {Place::Far, Place::Near},
                                                   {Place::Far, Place::Middle},
                                                   {Place::Far, Place::Far},
                                                   {Place::Middle, Place::Far},
                                                   {Place::Near, Place::Far},
                                                   {Place::Near, Place::Middle}}};

// One axis of a resize: the edge at the place goes to the coordinate.
void resizeAxis(Place place, int coordinate, int &start, int &extent)
{
    const int end = start + extent;
    switch (place) {
    case Place::Near:
        start = std::min(coordinate, end - smallestSide);
        extent = end - start;
        return;
    case Place::Middle: return;
    case Place::Far: extent = std::max(coordinate, start + smallestSide) - start; return;
    }
}

} // namespace

bool intersects(const Rect &a, const Rect &b)
{
    return a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom();
}

Rect united(const Rect &a, const Rect &b)
{
    const int left = std::min(a.left, b.left), top = std::min(a.top, b.top);
    return {left, top, std::max(a.right(), b.right()) - left, std::max(a.bottom(), b.bottom()) - top};
}

Rect spanned(Point a, Point b)
{
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::abs(a.x - b.x), std::abs(a.y - b.y)};
}

Rect movedBy(const Rect &r, int dx, int dy) { return {r.left + dx, r.top + dy, r.width, r.height}; }

Rect rectOf(const ObjectRecord &object) { return {object.pleft, object.ptop, object.pwidth, object.pheight}; }

Size sizeOf(const Page &p) { return {p.bkgwd, p.bkght}; }

std::int16_t toPixels(int value)
{
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(value, Limits::min(), Limits::max()));
}

PointerShape pointerShape(Handle handle)
{
    switch (handle) {
    case Handle::TopLeft:
    case Handle::BottomRight: return PointerShape::SizeNwSe;
    case Handle::Top:
    case Handle::Bottom: return PointerShape::SizeVertical;
    case Handle::TopRight:
    case Handle::BottomLeft: return PointerShape::SizeNeSw;
    case Handle::Right:
    case Handle::Left: return PointerShape::SizeHorizontal;
    }
    return PointerShape::SizeNwSe;
}

std::array<Point, handleCount> trackerPositions(const Rect &object, int size)
{
    std::array<Point, handleCount> corners;
    std::transform(anchors.begin(), anchors.end(), corners.begin(), [&](Anchor anchor) {
        return Point{floorHalf(doubledAnchor(anchor.across, object.left, object.width) - size),
                     floorHalf(doubledAnchor(anchor.down, object.top, object.height) - size)};
    });
    return corners;
}

Rect pushedInside(Rect r, Size pageSize)
{
    r.left = std::min(std::max(r.left, 0), pageSize.width - r.width);
    r.top = std::min(std::max(r.top, 0), pageSize.height - r.height);
    return r;
}

Point clampedPoint(Point p, Size pageSize)
{
    return {std::min(std::max(p.x, 0), pageSize.width), std::min(std::max(p.y, 0), pageSize.height)};
}

Rect resized(const Rect &object, Handle handle, Point p)
{
    const Anchor anchor = anchors[static_cast<std::size_t>(handle)];
    Rect r = object;
    resizeAxis(anchor.across, p.x, r.left, r.width);
    resizeAxis(anchor.down, p.y, r.top, r.height);
    return r;
}

} // namespace corvanta
