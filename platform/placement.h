#pragma once

#include <optional>

namespace corvanta {

// A rectangle on the screen, in twips from the screen's top left corner.
struct Area {
    double left = 0, top = 0, width = 0, height = 0;

    bool operator==(const Area &) const = default;
};

// The dialog's area centred over its owner, or over the screen (an area at 0, 0) without one. It is cut to the
// screen's size, and kept on the screen where it fits.
Area centredArea(const Area &dialog, const Area &screen, const std::optional<Area> &owner);

} // namespace corvanta
