#include "canvas/ui/page_area.h"

#include "canvas/ui/paint.h"
#include "document/media.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>

namespace corvanta {

PageArea::PageArea(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("page"));
    setAccessibleName(QStringLiteral("Page"));
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
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const ObjectRecord &o = p.objects[static_cast<std::size_t>(i)];
        const auto kind = kindOf(o.kind);
        const QRect place(o.pleft, o.ptop, o.pwidth, o.pheight);
        if (!kind || !kindRow(*kind).drawnOnPage || !place.intersects(event->rect()))
            continue;
        if (*kind == Kind::Image)
            imagePicture(p, i);
        paintObject(painter, p, i, place);
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
