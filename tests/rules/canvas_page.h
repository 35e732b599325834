#pragma once

#include "canvas/gestures.h"
#include "canvas/lifecycle.h"
#include "canvas/selection.h"
#include "tests/support/fresh_page.h"

#include <map>
#include <optional>

namespace corvanta {

// The process-wide page at 640 by 480 pixels with a canvas that notes what it is told.
class CanvasPage : public FreshPage {
protected:
    CanvasPage() : FreshPage(640, 480)
    {
        documentEvents().objectRemoving = objectLeavesCanvas;
        documentEvents().pageReset = resetCanvas;
        documentEvents().edited = [this] { ++edits; };
        listen();
    }
    ~CanvasPage() override
    {
        newPage();
        canvasEvents() = {};
    }

    static std::int16_t add(Kind kind, const Rect &r) { return addAt(kind, r.left, r.top, r.width, r.height); }
    static Rect rect(std::int16_t index) { return rectOf(object(index)); }
    static std::int16_t slot(std::int16_t index) { return object(index).selslot; }

    static Mouse left(Point at) { return {.at = at, .left = true}; }
    static Mouse ctrlLeft(Point at) { return {.at = at, .left = true, .ctrl = true}; }

    static void click(std::int16_t index)
    {
        pressObject(index, left({1, 1}));
        releaseObject(index, left({1, 1}));
    }
    static void ctrlClick(std::int16_t index)
    {
        pressObject(index, ctrlLeft({1, 1}));
        releaseObject(index, ctrlLeft({1, 1}));
    }
    static void drag(std::int16_t index, Point from, Point to)
    {
        pressObject(index, left(from));
        moveObject(left(to));
        releaseObject(index, left(to));
    }

    int edits = 0;
    std::vector<std::int16_t> fronted, repainted, emptied, restored;
    std::optional<Rect> trackers, outline, groupFrame;
    std::map<std::int16_t, Rect> markers; // by slot

private:
    void listen()
    {
        CanvasEvents &events = canvasEvents();
        events = {};
        events.bringToFront = [this](std::int16_t index) { fronted.push_back(index); };
        events.showTrackers = [this](const Rect &r) { trackers = r; };
        events.hideTrackers = [this] { trackers.reset(); };
        events.placeFrameMarkers = [this](std::int16_t s, const Rect &r) { markers[s] = r; };
        events.hideFrameMarkers = [this](std::int16_t s) { markers.erase(s); };
        events.drawOutline = [this](const Rect &r) { outline = r; };
        events.hideOutline = [this] { outline.reset(); };
        events.showGroupFrame = [this](const Rect &r) { groupFrame = r; };
        events.hideGroupFrame = [this] { groupFrame.reset(); };
        events.repaintUnder = [this](std::int16_t index) { repainted.push_back(index); };
        events.emptyVisual = [this](std::int16_t index) { emptied.push_back(index); };
        events.restoreVisual = [this](std::int16_t index) { restored.push_back(index); };
    }
};

inline void PrintTo(const Rect &r, std::ostream *out)
{
    *out << r.width << "x" << r.height << " at " << r.left << "," << r.top;
}

} // namespace corvanta
