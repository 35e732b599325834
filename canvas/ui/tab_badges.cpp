#include "canvas/ui/tab_badges.h"

#include "canvas/tab_order.h"
#include "document/page.h"

#include <QPainter>

#include <algorithm>

namespace corvanta {

TabBadges::TabBadges(QWidget &area) : QWidget(&area)
{
    setObjectName(QStringLiteral("tabbadges"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void TabBadges::showNumbers(bool shown)
{
    resize(parentWidget()->size());
    setVisible(shown);
    raise();
    update();
}

void TabBadges::paintEvent(QPaintEvent *)
{
    const QColor face(0x20, 0x60, 0xC0);
    constexpr int padding = 5; // pixels
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    const QFontMetrics metrics = painter.fontMetrics();
    for (std::int16_t i = 0; i < objectCount(page()); ++i) {
        if (!hasTabNumber(i))
            continue;
        const ObjectRecord &o = page().objects[static_cast<std::size_t>(i)];
        const QString number = QString::number(o.tbindex);
        const int height = metrics.height() + 2;
        const QRect badge(o.pleft, o.ptop, std::max(height, metrics.horizontalAdvance(number) + 2 * padding), height);
        painter.setPen(Qt::white);
        painter.setBrush(face);
        painter.drawRoundedRect(badge, 4, 4);
        painter.drawText(badge, Qt::AlignCenter, number);
    }
}

} // namespace corvanta
