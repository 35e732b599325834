#include "canvas/free_place.h"

#include <algorithm>
#include <optional>

namespace corvanta {

namespace {

constexpr int margin = 10, gap = 6; // pixels, to the page's edge and between objects
constexpr int much = 4;             // the part of the page that something in the background covers at least

std::vector<Rect> obstacles(const Page &p)
{
    std::vector<Rect> found;
    const long area = static_cast<long>(p.bkgwd) * p.bkght;
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const Rect r = rectOf(p.objects[static_cast<std::size_t>(i)]);
        if (static_cast<long>(r.width) * r.height < area / much)
            found.push_back(r);
    }
    return found;
}

// The first free place under a point, or in columns to the right of it, which begin at the top of the page.
std::optional<Point> freeFrom(const std::vector<Rect> &taken, Size pageSize, Size wanted, Point from)
{
    Rect r{from.x, from.y, wanted.width, wanted.height};
    while (r.right() <= pageSize.width) {
        int next = pageSize.width; // where something in this column ends
        while (r.bottom() <= pageSize.height) {
            int below = r.top;
            for (const Rect &t : taken)
                if (intersects(t, r)) {
                    below = std::max(below, t.bottom() + gap);
                    next = std::min(next, t.right() + gap);
                }
            if (below == r.top)
                return Point{r.left, r.top};
            r.top = below;
        }
        r.left = next > r.left ? next : pageSize.width;
        r.top = margin;
    }
    return std::nullopt;
}

} // namespace

Point freePlace(const Page &p, std::int16_t current, Size wanted)
{
    const std::vector<Rect> taken = obstacles(p);
    const Size pageSize = sizeOf(p);
    Point from{margin, margin};
    if (hasObject(p, current)) {
        const Rect r = rectOf(p.objects[static_cast<std::size_t>(current)]);
        from = {r.left, r.bottom() + gap};
    }
    if (const auto place = freeFrom(taken, pageSize, wanted, from))
        return *place;
    return freeFrom(taken, pageSize, wanted, {margin, margin}).value_or(from);
}

LabelledRows labelledRows(const std::vector<Size> &labels, Size field, Size pageSize)
{
    Size label;
    for (const Size &size : labels)
        label = {std::max(label.width, size.width), std::max(label.height, size.height)};
    const int height = std::max(label.height, field.height), pitch = height + gap;
    const int width = label.width + gap + field.width, count = static_cast<int>(labels.size());
    const int rows = std::clamp((pageSize.height + gap) / pitch, 1, std::max(1, count));
    LabelledRows placed;
    for (int i = 0; i < count; ++i) {
        const int x = i / rows * (width + 2 * gap), y = i % rows * pitch;
        placed.rows.push_back({{x, y + (height - label.height) / 2, label.width, label.height},
                               {x + label.width + gap, y + (height - field.height) / 2, field.width, field.height}});
        placed.whole = {x + width, std::max(placed.whole.height, y + height)};
    }
    return placed;
}

} // namespace corvanta
