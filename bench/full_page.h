#pragma once

#include "canvas/ui/editform.h"
#include "document/objects.h"
#include "document/page_file.h"

#include <QApplication>
#include <QMouseEvent>

// A page of many objects and a mouse, for measurements in a canvas window.
namespace corvanta {

inline constexpr int pageWidth = 700, pageHeight = 500; // pixels

// Objects in rows of 20; the dragged one crosses the top rows, which both pages have alike.
inline void fillPage(std::int64_t count)
{
    newPage();
    page().bkgwd = pageWidth;
    page().bkght = pageHeight;
    for (std::int16_t i = 0; i < count; ++i) {
        const std::int16_t index = addObject(i % 2 ? Kind::TextBox : Kind::Button);
        setObjectGeometry(index, toPixels(i / 20 * 38), toPixels(i % 20 * 35), 25, 32);
    }
}

inline void sendMouse(QWidget &widget, QEvent::Type type, QPoint at)
{
    const bool move = type == QEvent::MouseMove;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget.mapToGlobal(at), move ? Qt::NoButton : Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
    QCoreApplication::processEvents(); // paints
}

} // namespace corvanta
