#include "compare/fields.h"

#include "actions/action.h"
#include "actions/action_kinds.h"
#include "compare/codecs.h"
#include "document/objects.h"

#include <algorithm>
#include <utility>

namespace corvanta {

namespace {

constexpr const char *columnsField = "gridcolumns", *versionField = "pgversion";

std::string titleOf(const Page &p, std::int16_t index)
{
    const ObjectRecord &o = p.objects[static_cast<std::size_t>(index)];
    const Element *e = elementOf(p, index);
    const std::string name = !o.ctlname.empty() || e == nullptr ? o.ctlname : e->Caption;
    return objectName(o.kind) + (name.empty() ? "" : " " + inQuotes(name));
}

ComparedObject objectApart(const Page &p, std::int16_t index)
{
    const auto i = static_cast<std::size_t>(index);
    const ObjectRecord &o = p.objects[i];
    FieldLister lister;
    commonFields(lister, o);
    if (const auto kind = kindOf(o.kind)) {
        const auto frames = kind == Kind::Animation ? framesOf(p, index) : std::vector<Frame>();
        kindTail(lister, p, *kind, p.ctlindex[i], frames);
    }
    return {o.kind, titleOf(p, index), std::move(lister.fields)};
}

bool appendParts(Page &p, const ComparedObject &parts)
{
    FieldTaker taker(parts.fields);
    ObjectRecord record;
    record.kind = parts.kind;
    commonFields(taker, record);
    const std::int16_t index = appendObject(p, std::move(record));
    const auto kind = kindOf(parts.kind);
    if (index == noObject || !kind)
        return index != noObject;
    std::vector<Frame> frames;
    kindTail(taker, p, *kind, p.ctlindex[static_cast<std::size_t>(index)], frames);
    if (kind == Kind::Animation)
        storeFrames(p, index, std::move(frames));
    return true;
}

constexpr std::pair<const char *, const char *> titles[] = {
    {"PageType", "page type"},
    {"dbconnect", "data source"},
    {"SelectStmt", "SELECT statement"},
    {"bkgfile", "background image"},
    {"sndfn", "sound"},
    {"bkgcol", "background colour"},
    {"bkght", "height"},
    {"bkgwd", "width"},
    {"pgflags", "flags"},
    {"pgcaption", "caption"},
    {"keyreq", "key required"},
    {columnsField, "grid columns"},
    {"srcfile", "files"},
    {"ptop", "top"},
    {"pleft", "left"},
    {"pheight", "height"},
    {"pwidth", "width"},
    {"sptext", "status panel text"},
    {"actlist", "action"},
    {"objflags", "flags"},
    {"ctlname", "name"},
    {"datacol", "data column"},
    {"updatekey", "update key"},
    {"tbindex", "tab index"},
    {"condobjname", "condition object"},
    {"Caption", "caption"},
    {"BackColor", "background colour"},
    {"BackStyle", "background"},
    {"BorderStyle", "border"},
    {"BevelWidth", "bevel width"},
    {"font.ForeColor", "text colour"},
    {"font.FontBold", "bold"},
    {"font.FontItalic", "italic"},
    {"font.FontName", "font"},
    {"font.FontSize", "font size"},
    {"font.FontStrikethru", "struck through"},
    {"font.FontUnderline", "underlined"},
    {"inptype", "input type"},
    {"sysobj", "system object"},
    {"maxlen", "maximum length"},
    {"strictime", "strict timing"},
    {"nplay", "times played"},
};

} // namespace

std::string inQuotes(const std::string &text) { return "\"" + text + "\""; }

std::string shownAction(const std::string &text)
{
    const Action decoded = decodeAction(text);
    const std::string caption = actionCaption(text);
    std::string shown = caption.empty() ? "action " + std::to_string(decoded.code) : caption;
    if (decoded.code == action::list)
        return shown + " (" + std::to_string(heldActionEntries(text).size()) + ")";
    for (const std::string &value : decoded.values)
        shown += " " + inQuotes(value);
    return shown;
}

ComparedPage takenApart(const Page &p)
{
    ComparedPage parts;
    FieldLister lister;
    headerFields(lister, p);
    std::erase_if(lister.fields, [](const Field &field) { return field.name == versionField; });
    std::string columns;
    ByteWriter(columns).gridColumns(p.gridcolumns);
    lister.fields.push_back({columnsField, std::move(columns), std::to_string(gridColumnCount(p))});
    parts.header = std::move(lister.fields);
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        parts.objects.push_back(objectApart(p, i));
    return parts;
}

Page putTogether(const ComparedPage &parts, std::vector<std::size_t> &refused)
{
    Page p;
    FieldTaker taker(parts.header);
    headerFields(taker, p);
    if (const Field *columns = fieldNamed(parts.header, columnsField)) {
        std::string_view bytes = columns->bytes;
        ByteReader(bytes, currentVersion).gridColumns(p.gridcolumns);
    }
    for (std::size_t i = 0; i < parts.objects.size(); ++i)
        if (!appendParts(p, parts.objects[i]))
            refused.push_back(i);
    return p;
}

const Field *fieldNamed(const Fields &fields, const std::string &name)
{
    const auto found = std::find_if(fields.begin(), fields.end(), [&](const Field &f) { return f.name == name; });
    return found == fields.end() ? nullptr : &*found;
}

std::string fieldTitle(const std::string &name)
{
    for (const auto &[field, title] : titles)
        if (name == field)
            return title;
    return name;
}

} // namespace corvanta
