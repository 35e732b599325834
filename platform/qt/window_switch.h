#pragma once

#include <functional>
#include <vector>

class QDialog;
class QWidget;

namespace corvanta {

// The windows that a modeless dialog switches off while it is open; filled once at start-up.
std::function<std::vector<QWidget *>()> &switchableWindows();

// The visible one that was named last; none is null.
QWidget *switchableInFront();

// Shows a dialog that is not modal, the switchable windows disabled until it is closed. Whichever of them is clicked,
// the dialog comes to the front. It deletes itself; then closed runs.
void showSwitchingOff(QDialog *dialog, const std::function<void()> &closed = {});

// Keeps a dialog in front of the active window; without one, of the switchable one in front. CentreDialog does it for
// every dialog without a parent.
void stayInFront(QDialog &dialog);

} // namespace corvanta
