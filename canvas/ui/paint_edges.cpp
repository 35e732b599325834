#include "canvas/ui/paint_edges.h"

#include <QPainter>

#include <algorithm>

namespace corvanta {

namespace {

void paintCorner(QPainter &painter, const QRect &r, const QColor &topLeft, const QColor &bottomRight)
{
    painter.fillRect(r.left(), r.top(), r.width() - 1, 1, topLeft);
    painter.fillRect(r.left(), r.top(), 1, r.height() - 1, topLeft);
    painter.fillRect(r.left(), r.bottom(), r.width(), 1, bottomRight);
    painter.fillRect(r.right(), r.top(), 1, r.height(), bottomRight);
}

QColor mixed(const QColor &a, const QColor &b, int percent)
{
    const auto part = [percent](int x, int y) { return (x * (100 - percent) + y * percent) / 100; };
    return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

} // namespace

EdgeColours edgeColours(const QColor &face)
{
    return {mixed(face, Qt::white, 85), mixed(face, Qt::black, 38), mixed(face, Qt::black, 75)};
}

QRect paintFrame(QPainter &painter, const QRect &rect, const QColor &colour)
{
    paintCorner(painter, rect, colour, colour);
    return rect.adjusted(1, 1, -1, -1);
}

QRect paintBevel(QPainter &painter, const QRect &rect, int width, const EdgeColours &colours)
{
    const int most = std::max(0, std::min(rect.width(), rect.height()) / 2);
    QRect r = rect;
    for (int i = std::min(width, most); i > 0; --i) {
        paintCorner(painter, r, colours.light, colours.shadow);
        r.adjust(1, 1, -1, -1);
    }
    return r;
}

QRect paintSunkenEdge(QPainter &painter, const QRect &rect)
{
    paintCorner(painter, rect, QColor(0x80, 0x80, 0x80), QColor(0xFF, 0xFF, 0xFF));
    const QRect inner = rect.adjusted(1, 1, -1, -1);
    if (!inner.isValid())
        return inner;
    paintCorner(painter, inner, QColor(0x40, 0x40, 0x40), QColor(0xDF, 0xDF, 0xDF));
    return inner.adjusted(1, 1, -1, -1);
}

} // namespace corvanta
