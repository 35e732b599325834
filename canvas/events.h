#pragma once

#include "canvas/geometry.h"

#include <functional>
#include <utility>

namespace corvanta {

// What selection and gestures tell the canvas window. Indices are those of the object table, rectangles
// are page pixels. Empty members are not called.
struct CanvasEvents {
    std::function<void(std::int16_t)> bringToFront; // the object's visual, in front of all visuals
    std::function<void()> currentChanged;           // curobj was set: object commands may switch
    std::function<void(const Rect &)> showTrackers; // the eight handles round a rectangle, frontmost
    std::function<void()> hideTrackers;
    std::function<void(std::int16_t, const Rect &)> placeFrameMarkers; // slot (from 1) and rectangle
    std::function<void(std::int16_t)> hideFrameMarkers;                // slot
    std::function<void(const Rect &)> drawOutline;                     // also moves an outline that is shown
    std::function<void()> hideOutline;
    std::function<void(const Rect &)> showGroupFrame; // also moves a frame that is shown
    std::function<void()> hideGroupFrame;
    std::function<void(std::int16_t)> repaintUnder;  // a control that the outline has left
    std::function<void(std::int16_t)> emptyVisual;   // show a List Box or Text Box without its content
    std::function<void(std::int16_t)> restoreVisual; // show the content again
};

CanvasEvents &canvasEvents();

template <class Event, class... Arguments> void tell(const Event &event, Arguments &&...arguments)
{
    if (event)
        event(std::forward<Arguments>(arguments)...);
}

} // namespace corvanta
