#include "canvas/ui/paint_edges.h"
#include "canvas/ui/paint_kinds.h"
#include "platform/qt/colours.h"
#include "platform/qt/qt_pictures.h"

#include <QFontMetrics>
#include <QPainter>
#include <QString>

#include <algorithm>

namespace corvanta {

namespace {

// A strip of film with the number of frames, for an animation whose picture is not there.
void paintFilm(QPainter &painter, const QRect &rect, std::size_t frames)
{
    const QColor film(0x30, 0x30, 0x38), hole(0xE8, 0xE8, 0xE8);
    painter.fillRect(rect, film);
    const int hollow = std::clamp(rect.height() / 10, 2, 6), step = 2 * hollow + 1;
    for (int x = rect.left() + hollow / 2 + 1; x + hollow <= rect.right() + 1; x += step)
        for (const int y : {rect.top() + 2, rect.bottom() - 1 - hollow})
            painter.fillRect(x, y, hollow, hollow, hole);
    const QRect window = rect.adjusted(2, hollow + 4, -2, -hollow - 4);
    if (window.height() < 8)
        return;
    painter.fillRect(window, QColor(0xF4, 0xF4, 0xF4));
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(std::clamp(window.height() - 4, 7, 18));
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(film);
    painter.drawText(window, Qt::AlignCenter, QString::number(frames));
}

} // namespace

void paintTicker(QPainter &painter, const Element &ticker, int textOffset, const QRect &rect)
{
    painter.fillRect(rect, toQColor(ticker.BackColor));
    const QRect inner = ticker.BorderStyle == 1 ? paintFrame(painter, rect, Qt::black) : rect;
    painter.setClipRect(inner, Qt::IntersectClip);
    setTextStyle(painter, ticker.font);
    const QString text = shownText(ticker.Caption);
    const int width = painter.fontMetrics().horizontalAdvance(text);
    painter.drawText(QRect(inner.left() + textOffset, inner.top(), width, inner.height()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, text);
}

int tickerTextWidth(const Element &ticker)
{
    return QFontMetrics(fontOf(ticker.font)).horizontalAdvance(shownText(ticker.Caption));
}

int tickerInnerWidth(const Element &ticker) { return ticker.width - (ticker.BorderStyle == 1 ? 2 : 0); }

const Frame *shownFrame(const Page &p, std::int16_t element, const LiveState &live)
{
    const std::vector<int> frames = frameNumbers(p, element);
    const int number = live.frame > 0 ? live.frame : frames.empty() ? 0 : frames.front();
    const bool known = number > 0 && static_cast<std::size_t>(number) < p.frames.size();
    return known ? &p.frames[static_cast<std::size_t>(number)] : nullptr;
}

void paintAnimation(QPainter &painter, const Page &p, std::int16_t element, const LiveState &live, const QRect &rect)
{
    const Frame *frame = shownFrame(p, element, live);
    const PicturePtr picture = frame ? frame->picture : nullptr;
    const QSize size = picture ? QSize(picture->width, picture->height).boundedTo(rect.size()) : QSize();
    const QRect part(QPoint(), size);
    if (drawPicture(painter, QRect(rect.topLeft(), size), picture, part) != Drawn::Whole && live.bordered)
        paintFilm(painter, rect, frameNumbers(p, element).size());
    if (live.bordered && p.ani[static_cast<std::size_t>(element)].BorderStyle == 1)
        paintFrame(painter, rect, QColor(0x40, 0x40, 0x40));
}

} // namespace corvanta
