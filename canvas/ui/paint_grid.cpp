#include "canvas/ui/paint_edges.h"
#include "canvas/ui/paint_kinds.h"
#include "document/tablist.h"
#include "platform/qt/colours.h"

#include <QPainter>
#include <QString>

#include <algorithm>

namespace corvanta {

namespace {

constexpr int twipsPerPixel = 15, cellMargin = 3, narrowestColumn = 4; // twips; pixels
const QColor headerFace(0xC0, 0xC0, 0xC0), gridLine(0xC0, 0xC0, 0xC0);

void paintHeaderCell(QPainter &painter, const QRect &cell, const QString &text)
{
    painter.fillRect(cell, headerFace);
    const QRect inner = paintBevel(painter, cell, 1, edgeColours(headerFace));
    painter.drawText(inner.adjusted(cellMargin, 0, -cellMargin, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

// Empty rows down to the grid's lower edge.
void paintRows(QPainter &painter, const QRect &area, int left, int right, int rowHeight)
{
    for (int y = area.top() + rowHeight - 1; y <= area.bottom(); y += rowHeight)
        painter.fillRect(left, y, right - left, 1, gridLine);
}

} // namespace

void paintGrid(QPainter &painter, const Element &grid, const std::vector<GridColumn> &columns, const QRect &rect)
{
    const QRect inner = paintSunkenEdge(painter, rect);
    painter.fillRect(inner, toQColor(grid.BackColor));
    painter.setClipRect(inner, Qt::IntersectClip);
    setTextStyle(painter, grid.font);
    const int rowHeight = painter.fontMetrics().height() + 5;
    const QRect rows = inner.adjusted(0, rowHeight, 0, 0);
    int left = inner.left();
    for (std::size_t i = 0; i + 1 < columns.size() && left <= inner.right(); ++i) {
        const int width = std::max(narrowestColumn, columns[i].width / twipsPerPixel);
        paintHeaderCell(painter, QRect(left, inner.top(), width, rowHeight),
                        shownText(fieldAt(columns[i].descriptor, 0)));
        painter.fillRect(left + width - 1, rows.top(), 1, rows.height(), gridLine);
        left += width;
    }
    if (left == inner.left()) { // a grid without columns shows the place of one
        paintHeaderCell(painter, QRect(inner.left(), inner.top(), inner.width(), rowHeight), {});
        left = inner.right() + 1;
    }
    paintRows(painter, rows, inner.left(), left, rowHeight);
}

} // namespace corvanta
