#include "platform/qt/window_switch.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPointer>
#include <QWindow>

namespace corvanta {

namespace {

// A window that is switched off cannot be closed either: what it closes with would come too early.
class StaysOpen : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Close)
            event->ignore();
        return event->type() == QEvent::Close;
    }
};

} // namespace

std::function<std::vector<QWidget *>()> &switchableWindows()
{
    static std::function<std::vector<QWidget *>()> windows;
    return windows;
}

void showSwitchingOff(QDialog *dialog, std::function<void()> closed)
{
    std::vector<QPointer<QWidget>> switchedOff;
    if (switchableWindows())
        for (QWidget *window : switchableWindows()())
            switchedOff.emplace_back(window);
    auto *staysOpen = new StaysOpen(dialog);
    for (const auto &window : switchedOff) {
        window->setEnabled(false);
        window->installEventFilter(staysOpen);
    }
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QObject::destroyed, [switchedOff, closed] {
        for (const auto &window : switchedOff)
            if (window)
                window->setEnabled(true);
        if (closed)
            closed();
    });
    stayInFront(*dialog);
    dialog->show();
    dialog->activateWindow();
}

void stayInFront(QDialog &dialog)
{
    const QWidget *active = QApplication::activeWindow();
    if (!active || !active->windowHandle())
        return;
    dialog.winId();
    dialog.windowHandle()->setTransientParent(active->windowHandle());
}

} // namespace corvanta
