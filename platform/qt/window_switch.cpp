#include "platform/qt/window_switch.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QWindow>

namespace corvanta {

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
    for (const auto &window : switchedOff)
        window->setEnabled(false);
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
