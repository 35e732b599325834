#include "actions/action.h"
#include "document/events.h"
#include "document/media.h"
#include "document/objects.h"
#include "document/parse.h"
#include "document/tablist.h"
#include "objects/properties.h"
#include "platform/asking.h"
#include "platform/text.h"

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
    std::size_t number; // of the element
};

Target targetOf(std::int16_t index)
{
    Page &p = page();
    const auto i = static_cast<std::size_t>(index);
    return {index, *kindOf(p.objects[i].kind), p.objects[i], elementOf(p, index),
            static_cast<std::size_t>(p.ctlindex[i])};
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

void storeButton(const Target &t, const PropertyFields &f)
{
    t.element->Caption = trimmed(f.cap);
    t.element->BevelWidth = ParseInt16Clamped(f.bwidth);
    t.element->picture = nullptr;
    t.record.srcfile = trimmed(f.imgfn);
    page().butextras[t.number] = {f.viewcond, f.enacond, f.credits, f.auditmsg, f.balhelp};
}

void storeLabel(const Target &t, const PropertyFields &f)
{
    t.element->Caption = trimmed(f.cap);
    t.element->BackStyle = f.trans ? 0 : 1;
    t.element->BorderStyle = f.bstyle ? 1 : 0;
    setFlag(t.record, hoverFlag, f.hover);
}

void storeTextBox(const Target &t, const PropertyFields &f)
{
    t.record.srcfile = f.txtfn;
    page().tbxextras[t.number] = {static_cast<std::int16_t>(f.inptype), static_cast<std::int16_t>(f.sysobj - 1),
                                  ParseInt16Clamped(f.maxlen)};
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
    t.element->Caption = trimmed(f.cap);
    t.element->BorderStyle = f.bstyle ? 1 : 0;
    page().tkrextras[t.number] = ParseInt16Clamped(f.speed);
}

void storeKindFields(const Target &t, const PropertyFields &f)
{
    switch (t.kind) {
    case Kind::Button: return storeButton(t, f);
    case Kind::HotSpot: return setFlag(t.record, hoverFlag, f.hover);
    case Kind::ListBox: page().lbxextras[t.number] = f.listEntries; return;
    case Kind::Label: return storeLabel(t, f);
    case Kind::TextBox: storeTextBox(t, f); return storeEntryFlags(t, f);
    case Kind::Image: t.record.srcfile = trimmed(f.imgfn); return setFlag(t.record, hoverFlag, f.hover);
    case Kind::Ticker: return storeTicker(t, f);
    case Kind::Grid: return storeGrid(f);
    case Kind::ImageDb: t.record.srcfile = trimmed(f.imgpath); return setFlag(t.record, readonlyFlag, f.readonly);
    case Kind::ComboBox: page().cbxextras[t.number] = f.comboEntries; return;
    case Kind::File: t.record.srcfile = f.filepath; return storeEntryFlags(t, f);
    case Kind::Url: t.element->Caption = trimmed(f.url); return setFlag(t.record, hoverFlag, f.hover);
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

// An animation stands where its first frame stands.
void followFirstFrame(const Target &t, const std::vector<Frame> &before, const std::vector<Frame> &after)
{
    if (after.empty() || (!before.empty() && before[0].top == after[0].top && before[0].left == after[0].left))
        return;
    t.record.ptop = t.element->top = after[0].top;
    t.record.pleft = t.element->left = after[0].left;
}

void storeAnimation(const Target &t, const PropertyFields &f)
{
    const std::vector<Frame> before = framesOf(page(), t.index);
    AnimationExtras &x = page().aniextras[t.number];
    x.nplay = ParseInt16Clamped(f.nplay);
    x.frozen = f.frozen ? 1 : 0;
    x.strictime = f.strictime ? 1 : 0;
    t.record.srcfile = frameFiles(f.frames);
    storeFrames(page(), t.index, f.frames);
    followFirstFrame(t, before, f.frames);
    t.record.keyreq = trimmed(f.keyreq);
    t.record.sptext = trimmed(f.sptext);
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
