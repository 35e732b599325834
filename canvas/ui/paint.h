#pragma once

#include "document/page.h"

#include <QRect>

#include <vector>

class QPainter;

// The pictures of objects: an object's record, element and side tables as pixels. Nothing here knows a
// widget, so that a page can be painted onto any device.
namespace corvanta {

// What an object shows for a moment, besides its stored state.
struct LiveState {
    int textOffset = 0;    // of a ticker's text, pixels from its strip's left edge
    int frame = 0;         // of an animation: number in the page's frame table; 0 for its first frame
    bool bordered = true;  // of an animation: false while it is played
    bool emptied = false;  // a list or text field that is being dragged
    bool bindings = false; // a bound field shows its name
};

// Paints an object into a rectangle of its size. Images paint the picture that the page has loaded for them.
void paintObject(QPainter &painter, const Page &p, std::int16_t index, const QRect &rect, const LiveState &live = {});

// The inner size of a canvas window for a page without a size of its own.
inline constexpr int newPageWidth = 600, newPageHeight = 400;

// The background colour and picture of the page.
void paintPageBackground(QPainter &painter, const Page &p, const QRect &rect);

// The objects that are drawn on the page itself, from the lowest up: Hot Spots lie over all others, as they are hit.
std::vector<std::int16_t> drawnOnPage(const Page &p);

// Paints an object in its place on the page; loads the picture of an Image.
void paintPlaced(QPainter &painter, Page &p, std::int16_t index);

// Paints a whole page: what is drawn on it, and above that its controls in table order.
void paintPage(QPainter &painter, Page &p);

// Pixels that a ticker's text takes, and those that its strip shows.
int tickerTextWidth(const Element &ticker);
int tickerInnerWidth(const Element &ticker);

// The frame that an animation shows; nullptr when there is none.
const Frame *shownFrame(const Page &p, std::int16_t element, const LiveState &live);

} // namespace corvanta
