#pragma once

#include <span>

// The main window's commands and where they stand in its menus and on its toolbar.
namespace corvanta {

enum class Command {
    None, // submenus and separators
    New,
    Open,
    Save,
    SaveAs,
    ExportHtml,
    Directory,
    Exit,
    PageProperties,
    MockToolbar,
    StatusPanel,
    OdbcToolbar,
    ObjectList,
    ObjectProperties,
    Add, // one item per registered kind; runs as addFromMenu
    Align,
    AlignLeft,
    AlignRight,
    AlignTop,
    AlignBottom,
    Animate,
    Duplicate,
    LoadObject,
    SaveObject,
    Delete,
    HelpContents,
    HelpSearch,
    About,
    // Not in the menus of the main window: reached by keys and by the canvas's context menu.
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    DuplicateObjects,
    SelectAll,
    TabOrder,         // numbering by clicking
    SharedProperties, // of two objects or more
    BringToFront,
    SendToBack,
    ShowBindings,
    CheckPage,
    Preview,
    AddKind,    // one item per kind; runs at the pointer
    RecentPages // one item per page
};

// A menu item. Rows stand in the order of the menus, a submenu before its items.
struct MenuRow {
    const char *element; // its name
    const char *caption; // with "&" before the access key; "-" for a separator
    long helpId;         // help context number; 0 for none
    Command command;
    const char *parent; // element of its submenu; empty for the menu bar
};

std::span<const MenuRow> menuTable();

bool isSeparator(const MenuRow &row);
bool isSubmenu(const MenuRow &row); // of the main window's menus

// The canvas's context menu. The items of its Add submenu are the kinds.
std::span<const MenuRow> contextTable();

// The toolbar's buttons by their index.
struct ToolbarRow {
    Command command;
    const char *hint;
};

std::span<const ToolbarRow> toolbarTable();

} // namespace corvanta
