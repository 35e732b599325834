#include "platform/qt/window_switch.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPointer>
#include <QWindow>

namespace corvanta {

namespace {

void bringToFront(QWidget &window)
{
    window.raise();
    window.activateWindow();
}

// A window that is switched off gives way to its dialog when it is clicked. It cannot be closed either: what it closes
// with would come too early.
class SwitchedOff : public QObject {
public:
    explicit SwitchedOff(QDialog &open) : QObject(&open), dialog(open) {}

    void add(QWidget &window)
    {
        window.setEnabled(false);
        window.installEventFilter(this);
        if (window.windowHandle())
            window.windowHandle()->installEventFilter(this); // a disabled widget is told of no click
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type == QEvent::WindowActivate || type == QEvent::MouseButtonPress)
            QMetaObject::invokeMethod(
                this, [this] { giveWay(); }, Qt::QueuedConnection);
        if (type == QEvent::Close)
            event->ignore();
        return type == QEvent::Close;
    }

private:
    void giveWay()
    {
        if (dialog.isVisible())
            bringToFront(dialog);
        if (QWidget *modal = QApplication::activeModalWidget())
            bringToFront(*modal);
    }

    QDialog &dialog;
};

} // namespace

std::function<std::vector<QWidget *>()> &switchableWindows()
{
    static std::function<std::vector<QWidget *>()> windows;
    return windows;
}

QWidget *switchableInFront()
{
    QWidget *front = nullptr;
    if (switchableWindows())
        for (QWidget *window : switchableWindows()())
            if (window && window->isVisible())
                front = window; // the last
    return front;
}

void showSwitchingOff(QDialog *dialog, const std::function<void()> &closed)
{
    std::vector<QPointer<QWidget>> switchedOff;
    if (switchableWindows())
        for (QWidget *window : switchableWindows()())
            switchedOff.emplace_back(window);
    auto *filter = new SwitchedOff(*dialog);
    for (const auto &window : switchedOff)
        filter->add(*window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QObject::destroyed, [switchedOff, closed] {
        for (const auto &window : switchedOff)
            if (window)
                window->setEnabled(true);
        if (closed)
            closed();
    });
    dialog->show();
    dialog->activateWindow();
}

void stayInFront(QDialog &dialog)
{
    const QWidget *active = QApplication::activeWindow();
    const QWidget *front = active ? active : switchableInFront();
    if (!front || !front->windowHandle())
        return;
    dialog.winId();
    dialog.windowHandle()->setTransientParent(front->windowHandle());
}

} // namespace corvanta
