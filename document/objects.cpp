#include "document/objects.h"

#include "document/byte_codec.h"
#include "document/events.h"
#include "document/new_object.h"
#include "document/tablist.h"
#include "platform/asking.h"
#include "platform/profile.h"

#include <algorithm>
#include <numeric>

namespace corvanta {

namespace {

std::int16_t lastIndex(const auto &table) { return static_cast<std::int16_t>(table.size() - 1); }

// Ticker elements are fixed: the first that no object uses, or none.
std::int16_t freeTicker(const Page &p)
{
    const auto free = std::find_if(p.tkr.begin() + 1, p.tkr.end(), [](const Element &e) { return !e.loaded; });
    return free == p.tkr.end() ? noObject : static_cast<std::int16_t>(free - p.tkr.begin());
}

void growSideTable(Page &p, Kind kind)
{
    switch (kind) {
    case Kind::Button: p.butextras.resize(p.but.size()); break;
    case Kind::ListBox: p.lbxextras.resize(p.lbx.size()); break;
    case Kind::TextBox: p.tbxextras.resize(p.tbx.size()); break;
    case Kind::ComboBox: p.cbxextras.resize(p.cbx.size()); break;
    case Kind::Animation: p.aniextras.resize(p.ani.size()); break;
    case Kind::HotSpot: ++p.hotcounter; break;
    case Kind::ImageDb: ++p.imgdbcounter; break;
    case Kind::Image: p.imgpictures.emplace_back(); break;
    case Kind::Label:
    case Kind::Ticker:
    case Kind::Grid:
    case Kind::File:
    case Kind::Url: break;
    }
}

std::int16_t pageDrawnNumber(const Page &p, Kind kind)
{
    if (kind == Kind::Image)
        return lastIndex(p.imgpictures);
    return kind == Kind::HotSpot ? p.hotcounter : p.imgdbcounter;
}

// Loads the next element of the kind's array from its template; noObject when all tickers are in use.
std::int16_t loadElement(Page &p, Kind kind)
{
    auto *elements = elementsOf(p, kind);
    std::int16_t n = 0;
    if (kind == Kind::Ticker) {
        n = freeTicker(p);
        if (n == noObject)
            return n;
        p.tkrextras[static_cast<std::size_t>(n)] = p.tkrextras[0];
    } else if (elements) {
        elements->push_back(elements->front());
        n = lastIndex(*elements);
    }
    growSideTable(p, kind);
    if (!elements)
        return pageDrawnNumber(p, kind);
    Element &e = (*elements)[static_cast<std::size_t>(n)];
    if (kind == Kind::Ticker)
        e = elements->front();
    e.loaded = true;
    return n;
}

void placeElement(Element &e, const ObjectRecord &o)
{
    e.top = o.ptop;
    e.left = o.pleft;
    e.height = o.pheight;
    e.width = o.pwidth;
    e.alignment = o.alignment;
}

void placeElementOf(Page &p, std::int16_t index)
{
    if (Element *e = elementOf(p, index))
        placeElement(*e, p.objects[static_cast<std::size_t>(index)]);
}

void tellTickerLimit(const Page &p)
{
    if (&p != &page() || !editing().msgflag)
        return;
    showMessage({"Only" + profileNumber(maxTickers) + " ticker controls allowed per page.", "Ticker Maximum Reached",
                 Icon::Information, Buttons::Ok});
}

// The new object takes the former spare entry. noObject, and nothing is added, for a fourth ticker.
std::int16_t growTables(Page &p, std::int16_t code)
{
    const auto kind = kindOf(code);
    const std::int16_t n = kind ? loadElement(p, *kind) : std::int16_t{0};
    if (n == noObject) {
        tellTickerLimit(p);
        return noObject;
    }
    const std::int16_t index = objectCount(p);
    p.objects.back().kind = code;
    p.objects.emplace_back();
    p.ctlindex.back() = n;
    p.ctlindex.push_back(0);
    return index;
}

std::int16_t createNew(Page &p, std::int16_t code)
{
    const std::int16_t index = growTables(p, code);
    const auto kind = kindOf(code);
    if (index != noObject && kind)
        setDefaults(p, index, *kind, p.ctlindex[static_cast<std::size_t>(index)]);
    return index;
}

std::int16_t createRead(Page &p, std::int16_t code, std::string_view &body)
{
    const std::int16_t index = growTables(p, code);
    if (index == noObject)
        return index;
    ByteReader reader(body, p.pgversion);
    commonFields(reader, p.objects[static_cast<std::size_t>(index)]);
    placeElementOf(p, index);
    const auto kind = kindOf(code);
    if (!kind)
        return index;
    std::vector<Frame> frames;
    kindTail(reader, p, *kind, p.ctlindex[static_cast<std::size_t>(index)], frames);
    if (kind == Kind::Animation)
        storeFrames(p, index, std::move(frames));
    return index;
}

void unloadElement(Page &p, std::int16_t index)
{
    const auto i = static_cast<std::size_t>(index);
    const auto n = static_cast<std::size_t>(p.ctlindex[i]);
    const auto kind = kindOf(p.objects[i].kind);
    if (kind == Kind::Animation)
        releaseFrames(p, p.ctlindex[i]);
    if (kind == Kind::Image)
        p.imgpictures[n] = {};
    if (Element *e = elementOf(p, index))
        *e = Element{};
}

// An animation's frames have places of their own on the page; they go with it.
void moveFrames(Page &p, std::int16_t index, int down, int right)
{
    for (const int number : frameNumbers(p, p.ctlindex[static_cast<std::size_t>(index)])) {
        Frame &frame = p.frames[static_cast<std::size_t>(number)];
        frame.top = static_cast<std::int16_t>(frame.top + down);
        frame.left = static_cast<std::int16_t>(frame.left + right);
    }
}

void moveCurrentAfterRemoval(std::int16_t index)
{
    std::int16_t &curobj = editing().curobj;
    if (curobj == index) {
        curobj = noObject;
        documentEvents().currentCleared();
    } else if (curobj > index) {
        --curobj;
    }
}

} // namespace

std::int16_t appendObject(Page &p, ObjectRecord record)
{
    const std::int16_t index = growTables(p, record.kind);
    if (index == noObject)
        return index;
    p.objects[static_cast<std::size_t>(index)] = std::move(record);
    placeElementOf(p, index);
    return index;
}

std::int16_t createVisual(Page &p, std::string_view record)
{
    const std::int16_t code = decodeInt16(record);
    const std::int16_t index = record.empty() ? createNew(p, code) : createRead(p, code, record);
    if (&p == &page() && index != noObject) {
        documentEvents().objectCreated(index);
        documentEvents().objectCount();
    }
    return index;
}

std::int16_t addObject(Kind kind)
{
    const std::int16_t index = createVisual(page(), encodeInt16(static_cast<std::int16_t>(kind)));
    if (index != noObject)
        editing().pagedirty = true;
    return index;
}

std::vector<Frame> framesOf(const Page &p, std::int16_t index)
{
    std::vector<Frame> frames;
    for (const int number : frameNumbers(p, p.ctlindex.at(static_cast<std::size_t>(index))))
        frames.push_back(p.frames[static_cast<std::size_t>(number)]);
    return frames;
}

void storeFrames(Page &p, std::int16_t index, std::vector<Frame> frames)
{
    const auto i = static_cast<std::size_t>(index);
    releaseFrames(p, p.ctlindex[i]);
    std::string list;
    int position = 0;
    for (Frame &frame : frames) {
        frame.image = fieldAt(p.objects[i].srcfile, 2 * position);
        frame.sound = fieldAt(p.objects[i].srcfile, 2 * position + 1);
        list = setFieldAt(list, position++, std::to_string(takeFrame(p, std::move(frame))));
    }
    p.aniextras[static_cast<std::size_t>(p.ctlindex[i])].frames = list;
}

void deleteObject(std::int16_t index)
{
    Page &p = page();
    if (!hasObject(p, index))
        return;
    documentEvents().objectRemoving(index);
    unloadElement(p, index);
    p.objects.erase(p.objects.begin() + index);
    p.ctlindex.erase(p.ctlindex.begin() + index);
    editing().pagedirty = true;
    moveCurrentAfterRemoval(index);
    documentEvents().objectRemoved();
    documentEvents().objectCount();
}

void clearObjects()
{
    for (std::int16_t index = objectCount(page()); index-- > 0;)
        deleteObject(index);
    page().objects.assign(1, {});
    page().ctlindex.assign(1, 0);
    editing().multcount = 0;
    documentEvents().pageReset();
}

void setObjectGeometry(std::int16_t index, std::int16_t top, std::int16_t left, std::int16_t height, std::int16_t width)
{
    Page &p = page();
    if (!hasObject(p, index))
        return;
    ObjectRecord &o = p.objects[static_cast<std::size_t>(index)];
    if (kindOf(o.kind) == Kind::Animation)
        moveFrames(p, index, top - o.ptop, left - o.pleft);
    o.ptop = top;
    o.pleft = left;
    o.pheight = height;
    o.pwidth = width;
    placeElementOf(p, index);
    editing().pagedirty = true;
    documentEvents().objectChanged(index);
}

bool moveInTable(const std::vector<std::int16_t> &indices, bool toEnd)
{
    Page &p = page();
    std::vector<std::int16_t> order(static_cast<std::size_t>(objectCount(p)));
    std::iota(order.begin(), order.end(), std::int16_t{0});
    const auto before = order;
    std::stable_partition(order.begin(), order.end(), [&](std::int16_t index) {
        return (std::ranges::find(indices, index) != indices.end()) != toEnd;
    });
    if (order == before)
        return false;
    const auto objects = p.objects;
    const auto ctlindex = p.ctlindex;
    for (std::size_t i = 0; i < order.size(); ++i) {
        p.objects[i] = objects[static_cast<std::size_t>(order[i])];
        p.ctlindex[i] = ctlindex[static_cast<std::size_t>(order[i])];
    }
    const auto current = std::ranges::find(order, editing().curobj);
    if (current != order.end())
        editing().curobj = static_cast<std::int16_t>(current - order.begin());
    documentEvents().orderChanged();
    return true;
}

std::int16_t findObjectByControl(const Page &p, Kind kind, std::int16_t element)
{
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        if (p.objects[static_cast<std::size_t>(i)].kind == static_cast<std::int16_t>(kind) &&
            p.ctlindex[static_cast<std::size_t>(i)] == element)
            return i;
    return noObject;
}

ControlReference controlOfObject(const Page &p, std::int16_t index)
{
    if (!elementOf(p, index))
        return {};
    return {p.objects[static_cast<std::size_t>(index)].kind, p.ctlindex[static_cast<std::size_t>(index)]};
}

std::int16_t hitTestPage(const Page &p, int x, int y)
{
    std::int16_t found = noObject;
    for (std::int16_t i = objectCount(p); i-- > 0;) {
        const ObjectRecord &o = p.objects[static_cast<std::size_t>(i)];
        if (x < o.pleft || x >= o.pleft + o.pwidth || y < o.ptop || y >= o.ptop + o.pheight)
            continue;
        if (kindOf(o.kind) == Kind::HotSpot)
            return i;
        found = i;
    }
    return found;
}

} // namespace corvanta
