#include "canvas/ui/paint_edges.h"
#include "canvas/ui/paint_kinds.h"
#include "platform/qt/qt_pictures.h"
#include "platform/qt/text.h"

#include <QPainter>
#include <QPolygon>
#include <QString>

#include <algorithm>

namespace corvanta {

namespace {

// As large as the area's height allows.
QFont areaFont(const QRect &area)
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(std::clamp(area.height() - 4, 6, 11));
    return font;
}

// A dark dashed line on a light one, which shows on every background.
void paintDashes(QPainter &painter, const QRect &rect, const QColor &colour)
{
    paintFrame(painter, rect, QColor(255, 255, 255, 200));
    QPen pen(colour, 1, Qt::CustomDashLine);
    pen.setDashPattern({4, 3});
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

// Mountains and a sun: where a picture will be.
void paintPictureSign(QPainter &painter, const QRect &rect)
{
    if (rect.width() < 40 || rect.height() < 34)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x78, 0x80, 0x90));
    const QPoint c = rect.center();
    painter.drawPolygon(
        QPolygon({c + QPoint(-16, 10), c + QPoint(-5, -6), c + QPoint(1, 3), c + QPoint(6, -2), c + QPoint(16, 10)}));
    painter.drawEllipse(c + QPoint(8, -8), 3, 3);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

void paintMissingPicture(QPainter &painter, const QRect &rect)
{
    painter.save();
    painter.fillRect(rect, QColor(0xE4, 0xE7, 0xEC));
    paintPictureSign(painter, rect);
    painter.restore();
}

void paintHotSpot(QPainter &painter, const ObjectRecord &record, const QRect &rect)
{
    const QColor blue(0x20, 0x50, 0xB0);
    painter.fillRect(rect, QColor(0x40, 0x80, 0xFF, 40));
    paintDashes(painter, rect, blue);
    painter.setFont(areaFont(rect));
    const QString text = toQString(record.sptext);
    const QRect inner = rect.adjusted(3, 1, -3, -1);
    if (painter.fontMetrics().horizontalAdvance(text) > inner.width())
        return;
    painter.setPen(blue);
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, text);
}

void paintImage(QPainter &painter, const PicturePtr &picture, const QRect &rect)
{
    const QSize size = picture ? QSize(picture->width, picture->height) : QSize();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, size != rect.size());
    if (drawPicture(painter, rect, picture, QRect(QPoint(), size)) == Drawn::Whole)
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    paintMissingPicture(painter, rect);
    paintFrame(painter, rect, Qt::black);
}

void paintImageDb(QPainter &painter, const QRect &rect)
{
    painter.fillRect(rect, QColor(0xE4, 0xE7, 0xEC));
    paintFrame(painter, rect, Qt::black);
    painter.setFont(areaFont(rect));
    painter.setPen(Qt::black);
    painter.drawText(rect, Qt::AlignCenter | Qt::TextSingleLine, QStringLiteral("Imagedb"));
}

} // namespace corvanta
