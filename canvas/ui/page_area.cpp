#include "canvas/ui/page_area.h"

#include "canvas/ui/page_accessible.h"
#include "canvas/ui/paint.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>

namespace corvanta {

PageArea::PageArea(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("page"));
    setAccessibleName(QStringLiteral("Page"));
    installPageAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAcceptDrops(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PageArea::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    Page &p = page();
    paintPageBackground(painter, p, event->rect());
    for (const std::int16_t index : drawnOnPage(p)) {
        const ObjectRecord &o = p.objects[static_cast<std::size_t>(index)];
        if (event->rect().intersects(QRect(o.pleft, o.ptop, o.pwidth, o.pheight)))
            paintPlaced(painter, p, index);
    }
}

void PageArea::dragEnterEvent(QDragEnterEvent *event)
{
    if (dragPayload(*event->mimeData()))
        event->acceptProposedAction();
}

void PageArea::dropEvent(QDropEvent *event)
{
    const auto payload = dragPayload(*event->mimeData());
    if (!payload || !dropped)
        return;
    event->acceptProposedAction();
    dropped(event->position().toPoint(), *payload);
}

} // namespace corvanta
