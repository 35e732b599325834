#include "canvas/keys.h"

#include "canvas/gestures.h"
#include "canvas/selection.h"
#include "canvas/tab_order.h"

namespace corvanta {

CanvasCommand keyDownCommand(int key, const KeyModifiers &held)
{
    if (key == tabKey && !held.alt && !held.ctrl && objectCount(page()) > 0 && !gestureActive())
        return held.shift ? CanvasCommand::FormerObject : CanvasCommand::NextObject;
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
    return key == deleteKey && hasCurrentObject() && !gestureActive() ? CanvasCommand::Delete : CanvasCommand::None;
}

CanvasCommand keyPressCommand(int character)
{
    if (character != escapeCharacter)
        return CanvasCommand::None;
    if (gestureActive() || tabOrderActive())
        return CanvasCommand::Cancel;
    return hasCurrentObject() || hasMembers() ? CanvasCommand::ClearSelection : CanvasCommand::None;
}

} // namespace corvanta
