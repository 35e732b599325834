#include "platform/placement.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace corvanta {

namespace {

// One axis: where something of a length begins when it is centred over a reference, on a screen.
double centredStart(double length, double screenLength, double referenceStart, double referenceLength)
{
    double start = std::max(0.0, referenceStart + (referenceLength - length) / 2);
    if (start + length > screenLength && screenLength - length >= 0)
        start = screenLength - length;
    return start;
}

double rightOf(const Area &a) { return a.left + a.width; }
double bottomOf(const Area &a) { return a.top + a.height; }

bool overlap(const Area &a, const Area &b)
{
    return a.left < rightOf(b) && b.left < rightOf(a) && a.top < bottomOf(b) && b.top < bottomOf(a);
}

bool inside(const Area &a, const Area &b)
{
    return a.left >= b.left && a.top >= b.top && rightOf(a) <= rightOf(b) && bottomOf(a) <= bottomOf(b);
}

} // namespace

Area centredArea(const Area &dialog, const Area &screen, const std::optional<Area> &owner)
{
    const Area reference = owner.value_or(Area{0, 0, screen.width, screen.height});
    Area result;
    result.width = std::min(dialog.width, screen.width);
    result.height = std::min(dialog.height, screen.height);
    result.left = centredStart(result.width, screen.width, reference.left, reference.width);
    result.top = centredStart(result.height, screen.height, reference.top, reference.height);
    return result;
}

Area roomBeside(const Area &window, const Area &screen)
{
    const double above = window.top - screen.top, below = bottomOf(screen) - bottomOf(window);
    if (below >= above)
        return {screen.left, bottomOf(window), screen.width, below};
    return {screen.left, screen.top, screen.width, above};
}

Area movedOff(const Area &area, const Area &other, const Area &screen)
{
    if (!overlap(area, other))
        return area;
    std::array<Area, 4> sides{area, area, area, area};
    sides[0].top = other.top - area.height;
    sides[1].left = rightOf(other);
    sides[2].top = bottomOf(other);
    sides[3].left = other.left - area.width;
    const auto way = [&](const Area &a) { return std::abs(a.left - area.left) + std::abs(a.top - area.top); };
    std::ranges::stable_sort(sides, {}, way);
    const auto found = std::ranges::find_if(sides, [&](const Area &a) { return inside(a, screen); });
    return found == sides.end() ? area : *found;
}

} // namespace corvanta
