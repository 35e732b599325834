#pragma once

#include "shell/menu_table.h"

#include <QMenu>
#include <QPoint>

#include <cstdint>

class QAction;

namespace corvanta {

// The keys of the desktop's own, and ours, for a command; empty for none.
QList<QKeySequence> shortcutsOf(Command command);

// Gives a window the keys of the commands that stand in no menu of the main window.
void addCommandKeys(QWidget &window);

// The canvas's context menu, built from its table with the states of the moment. Added and pasted objects appear at the
// page point.
class CanvasMenu : public QMenu {
public:
    CanvasMenu(QPoint pagePoint, QWidget *parent);

private:
    void addRow(const MenuRow &row);
    void addKinds(QMenu &menu);
    void run(Command command);

    QPoint at;
};

// A right click on a page point, on an object or on none (noObject): the object becomes current unless it is chosen
// already. Then the menu opens.
void openCanvasMenu(std::int16_t index, QPoint pagePoint, QPoint onScreen, QWidget *parent);

} // namespace corvanta
