#include "actions/action.h"
#include "document/events.h"
#include "document/media.h"
#include "document/objects.h"
#include "document/parse.h"
#include "document/tablist.h"
#include "objects/properties.h"
#include "platform/asking.h"
#include "platform/text.h"

#include <algorithm>
#include <tuple>

namespace corvanta {

namespace {

constexpr const char *propertiesError = "Properties Error";
constexpr int largestBevel = 10, largestSpeed = 10;

// An object that is being confirmed: its record, and its element unless it is drawn on the page.
struct Target {
    std::int16_t index;
    Kind kind;
    ObjectRecord &record;
    Element *element;
    std::size_t number;   // of the element
    PropertyFields shown; // when the dialog opened
};

Target targetOf(std::int16_t index)
{
    Page &p = page();
    const auto i = static_cast<std::size_t>(index);
    return {index,
            *kindOf(p.objects[i].kind),
            p.objects[i],
            elementOf(p, index),
            static_cast<std::size_t>(p.ctlindex[i]),
            LoadProperties(index)};
}

Confirmation inRange(const std::string &text, int low, int high, const char *message, const char *control)
{
    const int value = ParseInt16Clamped(text);
    if (value >= low && value <= high)
        return {true, ""};
    showExclamation(message, propertiesError);
    return {false, control};
}

// The checks of a kind besides its colour, in the kind's order.
Confirmation checkButton(const PropertyFields &f)
{
    const Confirmation placed = CheckPlacement(Kind::Button, f);
    if (!CheckFileName(f.imgfn, invalidFileName("image")))
        return {false, "imgfn"};
    return placed.stored ? inRange(f.bwidth, 0, largestBevel, "BevelWidth can only be between 0 and 10.", "bwidth")
                         : placed;
}

Confirmation checkImage(const PropertyFields &f)
{
    if (!CheckFileName(f.imgfn, invalidFileName("image")))
        return {false, "imgfn"};
    return CheckPlacement(Kind::Image, f);
}

Confirmation checkTicker(const PropertyFields &f)
{
    const Confirmation placed = CheckPlacement(Kind::Ticker, f);
    return placed.stored ? inRange(f.speed, 1, largestSpeed, "Speed can only be between 1 and 10.", "speed") : placed;
}

Confirmation checkFields(Kind kind, const PropertyFields &f)
{
    switch (kind) {
    case Kind::Button: return checkButton(f);
    case Kind::Image: return checkImage(f);
    case Kind::Ticker: return checkTicker(f);
    case Kind::Animation: return CheckAnimation(f);
    case Kind::HotSpot:
    case Kind::ListBox:
    case Kind::Label:
    case Kind::TextBox:
    case Kind::Grid:
    case Kind::ImageDb:
    case Kind::ComboBox:
    case Kind::File:
    case Kind::Url: return CheckPlacement(kind, f);
    }
    return {};
}

// A transparent label's colour cannot be typed.
Confirmation checkColour(Kind kind, const PropertyFields &f)
{
    const bool shown = hasColour(kind) && !(kind == Kind::Label && f.trans);
    return {!shown || CheckColourText(f.col, invalidField(kind, "BackColor")), "col"};
}

// A check box that was left alone keeps the number that it stands for.
void storeCheck(std::int16_t &stored, bool shown, bool checked, std::int16_t on, std::int16_t off)
{
    if (checked != shown)
        stored = checked ? on : off;
}

void storeButton(const Target &t, const PropertyFields &f)
{
    t.element->Caption = changedText(f.cap, t.element->Caption);
    t.element->BevelWidth = changedInt16(f.bwidth, t.element->BevelWidth);
    t.element->picture = nullptr;
    t.record.srcfile = changedText(f.imgfn, t.record.srcfile);
    page().butextras[t.number] = {f.viewcond, f.enacond, f.credits, f.auditmsg, f.balhelp};
}

void storeLabel(const Target &t, const PropertyFields &f)
{
    t.element->Caption = changedText(f.cap, t.element->Caption);
    storeCheck(t.element->BackStyle, t.shown.trans, f.trans, 0, 1);
    storeCheck(t.element->BorderStyle, t.shown.bstyle, f.bstyle, 1, 0);
    setFlag(t.record, hoverFlag, f.hover);
}

void storeTextBox(const Target &t, const PropertyFields &f)
{
    TextBoxExtras &x = page().tbxextras[t.number];
    t.record.srcfile = f.txtfn;
    x = {static_cast<std::int16_t>(f.inptype), static_cast<std::int16_t>(f.sysobj - 1),
         changedInt16(f.maxlen, x.maxlen)};
    setFlag(t.record, multiFlag, f.multi);
}

// The flags that the data-entry kinds share.
void storeEntryFlags(const Target &t, const PropertyFields &f)
{
    setFlag(t.record, readonlyFlag, f.readonly);
    setFlag(t.record, exludesqlFlag, f.exludesql);
    setFlag(t.record, invisibleFlag, f.invisible);
}

void storeGrid(const PropertyFields &f)
{
    page().gridcolumns = f.columns;
    page().gridcolumns.emplace_back();
}

void storeTicker(const Target &t, const PropertyFields &f)
{
    std::int16_t &speed = page().tkrextras[t.number];
    t.element->Caption = changedText(f.cap, t.element->Caption);
    storeCheck(t.element->BorderStyle, t.shown.bstyle, f.bstyle, 1, 0);
    speed = changedInt16(f.speed, speed);
}

void storeKindFields(const Target &t, const PropertyFields &f)
{
    switch (t.kind) {
    case Kind::Button: return storeButton(t, f);
    case Kind::HotSpot: return setFlag(t.record, hoverFlag, f.hover);
    case Kind::ListBox: page().lbxextras[t.number] = f.listEntries; return;
    case Kind::Label: return storeLabel(t, f);
    case Kind::TextBox: storeTextBox(t, f); return storeEntryFlags(t, f);
    case Kind::Image:
        t.record.srcfile = changedText(f.imgfn, t.record.srcfile);
        return setFlag(t.record, hoverFlag, f.hover);
    case Kind::Ticker: return storeTicker(t, f);
    case Kind::Grid: return storeGrid(f);
    case Kind::ImageDb:
        t.record.srcfile = changedText(f.imgpath, t.record.srcfile);
        return setFlag(t.record, readonlyFlag, f.readonly);
    case Kind::ComboBox: page().cbxextras[t.number] = f.comboEntries; return;
    case Kind::File: t.record.srcfile = f.filepath; return storeEntryFlags(t, f);
    case Kind::Url:
        t.element->Caption = changedText(f.url, t.element->Caption);
        return setFlag(t.record, hoverFlag, f.hover);
    case Kind::Animation: return;
    }
}

// Colour and font of the element.
void storeAppearance(const Target &t, const PropertyFields &f)
{
    if (!t.element)
        return;
    t.element->font = f.font;
    if (hasColour(t.kind))
        t.element->BackColor = changedColour(f.col, t.element->BackColor);
    t.element->alignment = t.record.alignment;
}

std::string frameFiles(const std::vector<Frame> &frames)
{
    std::string files;
    int item = 0;
    for (const Frame &frame : frames) {
        files = setFieldAt(files, item++, frame.image);
        files = setFieldAt(files, item++, frame.sound);
    }
    return files;
}

bool sameFrame(const Frame &a, const Frame &b)
{
    return std::tie(a.top, a.left, a.duration, a.image, a.sound) ==
           std::tie(b.top, b.left, b.duration, b.image, b.sound);
}

// An animation stands where its first frame stands.
void followFirstFrame(const Target &t, const std::vector<Frame> &before, const std::vector<Frame> &after)
{
    if (after.empty() || (!before.empty() && before[0].top == after[0].top && before[0].left == after[0].left))
        return;
    t.record.ptop = t.element->top = after[0].top;
    t.record.pleft = t.element->left = after[0].left;
}

void storeAllFrames(const Target &t, const std::vector<Frame> &frames)
{
    if (std::ranges::equal(frames, t.shown.frames, sameFrame))
        return;
    t.record.srcfile = frameFiles(frames);
    storeFrames(page(), t.index, frames);
    followFirstFrame(t, t.shown.frames, frames);
}

void storeAnimation(const Target &t, const PropertyFields &f)
{
    AnimationExtras &x = page().aniextras[t.number];
    x.nplay = changedInt16(f.nplay, x.nplay);
    storeCheck(x.frozen, t.shown.frozen, f.frozen, 1, 0);
    storeCheck(x.strictime, t.shown.strictime, f.strictime, 1, 0);
    storeAllFrames(t, f.frames);
    t.record.keyreq = changedText(f.keyreq, t.record.keyreq);
    t.record.sptext = changedText(f.sptext, t.record.sptext);
    t.record.actlist = withTopPage(f.action);
    setFlag(t.record, hoverFlag, f.hover);
}

} // namespace

Confirmation CheckProperties(std::int16_t index, const PropertyFields &fields)
{
    const auto kind =
        hasObject(page(), index) ? kindOf(page().objects[static_cast<std::size_t>(index)].kind) : std::nullopt;
    if (!kind)
        return {};
    const Confirmation check = checkFields(*kind, fields);
    return check.stored ? checkColour(*kind, fields) : check;
}

void StoreProperties(std::int16_t index, const PropertyFields &fields)
{
    const CollectedMessages collected; // an animation names many files
    const Target t = targetOf(index);
    if (t.kind == Kind::Animation) {
        storeAnimation(t, fields);
    } else {
        StoreCommonProperties(index, fields, fields.action);
        storeAppearance(t, fields);
        storeKindFields(t, fields);
    }
    LoadObjectFiles(index);
}

Confirmation ConfirmProperties(std::int16_t index, const PropertyFields &fields)
{
    const Confirmation check = CheckProperties(index, fields);
    if (!check.stored)
        return check;
    StoreProperties(index, fields);
    pageEdited(objectName(page().objects[static_cast<std::size_t>(index)].kind) + " properties");
    return check;
}

} // namespace corvanta
