#pragma once

#include "canvas/ui/paint.h"
#include "document/objects.h"

#include <QWidget>

namespace corvanta {

// What assistive technology calls an object: its kind with its caption, or its status text if it has none.
QString accessibleNameOf(const Page &p, std::int16_t index);

// The control of a windowed object on the page: a view of its element that paints itself and leaves all
// mouse and key events to whoever watches it.
class Visual : public QWidget {
public:
    Visual(QWidget &pageArea, ControlReference control);

    ControlReference control() const { return reference; }
    const LiveState &live() const { return state; }
    void setLive(const LiveState &live);
    // Takes place, size and accessible name from the object's record.
    void refresh();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::int16_t index() const; // of its object

    ControlReference reference;
    LiveState state;
};

} // namespace corvanta
