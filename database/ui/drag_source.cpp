#include "database/ui/drag_source.h"

#include "platform/qt/drag.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

namespace corvanta {

namespace {

constexpr int widestName = 200, margin = 4; // pixels

class DragFilter : public QObject {
public:
    DragFilter(QWidget &source, const char *tagOfSource, std::function<std::optional<DragOffer>()> makeOffer)
        : QObject(&source), widget(source), tag(tagOfSource), offer(std::move(makeOffer))
    {
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress: press(static_cast<QMouseEvent &>(*event)); return false;
        case QEvent::MouseButtonRelease: pressed.reset(); return false;
        case QEvent::MouseMove: return move(static_cast<QMouseEvent &>(*event));
        default: return false;
        }
    }

private:
    void press(const QMouseEvent &event)
    {
        pressed.reset();
        if (event.button() == Qt::LeftButton)
            pressed = event.position().toPoint();
    }

    // Until the drag begins the widget must not take the movement for a selection.
    bool move(const QMouseEvent &event)
    {
        if (!pressed || !event.buttons().testFlag(Qt::LeftButton))
            return false;
        const auto offered = offer();
        if (!offered)
            return false;
        if ((event.position().toPoint() - *pressed).manhattanLength() >= QApplication::startDragDistance()) {
            pressed.reset();
            drag(*offered);
        }
        return true;
    }

    // The release of the button goes to the drag.
    void drag(const DragOffer &offered)
    {
        if (auto *button = qobject_cast<QAbstractButton *>(&widget))
            button->setDown(false);
        auto *drag = new QDrag(&widget);
        drag->setMimeData(dragData(tag, offered.payload));
        drag->setPixmap(offered.picture);
        drag->exec(Qt::CopyAction);
    }

    QWidget &widget;
    const char *tag;
    std::function<std::optional<DragOffer>()> offer;
    std::optional<QPoint> pressed;
};

} // namespace

void makeDragSource(QWidget &widget, const char *tag, std::function<std::optional<DragOffer>()> offer)
{
    widget.installEventFilter(new DragFilter(widget, tag, std::move(offer)));
}

QPixmap pictureOfName(const QString &name, const QWidget &source)
{
    const QFontMetrics metrics = source.fontMetrics();
    const QString shown = metrics.elidedText(name, Qt::ElideRight, widestName);
    const QSize size(metrics.horizontalAdvance(shown) + 2 * margin, metrics.height() + margin);
    QPixmap picture(size * source.devicePixelRatioF());
    picture.setDevicePixelRatio(source.devicePixelRatioF());
    picture.fill(source.palette().color(QPalette::ToolTipBase));
    QPainter painter(&picture);
    painter.setPen(source.palette().color(QPalette::ToolTipText));
    painter.drawRect(0, 0, size.width() - 1, size.height() - 1);
    painter.drawText(QRect(QPoint(), size), Qt::AlignCenter, shown);
    return picture;
}

} // namespace corvanta
