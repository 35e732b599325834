#include "canvas/ui/paint_edges.h"
#include "canvas/ui/paint_kinds.h"
#include "platform/qt/colours.h"
#include "platform/qt/qt_pictures.h"

#include <QPainter>
#include <QString>

#include <algorithm>

namespace corvanta {

namespace {

constexpr int widestBevel = 10, gap = 4, margin = 2; // pixels
constexpr int captionFlags = Qt::TextWordWrap | Qt::TextShowMnemonic;

// The outline without its corner pixels, which makes the corners look round.
QRect paintOutline(QPainter &painter, const QRect &r, const QColor &colour)
{
    if (r.width() < 3 || r.height() < 3)
        return r;
    painter.fillRect(r.left() + 1, r.top(), r.width() - 2, 1, colour);
    painter.fillRect(r.left() + 1, r.bottom(), r.width() - 2, 1, colour);
    painter.fillRect(r.left(), r.top() + 1, 1, r.height() - 2, colour);
    painter.fillRect(r.right(), r.top() + 1, 1, r.height() - 2, colour);
    return r.adjusted(1, 1, -1, -1);
}

void paintCaption(QPainter &painter, const QRect &inner, const QString &caption, int horizontal)
{
    const int vertical = Qt::AlignVCenter;
    painter.drawText(inner, horizontal | vertical | captionFlags, caption);
}

// Where something of a width begins.
int startOf(const QRect &inner, int width, int horizontal)
{
    const int left = inner.width() - width;
    return inner.left() + (horizontal == Qt::AlignLeft ? 0 : horizontal == Qt::AlignRight ? left : left / 2);
}

// Picture and caption as one block, placed by the alignment: the picture on top where the height allows it, else at the
// left.
void paintPictureAndCaption(QPainter &painter, const QRect &inner, const QImage &image, const QString &caption,
                            int horizontal)
{
    const QRect text = painter.boundingRect(inner, Qt::AlignCenter | captionFlags, caption);
    const bool above = image.height() + gap + text.height() <= inner.height();
    const int blockWidth = above ? image.width() : std::min(inner.width(), image.width() + gap + text.width());
    const int blockHeight = above ? image.height() + gap + text.height() : image.height();
    const QPoint corner(startOf(inner, blockWidth, horizontal), inner.top() + (inner.height() - blockHeight) / 2);
    painter.drawImage(corner, image);
    if (above)
        paintCaption(painter, QRect(inner.left(), corner.y() + image.height() + gap, inner.width(), text.height()),
                     caption, horizontal);
    else
        paintCaption(painter, inner.adjusted(corner.x() - inner.left() + image.width() + gap, 0, 0, 0), caption,
                     Qt::AlignLeft);
}

} // namespace

void paintButton(QPainter &painter, const Element &button, std::int16_t alignment, const QRect &rect)
{
    const QColor face = toQColor(button.BackColor);
    const EdgeColours colours = edgeColours(face);
    const QRect body = paintOutline(painter, rect, colours.outline);
    painter.fillRect(body, face);
    const QRect inner = paintBevel(painter, body, std::clamp<int>(button.BevelWidth, 0, widestBevel), colours);
    painter.setClipRect(inner, Qt::IntersectClip);
    setTextStyle(painter, button.font);
    const QString caption = shownText(button.Caption);
    const int horizontal = alignmentFlag(alignment);
    const QRect content = inner.adjusted(margin, 0, -margin, 0);
    const QImage *image = imageOf(button.picture);
    if (image && caption.isEmpty())
        painter.drawImage(inner.topLeft() +
                              QPoint((inner.width() - image->width()) / 2, (inner.height() - image->height()) / 2),
                          *image);
    else if (image)
        paintPictureAndCaption(painter, content, *image, caption, horizontal);
    else
        paintCaption(painter, content, caption, horizontal);
}

} // namespace corvanta
