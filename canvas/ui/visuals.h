#pragma once

#include "canvas/ui/visual.h"

#include <functional>
#include <map>
#include <utility>

namespace corvanta {

// The visuals of the process-wide page by kind and element number. Objects that are drawn on the page have none:
// for them the page area is painted again.
class Visuals {
public:
    // Visuals stay below the ceiling, a child of the page area.
    Visuals(QWidget &area, QWidget &ceiling) : pageArea(area), top(ceiling) {}

    Visual *create(std::int16_t index); // nullptr for objects without a visual
    Visual *of(std::int16_t index) const;
    Visual *of(Kind kind, std::int16_t element) const;
    void remove(std::int16_t index);
    void refresh(std::int16_t index);
    void refreshAll();
    void updateShowing(const Picture &picture); // those that show it, and the page area where it does
    void raise(std::int16_t index);
    void restack();                // in table order
    void showBindings(bool shown); // those of later objects, too

    // Brings the visuals up to date with a page that undo has put in the place of another; what is alike on both is
    // left alone. Calls created for every object that has come back.
    void follow(const Page &before, const std::function<void(std::int16_t)> &created);

private:
    using Key = std::pair<std::int16_t, std::int16_t>;

    void removeVisual(const Key &key);
    void updateDrawn(const Page &p, std::int16_t index);

    QWidget &pageArea, &top;
    bool bindings = false;
    std::map<Key, Visual *> visuals;
};

} // namespace corvanta
