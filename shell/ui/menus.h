#pragma once

#include "shell/menu_table.h"

#include <QObject>

#include <map>
#include <string>
#include <utility>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;

namespace corvanta {

// The main window's menus, built from the menu table. Every action has its element name as object name and
// its help context number as property "helpid"; F1 on a highlighted item shows its topic.
class Menus : public QObject {
public:
    explicit Menus(QMenuBar &menuBar);

    void addKinds(); // fills the Add submenu
    void refreshCommands();
    // Opens a menu of the bar by its access key ('F', 'P', 'O' or 'H').
    void open(char letter);
    // Opens the Object menu's Add submenu.
    void openAdd();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QAction *addRow(const MenuRow &row);
    QMenu *menu(const std::string &element) const { return submenus.at(element); }

    QMenuBar &bar;
    std::map<std::string, QMenu *> submenus; // by element
    std::vector<std::pair<QAction *, Command>> items;
};

} // namespace corvanta
