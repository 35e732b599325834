#pragma once

#include "platform/qt/drag.h"

#include <QWidget>

#include <functional>

namespace corvanta {

// The page picture "page": background, the objects that are drawn on it, and the ground for the visuals of
// all others. One of its pixels is one pixel of the page.
class PageArea : public QWidget {
public:
    explicit PageArea(QWidget *parent);

    // Something of this program was dropped at a point of the page.
    std::function<void(QPoint, const DragPayload &)> dropped;

protected:
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
};

} // namespace corvanta
