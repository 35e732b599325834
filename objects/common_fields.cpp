#include "objects/common_fields.h"

#include "actions/action.h"
#include "document/objects.h"
#include "document/parse.h"
#include "platform/asking.h"
#include "platform/text.h"

#include <algorithm>
#include <cmath>

namespace corvanta {

namespace {

constexpr const char *propertiesError = "Properties Error";

ObjectRecord &object(std::int16_t index) { return page().objects.at(static_cast<std::size_t>(index)); }

bool within(const std::string &text, int low, int high)
{
    const int value = ParseInt16Clamped(text);
    return value >= low && value <= high;
}

// The first placement field whose value does not lie on the page; none when all do.
const char *misplacedField(const CommonFields &f)
{
    const Page &p = page();
    if (!within(f.ptop, 0, p.bkght))
        return "Top";
    if (!within(f.pleft, 0, p.bkgwd))
        return "Left";
    if (!within(f.pheight, 1, p.bkght))
        return "Height";
    if (!within(f.pwidth, 1, p.bkgwd))
        return "Width";
    return nullptr;
}

void storeBinding(ObjectRecord &o, const CommonFields &f, bool bound)
{
    o.ctlname = bound ? changedText(f.ctlname, o.ctlname) : "";
    o.datacol = bound ? changedText(f.datacol, o.datacol) : "";
    o.updatekey = bound ? changedText(f.updatekey, o.updatekey) : "";
    o.condobjname = bound ? changedText(f.condobjname, o.condobjname) : "";
}

} // namespace

std::string invalidField(Kind kind, const char *field)
{
    return "Invalid " + lowerCase(kindRow(kind).displayName) + " \"" + field + "\".";
}

std::string propertiesCaption(Kind kind) { return std::string(kindRow(kind).displayName) + " Properties"; }

CommonFields LoadCommonProperties(std::int16_t index)
{
    const ObjectRecord &o = object(index);
    CommonFields f;
    f.ptop = std::to_string(o.ptop);
    f.pleft = std::to_string(o.pleft);
    f.pheight = std::to_string(o.pheight);
    f.pwidth = std::to_string(o.pwidth);
    f.keyreq = o.keyreq;
    f.sptext = o.sptext;
    f.alignment = o.alignment;
    f.tbindex = std::to_string(o.tbindex);
    f.ctlname = o.ctlname;
    f.datacol = o.datacol;
    f.updatekey = o.updatekey;
    f.condobjname = o.condobjname;
    return f;
}

Confirmation CheckPlacement(Kind kind, const CommonFields &fields)
{
    const char *field = misplacedField(fields);
    if (!field)
        return {true, ""};
    showExclamation(invalidField(kind, field), propertiesError);
    return {false, ""}; // the focus stays where it is
}

void StoreCommonProperties(std::int16_t index, const CommonFields &fields, std::string_view workingAction)
{
    ObjectRecord &o = object(index);
    const auto kind = kindOf(o.kind);
    setObjectGeometry(index, ParseInt16Clamped(fields.ptop), ParseInt16Clamped(fields.pleft),
                      ParseInt16Clamped(fields.pheight), ParseInt16Clamped(fields.pwidth));
    o.keyreq = changedText(fields.keyreq, o.keyreq);
    o.sptext = changedText(fields.sptext, o.sptext);
    o.actlist = withTopPage(workingAction);
    if (kind && kindRow(*kind).hasAlignment)
        o.alignment = static_cast<std::int16_t>(fields.alignment);
    if (kind && kindRow(*kind).hasTabIndex)
        o.tbindex = changedInt16(fields.tbindex, o.tbindex);
    storeBinding(o, fields, kind && kindRow(*kind).hasBinding);
    editing().pagedirty = true;
}

void setFlag(ObjectRecord &o, ObjectFlag flag, bool on)
{
    o.objflags = static_cast<std::int16_t>(on ? o.objflags | flag : o.objflags & ~flag);
}

} // namespace corvanta
