#include "platform/qt/drop_target.h"

#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

namespace corvanta {

namespace {

class DropFilter : public QObject {
public:
    DropFilter(QWidget &widget, std::string tagOfSource, std::function<void(const DragPayload &)> drop)
        : QObject(&widget), tag(std::move(tagOfSource)), dropped(std::move(drop))
    {
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop: return take(static_cast<QDropEvent &>(*event));
        default: return false;
        }
    }

private:
    bool take(QDropEvent &event)
    {
        const auto payload = dragPayload(*event.mimeData());
        if (!payload || payload->tag != tag) {
            event.ignore();
            return true;
        }
        event.setDropAction(Qt::CopyAction);
        event.accept();
        if (event.type() == QEvent::Drop)
            dropped(*payload);
        return true;
    }

    std::string tag;
    std::function<void(const DragPayload &)> dropped;
};

} // namespace

void acceptDrag(QWidget &widget, const char *tag, std::function<void(const DragPayload &)> dropped)
{
    widget.setAcceptDrops(true);
    widget.installEventFilter(new DropFilter(widget, tag, std::move(dropped)));
}

} // namespace corvanta
