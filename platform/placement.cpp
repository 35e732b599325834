#include "platform/placement.h"

#include <algorithm>

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

} // namespace corvanta
