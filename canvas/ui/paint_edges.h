#pragma once

#include <QColor>
#include <QRect>

class QPainter;

// Edges of the three-dimensional style, in whole pixels and without smoothing. Each function gives the
// rectangle that is left inside.
namespace corvanta {

// The colours of light, shadow and outline on a face of this colour.
struct EdgeColours {
    QColor light, shadow, outline;
};
EdgeColours edgeColours(const QColor &face);

QRect paintFrame(QPainter &painter, const QRect &rect, const QColor &colour);
// A raised edge of a width in pixels, mitred at its corners.
QRect paintBevel(QPainter &painter, const QRect &rect, int width, const EdgeColours &colours);
// The two-pixel edge of a field that lies lower than the page.
QRect paintSunkenEdge(QPainter &painter, const QRect &rect);

} // namespace corvanta
