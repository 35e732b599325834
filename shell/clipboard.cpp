#include "shell/clipboard.h"

#include "canvas/selection.h"
#include "document/clip.h"
#include "document/events.h"
#include "document/media.h"
#include "document/objects.h"
#include "platform/asking.h"
#include "platform/clipboard.h"
#include "platform/text.h"
#include "json/page.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace corvanta {

namespace {

constexpr int furtherPaste = 10; // pixels

struct LastPaste {
    std::string clip;
    int times = 0;
};
LastPaste lastPaste;

ObjectRecord &object(std::int16_t index) { return page().objects[static_cast<std::size_t>(index)]; }

// Our own bytes, else those that a JSON text describes; empty for anything else.
std::string clipOfClipboard()
{
    if (!clipboard().get)
        return {};
    const ClipboardContent content = clipboard().get();
    if (!content.objects.empty() || content.text.find('{') == std::string::npos)
        return content.objects;
    try {
        const Page p = pageFromJson(parseJson(content.text));
        std::vector<std::int16_t> all(static_cast<std::size_t>(objectCount(p)));
        std::iota(all.begin(), all.end(), std::int16_t{0});
        return clipOf(p, all);
    } catch (const JsonError &) {
        return {};
    }
}

bool nameTaken(const std::string &name, std::int16_t before)
{
    for (std::int16_t i = 0; i < before; ++i)
        if (sameText(object(i).ctlname, name))
            return true;
    return false;
}

// "name" becomes "name2", "name2" becomes "name3", until no earlier object has it.
std::string freeName(const std::string &name, std::int16_t before)
{
    if (name.empty() || !nameTaken(name, before))
        return name;
    const std::string stem = name.substr(0, name.find_last_not_of("0123456789") + 1);
    for (int number = 2;; ++number)
        if (const std::string next = stem + std::to_string(number); !nameTaken(next, before))
            return next;
}

// Pasted objects get names of their own; a condition object that came with them stays theirs.
void rename(const std::vector<std::int16_t> &pasted)
{
    std::map<std::string, std::string> renamed;
    for (const std::int16_t index : pasted) {
        const std::string before = object(index).ctlname;
        object(index).ctlname = freeName(before, index);
        renamed.emplace(before, object(index).ctlname);
    }
    for (const std::int16_t index : pasted)
        if (const auto name = renamed.find(object(index).condobjname); name != renamed.end() && !name->first.empty())
            object(index).condobjname = name->second;
}

// Their tab order begins after the page's; objects that had none keep none.
void follow(const std::vector<std::int16_t> &pasted)
{
    std::int16_t last = 0;
    for (std::int16_t i = 0; i < pasted.front(); ++i)
        last = std::max(last, object(i).tbindex);
    std::vector<std::int16_t> inOrder;
    std::ranges::copy_if(pasted, std::back_inserter(inOrder), [](std::int16_t i) { return object(i).tbindex > 0; });
    std::ranges::stable_sort(inOrder, {}, [](std::int16_t i) { return object(i).tbindex; });
    if (last > INT16_MAX - static_cast<int>(inOrder.size()))
        return;
    for (const std::int16_t index : inOrder)
        object(index).tbindex = last == 0 ? object(index).tbindex : ++last;
}

Rect boundsOf(const std::vector<std::int16_t> &indices)
{
    Rect bounds = rectOf(object(indices.front()));
    for (const std::int16_t index : indices)
        bounds = united(bounds, rectOf(object(index)));
    return bounds;
}

// All together, kept on the page.
void moveTo(const std::vector<std::int16_t> &pasted, Point corner)
{
    const Rect bounds = boundsOf(pasted);
    const Size room = sizeOf(page());
    const int left = std::max(0, std::min(corner.x, room.width - bounds.width));
    const int top = std::max(0, std::min(corner.y, room.height - bounds.height));
    for (const std::int16_t index : pasted) {
        const Rect r = movedBy(rectOf(object(index)), left - bounds.left, top - bounds.top);
        setObjectGeometry(index, toPixels(r.top), toPixels(r.left), toPixels(r.height), toPixels(r.width));
    }
}

// One edit. Further is the distance in pixels from the places that the objects had.
void appendEdited(const std::string &clip, const std::string &act, int further, std::optional<Point> at)
{
    const CollectedMessages collected;
    const std::vector<std::int16_t> pasted = appendClip(page(), clip);
    if (pasted.empty())
        return;
    rename(pasted);
    follow(pasted);
    const Rect bounds = boundsOf(pasted);
    moveTo(pasted, at.value_or(Point{bounds.left + further, bounds.top + further}));
    for (const std::int16_t index : pasted)
        LoadObjectFiles(index);
    chooseObjects(pasted);
    pageEdited(act + " " + objectsName(page(), pasted));
}

} // namespace

std::vector<std::int16_t> chosenObjects()
{
    std::vector<std::int16_t> chosen;
    for (std::int16_t i = 0; i < objectCount(page()); ++i)
        if (editing().multcount > 0 ? inMultiSelection(i) : i == editing().curobj)
            chosen.push_back(i);
    return chosen;
}

bool mayPaste() { return clipboard().mayHoldObjects && clipboard().mayHoldObjects(); }

void copyObjects()
{
    const std::string clip = clipOf(page(), chosenObjects());
    const auto copied = pageOfClip(clip);
    if (!copied || !clipboard().put)
        return;
    clipboard().put({clip, printJson(pageJson(*copied))});
    lastPaste = {};
}

void cutObjects()
{
    const std::vector<std::int16_t> chosen = chosenObjects();
    if (chosen.empty() || !clipboard().put)
        return;
    copyObjects();
    const std::string act = "Cut " + objectsName(page(), chosen);
    for (auto index = chosen.rbegin(); index != chosen.rend(); ++index)
        deleteObject(*index);
    pageEdited(act);
}

void pasteObjects(std::optional<Point> at)
{
    const std::string clip = clipOfClipboard();
    lastPaste.times = clip == lastPaste.clip ? lastPaste.times + 1 : 0;
    lastPaste.clip = clip;
    appendEdited(clip, "Paste", furtherPaste * lastPaste.times, at);
}

void duplicateObjects() { appendEdited(clipOf(page(), chosenObjects()), "Duplicate", furtherPaste, {}); }

} // namespace corvanta
