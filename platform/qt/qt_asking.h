#pragma once

#include <functional>

class QWidget;

namespace corvanta {

// Puts the desktop's message boxes and file, font and colour dialogs behind asking(); askText stays as it is.
// They stand over the active window, else over the one that was the last to have the focus; owner names the window to
// use when there is none (it may give nullptr).
void installAsking(std::function<QWidget *()> owner);

} // namespace corvanta
