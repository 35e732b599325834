#pragma once

#include <QByteArray>
#include <QPixmap>

#include <functional>
#include <optional>

class QWidget;

namespace corvanta {

// What a drag carries, and what is shown at the pointer.
struct DragOffer {
    QByteArray payload;
    QPixmap picture;
};

// Lets the left button drag from a widget (of a list: its viewport) once the pointer has moved far enough. The drag
// carries the tag and what offer gives; without an offer the movement stays the widget's own.
void makeDragSource(QWidget &widget, const char *tag, std::function<std::optional<DragOffer>()> offer);

// A name as the picture of its drag.
QPixmap pictureOfName(const QString &name, const QWidget &source);

} // namespace corvanta
