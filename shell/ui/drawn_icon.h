#pragma once

#include <QColor>
#include <QIcon>

#include <functional>

class QPainter;

namespace corvanta {

// The colours of an icon in its enabled or disabled state.
struct IconColours {
    QColor line;   // outlines and text
    QColor paper;  // inside of what is drawn
    QColor accent; // what matters
    QColor soft;   // accent, paler
};

// Draws on a grid of 24 by 24 with antialiasing; the pen draws lines in the line colour.
using IconDrawing = std::function<void(QPainter &, const IconColours &)>;

inline constexpr int iconGrid = 24;

QIcon drawnIcon(IconDrawing drawing);

} // namespace corvanta
