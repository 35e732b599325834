#include "canvas/ui/visuals.h"

#include "document/page_file.h"

#include <algorithm>
#include <vector>

namespace corvanta {

namespace {

std::pair<std::int16_t, std::int16_t> keyOf(ControlReference control) { return {control.kind, control.element}; }

// By kind and number also for objects that are drawn on the page: it tells which objects of two states of a page are
// the same.
using Identity = std::pair<std::int16_t, std::int16_t>;

Identity identityOf(const Page &p, std::int16_t index)
{
    const auto i = static_cast<std::size_t>(index);
    return {p.objects[i].kind, p.ctlindex[i]};
}

std::map<Identity, std::int16_t> identitiesOf(const Page &p)
{
    std::map<Identity, std::int16_t> found;
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        found.emplace(identityOf(p, i), i);
    return found;
}

bool looksAlike(const Page &a, std::int16_t inA, const Page &b, std::int16_t inB)
{
    const Element *ea = elementOf(a, inA), *eb = elementOf(b, inB);
    if (ea && eb && (ea->picture != eb->picture || ea->Caption != eb->Caption))
        return false;
    return serialiseObject(a, inA) == serialiseObject(b, inB);
}

std::vector<Identity> orderOf(const Page &p)
{
    std::vector<Identity> order;
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        order.push_back(identityOf(p, i));
    return order;
}

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
    visual->setLive({.bindings = bindings});
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
    const Key key = keyOf(controlOfObject(page(), index));
    if (visuals.contains(key))
        removeVisual(key);
    else
        pageArea.update();
}

void Visuals::removeVisual(const Key &key)
{
    const auto found = visuals.find(key);
    if (found == visuals.end())
        return;
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

void Visuals::updateShowing(const Picture &picture)
{
    const Page &p = page();
    const auto shows = [&](const PicturePtr &shown) { return shown.get() == &picture; };
    const bool inFrames = std::ranges::any_of(p.frames, shows, &Frame::picture);
    if (shows(p.background))
        pageArea.update();
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const ObjectRecord &o = p.objects[static_cast<std::size_t>(i)];
        const auto n = static_cast<std::size_t>(p.ctlindex[static_cast<std::size_t>(i)]);
        const Element *element = elementOf(p, i);
        Visual *visual = of(i);
        if (visual && element && (shows(element->picture) || (inFrames && kindOf(o.kind) == Kind::Animation)))
            visual->update();
        else if (kindOf(o.kind) == Kind::Image && shows(p.imgpictures.at(n).picture))
            updateDrawn(p, i);
    }
}

void Visuals::raise(std::int16_t index)
{
    if (Visual *visual = of(index))
        visual->stackUnder(&top);
}

void Visuals::restack()
{
    for (std::int16_t i = 0; i < objectCount(page()); ++i)
        raise(i);
}

void Visuals::showBindings(bool shown)
{
    bindings = shown;
    for (const auto &[key, visual] : visuals) {
        LiveState live = visual->live();
        live.bindings = shown;
        visual->setLive(live);
    }
}

// An object without a visual of its own.
void Visuals::updateDrawn(const Page &p, std::int16_t index)
{
    const ObjectRecord &o = p.objects[static_cast<std::size_t>(index)];
    if (!elementOf(p, index))
        pageArea.update(o.pleft, o.ptop, o.pwidth, o.pheight);
}

void Visuals::follow(const Page &before, const std::function<void(std::int16_t)> &created)
{
    const auto old = identitiesOf(before), now = identitiesOf(page());
    for (const auto &[identity, index] : old)
        if (!now.contains(identity)) {
            removeVisual(identity);
            updateDrawn(before, index);
        }
    for (const auto &[identity, index] : now) {
        const auto former = old.find(identity);
        if (former == old.end()) {
            created(index);
        } else if (!looksAlike(before, former->second, page(), index)) {
            updateDrawn(before, former->second);
            if (Visual *visual = of(index))
                visual->refresh();
        } else {
            continue;
        }
        updateDrawn(page(), index);
    }
    if (orderOf(before) != orderOf(page()))
        restack();
}

} // namespace corvanta
