#pragma once

#include "canvas/ui/paint.h"

#include <QFont>

class QString;

// The pictures of the single kinds, which paintObject chooses from.
namespace corvanta {

QFont fontOf(const FontBlock &font);
// Text with a font's colour.
void setTextStyle(QPainter &painter, const FontBlock &font);
// Bytes of the code page with plain line ends and tabs as blanks.
QString shownText(const std::string &bytes);
// Qt's horizontal flag of an object's alignment.
int alignmentFlag(std::int16_t alignment);

void paintButton(QPainter &painter, const Element &button, std::int16_t alignment, const QRect &rect);
void paintLabel(QPainter &painter, const Element &label, std::int16_t alignment, const QRect &rect);
void paintListBox(QPainter &painter, const Element &list, const std::vector<ListBoxEntry> &entries,
                  std::int16_t alignment, const QRect &rect);
void paintTextField(QPainter &painter, const Element &field, const ObjectRecord &record, const QString &text,
                    const QRect &rect);
void paintComboBox(QPainter &painter, const Element &field, const ObjectRecord &record, const QString &text,
                   const QRect &rect);
void paintGrid(QPainter &painter, const Element &grid, const std::vector<GridColumn> &columns, const QRect &rect);
void paintTicker(QPainter &painter, const Element &ticker, int textOffset, const QRect &rect);
void paintAnimation(QPainter &painter, const Page &p, std::int16_t element, const LiveState &live, const QRect &rect);
void paintHotSpot(QPainter &painter, const ObjectRecord &record, const QRect &rect);
// The ground of a picture that is not there, or not yet.
void paintMissingPicture(QPainter &painter, const QRect &rect);
void paintImage(QPainter &painter, const PicturePtr &picture, const QRect &rect);
void paintImageDb(QPainter &painter, const QRect &rect);

} // namespace corvanta
