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

// As much of a picture as its button shows; while it is being decoded, the ground that it will cover. False when there
// will be no picture.
bool paintPicture(QPainter &painter, const QRect &inner, QPoint corner, const PicturePtr &picture)
{
    const QRect seen = QRect(corner, QSize(picture->width, picture->height)) & inner;
    if (seen.isEmpty())
        return true;
    const Drawn drawn = drawPicture(painter, seen, picture, seen.translated(-corner));
    if (drawn == Drawn::Later)
        paintMissingPicture(painter, seen);
    return drawn != Drawn::Never;
}

// Picture and caption as one block, placed by the alignment: the picture on top where the height allows it, else at the
// left.
bool paintPictureAndCaption(QPainter &painter, const QRect &inner, const QRect &content, const PicturePtr &picture,
                            const QString &caption, int horizontal)
{
    const QRect text = painter.boundingRect(content, Qt::AlignCenter | captionFlags, caption);
    const int width = picture->width, height = picture->height;
    const bool above = height + gap + text.height() <= content.height();
    const int blockWidth = above ? width : std::min(content.width(), width + gap + text.width());
    const int blockHeight = above ? height + gap + text.height() : height;
    const QPoint corner(startOf(content, blockWidth, horizontal), content.top() + (content.height() - blockHeight) / 2);
    if (!paintPicture(painter, inner, corner, picture))
        return false;
    if (above)
        paintCaption(painter, QRect(content.left(), corner.y() + height + gap, content.width(), text.height()), caption,
                     horizontal);
    else
        paintCaption(painter, content.adjusted(corner.x() - content.left() + width + gap, 0, 0, 0), caption,
                     Qt::AlignLeft);
    return true;
}

bool paintAlone(QPainter &painter, const QRect &inner, const PicturePtr &picture)
{
    const QPoint middle((inner.width() - picture->width) / 2, (inner.height() - picture->height) / 2);
    return paintPicture(painter, inner, inner.topLeft() + middle, picture);
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
    const PicturePtr &picture = button.picture;
    const bool pictured =
        picture && (caption.isEmpty() ? paintAlone(painter, inner, picture)
                                      : paintPictureAndCaption(painter, inner, content, picture, caption, horizontal));
    if (!pictured)
        paintCaption(painter, content, caption, horizontal);
}

} // namespace corvanta
