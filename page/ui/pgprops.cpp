#include "page/ui/pgprops.h"

#include "page/ui/page_dialog.h"
#include "platform/qt/window_switch.h"

#include <QPointer>

namespace corvanta {

void openPageProperties(std::function<void()> closed)
{
    static QPointer<PageDialog> open;
    if (open) {
        open->raise();
        return open->activateWindow();
    }
    open = new PageDialog;
    showSwitchingOff(open, std::move(closed));
}

} // namespace corvanta
