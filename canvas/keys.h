#pragma once

namespace corvanta {

struct KeyModifiers {
    bool shift = false, ctrl = false, alt = false;
};

enum class CanvasCommand {
    None,
    Properties,
    Delete,
    Cancel,         // the gesture, else the numbering
    ClearSelection, // nothing is selected
    NextObject,
    FormerObject,
    FileMenu,
    PageMenu,
    ObjectMenu,
    HelpMenu
};

inline constexpr int tabKey = 9, enterKey = 13, escapeCharacter = 27, deleteKey = 46;

// What a key on the canvas or one of its visuals asks for, by its code (letters: the capital letter). Commands
// that the selection or a drag forbids are None.
CanvasCommand keyDownCommand(int key, const KeyModifiers &held);
// Delete, on the page picture only.
CanvasCommand keyUpCommand(int key);
// Esc: Cancel while a gesture or the numbering of the tab order is in progress, else ClearSelection.
CanvasCommand keyPressCommand(int character);

} // namespace corvanta
