#pragma once

#include "canvas/ui/visual.h"

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
    void raise(std::int16_t index);

private:
    QWidget &pageArea, &top;
    std::map<std::pair<std::int16_t, std::int16_t>, Visual *> visuals;
};

} // namespace corvanta
