#pragma once

#include "canvas/geometry.h"
#include "platform/event.h"

#include <utility>

namespace corvanta {

// What selection and gestures tell the canvas window. Indices are those of the object table, rectangles
// are page pixels.
struct CanvasEvents {
    Event<std::int16_t> bringToFront; // the object's visual, in front of all visuals
    Event<> currentChanged;           // curobj was set: object commands may switch
    Event<const Rect &> showTrackers; // the eight handles round a rectangle, frontmost
    Event<> hideTrackers;
    Event<std::int16_t, const Rect &> placeFrameMarkers; // slot (from 1) and rectangle
    Event<std::int16_t> hideFrameMarkers;                // slot
    Event<const Rect &> drawOutline;                     // also moves an outline that is shown
    Event<> hideOutline;
    Event<const Rect &> showGroupFrame; // also moves a frame that is shown
    Event<> hideGroupFrame;
    Event<const Rect &> drawBand; // also moves a rubber band that is shown
    Event<> hideBand;
    Event<bool> tabOrder;              // whether tab numbers are shown; again after each new number
    Event<std::int16_t> emptyVisual;   // show a List Box or Text Box without its content
    Event<std::int16_t> restoreVisual; // show the content again
};

CanvasEvents &canvasEvents();

// Calls a function that may be empty.
template <class Function, class... Arguments> void tell(const Function &function, Arguments &&...arguments)
{
    if (function)
        function(std::forward<Arguments>(arguments)...);
}

} // namespace corvanta
