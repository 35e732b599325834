#include "shell/ui/object_tool.h"

#include "platform/qt/drag.h"
#include "platform/qt/text.h"
#include "shell/commands.h"
#include "shell/ui/icons.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>

namespace corvanta {

ObjectTool::ObjectTool(const RegisteredKind &offered, QWidget *parent) : QToolButton(parent), kindCode(offered.code)
{
    const QString name = toQString(offered.displayName);
    setObjectName(QStringLiteral("tool%1").arg(offered.code));
    setIcon(kindIcon(static_cast<Kind>(offered.code)));
    setToolTip(name);
    setAccessibleName(name);
    setAutoRaise(true);
    connect(this, &QToolButton::clicked, this, [index = offered.menuIndex] { addFromMenu(index); });
}

void ObjectTool::mousePressEvent(QMouseEvent *event)
{
    pressed = event->position().toPoint();
    QToolButton::mousePressEvent(event);
}

void ObjectTool::mouseMoveEvent(QMouseEvent *event)
{
    const int distance = (event->position().toPoint() - pressed).manhattanLength();
    if (isDown() && event->buttons().testFlag(Qt::LeftButton) && distance >= QApplication::startDragDistance())
        drag();
    else
        QToolButton::mouseMoveEvent(event);
}

void ObjectTool::drag()
{
    setDown(false);
    auto *drag = new QDrag(this);
    drag->setMimeData(dragData("obj", QByteArray::number(kindCode)));
    drag->setPixmap(icon().pixmap(iconSize(), devicePixelRatioF()));
    drag->exec(Qt::CopyAction);
}

} // namespace corvanta
