#pragma once

#include "platform/qt/drag.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

#include <memory>

namespace corvanta {

// Drops tagged data on a widget as a drag from another window does; whether the widget took it.
inline bool dropOn(QWidget &target, const char *tag, const QByteArray &payload, QPoint at = {3, 3}, bool ours = true)
{
    const std::unique_ptr<QMimeData> data(dragData(tag, payload));
    if (!ours)
        data->setData(QLatin1String(processMimeType), "another editor");
    QDragEnterEvent enter(at, Qt::CopyAction, data.get(), Qt::LeftButton, {});
    QApplication::sendEvent(&target, &enter);
    QDropEvent drop(at, Qt::CopyAction, data.get(), Qt::LeftButton, {});
    drop.ignore();
    if (enter.isAccepted())
        QApplication::sendEvent(&target, &drop);
    return enter.isAccepted() && drop.isAccepted();
}

} // namespace corvanta
