#pragma once

#include "canvas/events.h"
#include "document/objects.h"

#include <string>

// Moving and resizing with the mouse on the process-wide page: press, move, release, cancel. The objects
// stay where they are until the release; only the outline moves.
namespace corvanta {

struct Mouse {
    Point at;                 // page pixels, also for events of visuals and handles
    bool left = false;        // press and release: the button of the event; move: is held
    bool otherButton = false; // another button is held
    bool shift = false, ctrl = false, alt = false;
};

struct Gesture {
    bool dragging = false;           // a move drag is in progress
    bool resizing = false;           // a handle is held
    bool banding = false;            // a rubber band is drawn on the empty page
    bool ctrlclick = false;          // Ctrl was held at the last release on an object or the page
    std::int16_t object = noObject;  // the pressed object
    Handle handle = Handle::TopLeft; // the pressed handle
    int grabx = 0, graby = 0;        // last processed mouse position: in the object, of a resize on the page
    Point pressPoint;                // on the page
    bool moved = false;              // the mouse has moved since the press
    bool outlineShown = false;
    Rect outline;
    Rect band;
    bool group = false;       // the whole multi-selection moves
    Rect multbox;             // the members' bounding rectangle, displaced
    Point groupOrigin;        // of multbox at the press
    ControlReference emptied; // whose list or text is not shown; element 0 for none
};

const Gesture &gesture();
bool gestureActive(); // one is in progress
// What the outline will do, for the status panel: the object's place and size, or the way of a group.
std::string gestureText();

// Press on an object, or on the empty page (noObject). A plain left press selects and begins a move drag, on the empty
// page a rubber band, which Shift begins too: at its release what it encloses, with Shift what it touches, is selected.
void pressObject(std::int16_t index, const Mouse &mouse);
void moveObject(const Mouse &mouse);
// Release over an object, or over the empty page (noObject).
void releaseObject(std::int16_t index, const Mouse &mouse);

// A handle of the current object. The mouse is given in page pixels: the handle's place plus the position in it.
void pressHandle(Handle handle, const Mouse &mouse);
void moveHandle(const Mouse &mouse);
void releaseHandle(const Mouse &mouse);

// Ends a gesture without a change (Esc, or the release will not come). True when there was one.
bool cancelGesture();

// Whether a double click or a key may open the current object's properties: there is one, and no move drag.
bool mayOpenProperties();

void drawOutline(const Rect &r);
void hideOutline();

// Nothing: the widgets that a line of the outline leaves are painted again by the toolkit.
inline void refreshUnder(const Rect &) {}

// Applies the outline's rectangle to the current object, or in a group move multbox's displacement to every
// member; a completed edit.
void moveSelectionTo(const Rect &r);

enum class AlignMode : std::int16_t { Left, Right, Top, Bottom };

// Lines the members of the multi-selection up with the current object. Nothing for a mode outside 0..3, while
// multcount is 0, or without a current object.
void alignSelection(std::int16_t mode);

} // namespace corvanta
