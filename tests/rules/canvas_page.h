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
        documentEvents().objectRemoving.listen(objectLeavesCanvas);
        documentEvents().pageReset.listen(resetCanvas);
        documentEvents().edited.listen([this](std::string_view) { ++edits; });
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
    std::vector<std::int16_t> fronted, emptied, restored;
    std::optional<Rect> trackers, outline, groupFrame, band;
    bool badges = false;
    std::map<std::int16_t, Rect> markers; // by slot

private:
    void listen()
    {
        CanvasEvents &events = canvasEvents();
        events = {};
        events.bringToFront.listen([this](std::int16_t index) { fronted.push_back(index); });
        events.showTrackers.listen([this](const Rect &r) { trackers = r; });
        events.hideTrackers.listen([this] { trackers.reset(); });
        events.placeFrameMarkers.listen([this](std::int16_t s, const Rect &r) { markers[s] = r; });
        events.hideFrameMarkers.listen([this](std::int16_t s) { markers.erase(s); });
        events.drawOutline.listen([this](const Rect &r) { outline = r; });
        events.hideOutline.listen([this] { outline.reset(); });
        events.showGroupFrame.listen([this](const Rect &r) { groupFrame = r; });
        events.hideGroupFrame.listen([this] { groupFrame.reset(); });
        events.drawBand.listen([this](const Rect &r) { band = r; });
        events.hideBand.listen([this] { band.reset(); });
        events.tabOrder.listen([this](bool shown) { badges = shown; });
        events.emptyVisual.listen([this](std::int16_t index) { emptied.push_back(index); });
        events.restoreVisual.listen([this](std::int16_t index) { restored.push_back(index); });
    }
};

inline void PrintTo(const Rect &r, std::ostream *out)
{
    *out << r.width << "x" << r.height << " at " << r.left << "," << r.top;
}

} // namespace corvanta
