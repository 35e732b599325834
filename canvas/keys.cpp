#include "canvas/keys.h"

#include "canvas/gestures.h"
#include "canvas/selection.h"

namespace corvanta {

CanvasCommand keyDownCommand(int key, const KeyModifiers &held)
{
    if (!held.alt || held.ctrl || held.shift)
        return CanvasCommand::None;
    switch (key) {
    case enterKey: return mayOpenProperties() ? CanvasCommand::Properties : CanvasCommand::None;
    case 'F': return CanvasCommand::FileMenu;
    case 'P': return CanvasCommand::PageMenu;
    case 'O': return CanvasCommand::ObjectMenu;
    case 'H': return CanvasCommand::HelpMenu;
    default: return CanvasCommand::None;
    }
}

CanvasCommand keyUpCommand(int key)
{
    const bool idle = !gesture().dragging && !gesture().resizing;
    return key == deleteKey && hasCurrentObject() && idle ? CanvasCommand::Delete : CanvasCommand::None;
}

CanvasCommand keyPressCommand(int character)
{
    const bool busy = gesture().dragging || gesture().resizing;
    return character == escapeCharacter && busy ? CanvasCommand::Cancel : CanvasCommand::None;
}

} // namespace corvanta
