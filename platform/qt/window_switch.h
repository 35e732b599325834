#pragma once

#include <functional>
#include <vector>

class QDialog;
class QWidget;

namespace corvanta {

// The windows that a modeless dialog switches off while it is open; filled once at start-up.
std::function<std::vector<QWidget *>()> &switchableWindows();

// Shows a dialog that is not modal, the switchable windows disabled until it is closed. The dialog deletes itself; then
// closed runs.
void showSwitchingOff(QDialog *dialog, std::function<void()> closed = {});

// Keeps a dialog in front of the active window.
void stayInFront(QDialog &dialog);

} // namespace corvanta
