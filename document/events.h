#pragma once

#include "platform/event.h"

#include <cstdint>
#include <string_view>

namespace corvanta {

struct Page;

// What the process-wide document tells the rooms above it.
struct DocumentEvents {
    Event<> showCanvas;                 // the first new page: the canvas window is to be shown
    Event<std::int16_t> objectCreated;  // the record and its element are complete
    Event<std::int16_t> objectRemoving; // before a removal, the index still valid
    Event<> objectRemoved;              // after a removal: indices and curobj have moved
    Event<std::int16_t> objectChanged;  // geometry, element or picture of an object
    Event<> objectCount;                // the number of objects may have changed
    Event<> currentCleared;             // curobj became none: the tracker handles go
    Event<> pageLayout;                 // page-wide fields are to be applied to the canvas
    Event<> pageChanged;                // the page picture is to be painted again
    Event<> pageReset;                  // all objects are gone: selection and running list too
    // Undo or redo has put another page in the place of the given one; the selection is the one that belongs to it.
    Event<const Page &> pageRestored;
    Event<> orderChanged;           // objects have other places in the table
    Event<std::string_view> notice; // a short text for the status panel
    Event<> clean;                  // the page has no changes that its file lacks
    Event<> fileChanged;            // filetag has changed
    Event<std::string_view> edited; // an act of the user's is complete: its name
};

DocumentEvents &documentEvents();

// The one door for edits: called once when an act of the user's is complete, with the act's name as the user would
// call it ("Move", "Label properties"). Sets pagedirty and tells.
void pageEdited(std::string_view act);

} // namespace corvanta
