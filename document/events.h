#pragma once

#include <cstdint>
#include <functional>

namespace corvanta {

// What the process-wide document tells the rooms above it. Empty members are not called.
struct DocumentEvents {
    std::function<void()> showCanvas;                 // the first new page: the canvas window is to be shown
    std::function<void(std::int16_t)> objectCreated;  // the record and its element are complete
    std::function<void(std::int16_t)> objectRemoving; // before a removal, the index still valid
    std::function<void()> objectRemoved;              // after a removal: indices and curobj have moved
    std::function<void(std::int16_t)> objectChanged;  // geometry, element or picture of an object
    std::function<void()> objectCount;                // the number of objects may have changed
    std::function<void()> currentCleared;             // curobj became none: the tracker handles go
    std::function<void()> pageLayout;                 // page-wide fields are to be applied to the canvas
    std::function<void()> pageChanged;                // the page picture is to be painted again
    std::function<void()> pageReset;                  // all objects are gone: selection and running list too
    std::function<void()> fileChanged;                // filetag has changed
    std::function<void()> edited;                     // an edit of the user's is complete
};

DocumentEvents &documentEvents();

// The one door for edits: called once when an act of the user's is complete. Sets pagedirty and tells.
void pageEdited();

} // namespace corvanta
