#include "canvas/ui/visuals.h"

namespace corvanta {

namespace {

std::pair<std::int16_t, std::int16_t> keyOf(ControlReference control) { return {control.kind, control.element}; }

} // namespace

Visual *Visuals::create(std::int16_t index)
{
    const ControlReference control = controlOfObject(page(), index);
    if (control.element == 0) {
        pageArea.update();
        return nullptr;
    }
    auto *visual = new Visual(pageArea, control);
    visuals[keyOf(control)] = visual;
    visual->stackUnder(&top);
    visual->show();
    return visual;
}

Visual *Visuals::of(std::int16_t index) const
{
    const auto found = visuals.find(keyOf(controlOfObject(page(), index)));
    return found == visuals.end() ? nullptr : found->second;
}

Visual *Visuals::of(Kind kind, std::int16_t element) const
{
    const auto found = visuals.find({static_cast<std::int16_t>(kind), element});
    return found == visuals.end() ? nullptr : found->second;
}

void Visuals::remove(std::int16_t index)
{
    const auto found = visuals.find(keyOf(controlOfObject(page(), index)));
    if (found == visuals.end())
        return pageArea.update();
    found->second->hide();
    found->second->deleteLater(); // the removal may come from the visual's own event
    visuals.erase(found);
}

void Visuals::refresh(std::int16_t index)
{
    if (Visual *visual = of(index))
        visual->refresh();
    else
        pageArea.update();
}

void Visuals::refreshAll()
{
    for (const auto &[key, visual] : visuals)
        visual->refresh();
    pageArea.update();
}

void Visuals::raise(std::int16_t index)
{
    if (Visual *visual = of(index))
        visual->stackUnder(&top);
}

} // namespace corvanta
