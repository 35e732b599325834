#pragma once

#include <cstdint>

// What happens on the canvas when objects of the process-wide page come and go.
namespace corvanta {

// A new object: a ticker begins to scroll.
void objectEntersCanvas(std::int16_t index);
// Before an object is removed: it leaves the gesture, the multi-selection and the running list.
void objectLeavesCanvas(std::int16_t index);
// Something else takes the mouse (a menu, a dialog, another window): no gesture goes on and no ticker is held.
void mouseTaken();
// The page is empty: no selection, no gesture, nothing runs.
void resetCanvas();

} // namespace corvanta
