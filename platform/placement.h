#pragma once

#include <optional>

namespace corvanta {

// A rectangle on the screen, in twips or pixels from the screen's top left corner.
struct Area {
    double left = 0, top = 0, width = 0, height = 0;

    bool operator==(const Area &) const = default;
};

// The dialog's area centred over its owner, or over the screen (an area at 0, 0) without one. It is cut to the
// screen's size, and kept on the screen where it fits.
Area centredArea(const Area &dialog, const Area &screen, const std::optional<Area> &owner);

// The larger part of a screen above or below a window, as wide as the screen.
Area roomBeside(const Area &window, const Area &screen);

// The area moved the shortest way to where it covers nothing of another one; where the screen has no room for that, it
// stays.
Area movedOff(const Area &area, const Area &other, const Area &screen);

} // namespace corvanta
