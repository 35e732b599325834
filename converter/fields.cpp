#include "converter/address.h"
#include "converter/css.h"
#include "converter/elements.h"
#include "converter/host_names.h"
#include "converter/parts.h"
#include "converter/text.h"
#include "platform/host_files.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr std::size_t textFileLimit = 32650; // bytes

constexpr int sunkenEdges = 4;                                         // pixels above and below a list together
constexpr std::int16_t userId = 0, password = 1, age = 2, credits = 4; // system objects

std::string fieldDeclarations(const ObjectRecord &o, const Element &e)
{
    return cssFont(e.font) + "background-color:" + cssColour(e.BackColor) + ";" + cssAlignment(o.alignment);
}

std::string listDeclarations(const ObjectRecord &o, const Element &e)
{
    return fieldDeclarations(o, e) + "line-height:" + std::to_string(lineHeight(e.font) + 1) + "px;";
}

// id, form name and label of a field.
std::string fieldAttributes(const Template &t, std::int16_t index, std::string_view part = {},
                            std::string_view kind = "field")
{
    return attribute("id", idOf(index, part)) + attribute("class", kind) + " name=\"" +
           escapedUtf8(t.names[static_cast<std::size_t>(index)]) + "\"" + labelling(t, index) +
           optionalAttribute("title", recordOf(t, index).sptext);
}

constexpr int mostLines = 200;

// Numbers, dates and times are text fields: so they can hold a placeholder, and the record's value in the database's
// form.
struct InputType {
    const char *type;
    const char *more; // further attributes
    bool anyText = false;
};

constexpr InputType integer{"text", R"( inputmode="numeric" pattern=" *[+\-]?[0-9]+ *" placeholder="0")"},
    natural{"text", R"( inputmode="numeric" pattern=" *[0-9]+ *" placeholder="0")"},
    real{"text",
         R"( inputmode="decimal" pattern=" *[+\-]?[0-9.,]*[0-9][0-9.,]*([eE][+\-]?[0-9]+)? *" placeholder="0.00")"},
    money{"text", R"( inputmode="decimal" pattern="[^A-Za-z]*[0-9][^A-Za-z]*" placeholder="0.00")"},
    date{
        "text",
        R"( inputmode="text" pattern=" *[0-9]{1,4}[.\-\/][0-9]{1,2}[.\-\/][0-9]{1,4}([ T].*)?" placeholder="YYYY-MM-DD")"},
    timeOfDay{
        "text",
        R"( inputmode="text" pattern="(.*[ T])?[0-9]{1,2}:[0-9]{2}(:[0-9]{2}([.,][0-9]+)?)? *([AaPp][Mm])?" placeholder="HH:MM")"};

InputType inputType(const TextBoxExtras &x)
{
    if (x.sysobj == password)
        return {"password", " autocomplete=\"current-password\""};
    if (x.sysobj == userId)
        return {"text", " autocomplete=\"username\"", true};
    if (x.sysobj == age)
        return natural;
    if (x.sysobj == credits)
        return real;
    switch (x.inptype) {
    case 1: return integer;
    case 2:
    case 6: return real;
    case 3: return date;
    case 4: return timeOfDay;
    case 5: return money;
    default: return {"text", "", true};
    }
}

// A bound field has the placeholder of its value, whatever the page's type.
std::string placeholder(const ObjectRecord &o)
{
    return isBlank(o.datacol) || isBlank(o.ctlname) ? std::string() : "@" + o.ctlname + "@";
}

// The text of the field's file in the page directory; what cannot be read is empty.
std::string fileText(const Template &t, std::int16_t index)
{
    const std::string name = nameAlone(recordOf(t, index).srcfile);
    if (t.folder.empty() || name.empty())
        return t.page.tbx[elementNumber(t, index)].Caption;
    const std::filesystem::path file = fileIn(t.folder, name);
    if (!liesIn(t.folder, file)) // a link that leads out of the directory
        return {};
    std::string text = readHostFile(file, textFileLimit).bytes;
    std::erase(text, '\x1A');
    return text;
}

// The placeholder, else the text of the field's file; a password never has a value.
std::string textBoxValue(const Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    if (t.page.tbxextras[elementNumber(t, index)].sysobj == password)
        return {};
    const std::string value = placeholder(o);
    return value.empty() && !isBlank(o.srcfile) ? fileText(t, index) : value;
}

std::string lengthAndLock(const ObjectRecord &o, const TextBoxExtras &x)
{
    std::string attributes;
    if (x.maxlen > 0)
        attributes += attribute("maxlength", x.maxlen);
    if (o.has(readonlyFlag))
        attributes += " readonly";
    return attributes;
}

std::string hiddenField(const Template &t, std::int16_t index, const std::string &value)
{
    return "<input type=\"hidden\"" + attribute("id", idOf(index)) + " name=\"" +
           escapedUtf8(t.names[static_cast<std::size_t>(index)]) + "\"" + optionalAttribute("value", value) + ">\n";
}

int visibleLines(const ObjectRecord &o, const Element &e)
{
    const double lines = (o.pheight - sunkenEdges) / (lineHeight(e.font) + 1.0);
    return static_cast<int>(std::clamp<double>(lines, 2, mostLines));
}

// What an entry of a list of links and buttons shows.
std::string entryItem(Template &t, std::int16_t index, std::size_t number, const ListBoxEntry &entry)
{
    const Target target = targetOf(entry.action, t.folder);
    const bool acts = target.kind != Target::Kind::None;
    std::string content = isBlank(entry.text) ? "&nbsp;" : escaped(entry.text);
    if (acts && isBlank(entry.text))
        content += hiddenText(spokenName(t, index, target));
    return element("li", "", control(t, index, target, "span", "", content, std::to_string(number)));
}

void writeActingList(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const auto &entries = t.page.lbxextras[elementNumber(t, index)];
    std::string items;
    for (std::size_t i = 0; i < entries.size(); ++i)
        items += entryItem(t, index, i, entries[i]);
    place(t, index, listDeclarations(o, t.page.lbx[elementNumber(t, index)]));
    t.objects += element("div",
                         attribute("id", idOf(index)) + " class=\"field list\" role=\"group\"" + labelling(t, index) +
                             optionalAttribute("title", o.sptext),
                         element("ul", "", items)) +
                 "\n";
}

} // namespace

void writeTextBox(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const TextBoxExtras &x = t.page.tbxextras[elementNumber(t, index)];
    const InputType type = inputType(x);
    const std::string value = textBoxValue(t, index);
    if (o.has(invisibleFlag)) {
        t.objects += hiddenField(t, index, value);
        return;
    }
    place(t, index, fieldDeclarations(o, t.page.tbx[elementNumber(t, index)]));
    const std::string attributes = fieldAttributes(t, index) + lengthAndLock(o, x);
    if (o.has(multiFlag) && type.anyText)
        t.objects += element("textarea", attributes, escaped(value)) + "\n";
    else
        t.objects += "<input" + attribute("type", type.type) + attributes + type.more +
                     optionalAttribute("value", value) + ">\n";
}

void writeComboBox(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const std::string list = idOf(index, "l");
    std::string options;
    for (const std::string &entry : t.page.cbxextras[elementNumber(t, index)])
        if (!isBlank(entry))
            options += element("option", attribute("value", entry), "");
    place(t, index, fieldDeclarations(o, t.page.cbx[elementNumber(t, index)]));
    t.objects += "<input type=\"text\"" + fieldAttributes(t, index, {}, "field combo") +
                 optionalAttribute("value", placeholder(o));
    t.objects += options.empty()
                     ? ">\n"
                     : attribute("list", list) + ">" + element("datalist", attribute("id", list), options) + "\n";
}

void writeListBox(Template &t, std::int16_t index)
{
    if (actsByEntry(t.page, index))
        return writeActingList(t, index);
    const ObjectRecord &o = recordOf(t, index);
    const Element &e = t.page.lbx[elementNumber(t, index)];
    const auto &entries = t.page.lbxextras[elementNumber(t, index)];
    std::string options;
    for (std::size_t i = 0; i < entries.size(); ++i)
        options += element("option", attribute("value", static_cast<long>(i)),
                           isBlank(entries[i].text) ? "&nbsp;" : escaped(entries[i].text));
    place(t, index, listDeclarations(o, e));
    t.objects += element("select", fieldAttributes(t, index) + attribute("size", visibleLines(o, e)), options) + "\n";
}

void writeFile(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const Target target = targetOf(o.actlist, t.folder);
    const bool alone = target.kind == Target::Kind::None;
    std::string input =
        "<input type=\"file\"" + fieldAttributes(t, index, "f") + (o.has(readonlyFlag) ? " disabled>" : ">");
    if (o.has(invisibleFlag)) {
        t.objects += element("div", attribute("id", idOf(index)) + " hidden", input) + "\n";
        return;
    }
    place(t, index, fieldDeclarations(o, t.page.fbx[elementNumber(t, index)]));
    if (!alone)
        input += control(t, index, target, "span", "",
                         escaped(isBlank(target.caption) ? spokenName(t, index, target) : target.caption));
    t.objects += element("div", attribute("id", idOf(index)) + " class=\"file\"", input) + "\n";
}

} // namespace corvanta
