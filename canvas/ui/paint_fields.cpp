#include "canvas/ui/paint_edges.h"
#include "canvas/ui/paint_kinds.h"
#include "platform/qt/colours.h"

#include <QPainter>
#include <QString>

#include <algorithm>

namespace corvanta {

namespace {

constexpr int textMargin = 2, arrowWidth = 17; // pixels

QRect paintField(QPainter &painter, const QRect &rect, std::int32_t backColour)
{
    const QRect inner = paintSunkenEdge(painter, rect);
    painter.fillRect(inner, toQColor(backColour));
    return inner;
}

// A line of text, vertically in the middle of what a field shows.
void paintLine(QPainter &painter, const QRect &inner, const QString &text, std::int16_t alignment)
{
    painter.setClipRect(inner, Qt::IntersectClip);
    painter.drawText(inner.adjusted(textMargin, 0, -textMargin, 0),
                     alignmentFlag(alignment) | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

void paintArrowButton(QPainter &painter, const QRect &r)
{
    const QColor face(0xC0, 0xC0, 0xC0);
    const EdgeColours colours = edgeColours(face);
    painter.fillRect(r, face);
    paintBevel(painter, paintFrame(painter, r, colours.shadow), 1, colours);
    const int x = r.left() + r.width() / 2, y = r.top() + r.height() / 2 - 1;
    for (int row = 0; row < 4; ++row)
        painter.fillRect(x - 3 + row, y + row, 7 - 2 * row, 1, Qt::black);
}

} // namespace

void paintLabel(QPainter &painter, const Element &label, std::int16_t alignment, const QRect &rect)
{
    if (label.BackStyle != 0)
        painter.fillRect(rect, toQColor(label.BackColor));
    const bool bordered = label.BorderStyle == 1;
    const QRect inner = bordered ? paintFrame(painter, rect, Qt::black).adjusted(textMargin, 0, -textMargin, 0) : rect;
    setTextStyle(painter, label.font);
    painter.setClipRect(inner, Qt::IntersectClip);
    painter.drawText(inner, alignmentFlag(alignment) | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic,
                     shownText(label.Caption));
}

void paintListBox(QPainter &painter, const Element &list, const std::vector<ListBoxEntry> &entries,
                  std::int16_t alignment, const QRect &rect)
{
    const QRect inner = paintField(painter, rect, list.BackColor);
    setTextStyle(painter, list.font);
    const int lineHeight = painter.fontMetrics().height() + 1;
    QRect line(inner.left(), inner.top(), inner.width(), lineHeight);
    painter.setClipRect(inner, Qt::IntersectClip);
    for (const ListBoxEntry &entry : entries) {
        if (line.top() > inner.bottom())
            break;
        painter.drawText(line.adjusted(textMargin, 0, -textMargin, 0),
                         alignmentFlag(alignment) | Qt::AlignVCenter | Qt::TextSingleLine, shownText(entry.text));
        line.translate(0, lineHeight);
    }
}

void paintTextField(QPainter &painter, const Element &field, const ObjectRecord &record, const QString &text,
                    const QRect &rect)
{
    const QRect inner = paintField(painter, rect, field.BackColor);
    setTextStyle(painter, field.font);
    if (!record.has(multiFlag))
        return paintLine(painter, inner, text, record.alignment);
    painter.setClipRect(inner, Qt::IntersectClip);
    painter.drawText(inner.adjusted(textMargin, 1, -textMargin, 0),
                     alignmentFlag(record.alignment) | Qt::AlignTop | Qt::TextWordWrap, text);
}

void paintComboBox(QPainter &painter, const Element &field, const ObjectRecord &record, const QString &text,
                   const QRect &rect)
{
    QRect inner = paintField(painter, rect, field.BackColor);
    const int width = std::min(arrowWidth, inner.width() / 2);
    paintArrowButton(painter, QRect(inner.right() - width + 1, inner.top(), width, inner.height()));
    inner.setWidth(inner.width() - width);
    setTextStyle(painter, field.font);
    paintLine(painter, inner, text, record.alignment);
}

} // namespace corvanta
