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
constexpr double lineHeight = 1.2;                                     // of a font's pixels
constexpr std::int16_t userId = 0, password = 1, age = 2, credits = 4; // system objects

std::string fieldDeclarations(const ObjectRecord &o, const Element &e)
{
    return cssFont(e.font) + "background:" + cssColour(e.BackColor) + ";" + cssAlignment(o.alignment);
}

// id, form name and label of a field.
std::string fieldAttributes(const Template &t, std::int16_t index, std::string_view part = {})
{
    return attribute("id", idOf(index, part)) + " class=\"field\" name=\"" +
           escapedUtf8(t.names[static_cast<std::size_t>(index)]) + "\"" + labelling(t, index) +
           optionalAttribute("title", recordOf(t, index).sptext);
}

struct InputType {
    const char *type;
    const char *more; // further attributes
    bool isText;      // holds any text, so that it can have a length and a placeholder
};

InputType inputType(const TextBoxExtras &x)
{
    if (x.sysobj == password)
        return {"password", " autocomplete=\"current-password\"", true};
    if (x.sysobj == userId)
        return {"text", " autocomplete=\"username\"", true};
    if (x.sysobj == age)
        return {"number", " min=\"0\"", false};
    if (x.sysobj == credits)
        return {"number", " step=\"any\"", false};
    switch (x.inptype) {
    case 1: return {"number", " step=\"1\"", false};
    case 2:
    case 5:
    case 6: return {"number", " step=\"any\"", false};
    case 3: return {"date", "", false};
    case 4: return {"time", "", false};
    default: return {"text", "", true};
    }
}

// Pages that show a record have the placeholder of its value.
std::string placeholder(const Template &t, const ObjectRecord &o)
{
    const auto type = static_cast<PageKind>(t.page.PageType);
    const bool showsRecord = type == PageKind::Record || type == PageKind::QueryView;
    return showsRecord && !isBlank(o.datacol) && !isBlank(o.ctlname) ? "@" + o.ctlname + "@" : std::string();
}

// The text of the field's file in the page directory; what cannot be read is empty.
std::string fileText(const Template &t, std::int16_t index)
{
    const std::string name = nameAlone(recordOf(t, index).srcfile);
    if (t.folder.empty() || name.empty())
        return t.page.tbx[elementNumber(t, index)].Caption;
    std::string text = readHostFile(fileIn(t.folder, name), textFileLimit).bytes;
    std::erase(text, '\x1A');
    return text;
}

// The placeholder, else the text of the field's file; a password never has a value.
std::string textBoxValue(const Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    if (t.page.tbxextras[elementNumber(t, index)].sysobj == password)
        return {};
    const std::string value = placeholder(t, o);
    return value.empty() && !isBlank(o.srcfile) ? fileText(t, index) : value;
}

std::string lengthAndLock(const ObjectRecord &o, const TextBoxExtras &x, bool isText)
{
    std::string attributes;
    if (isText && x.maxlen > 0)
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
    return std::max(2, static_cast<int>((o.pheight - sunkenEdges) / (fontPixels(e.font) * lineHeight)));
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
    const std::string attributes = fieldAttributes(t, index) + lengthAndLock(o, x, type.isText);
    if (o.has(multiFlag) && type.isText && x.sysobj != password)
        t.objects += element("textarea", attributes, escaped(value)) + "\n";
    else
        t.objects += "<input" + attribute("type", type.type) + attributes + type.more +
                     (type.isText ? optionalAttribute("value", value) : std::string()) + ">\n";
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
    t.objects += "<input type=\"text\"" + fieldAttributes(t, index) + optionalAttribute("value", placeholder(t, o));
    t.objects += options.empty()
                     ? ">\n"
                     : attribute("list", list) + ">" + element("datalist", attribute("id", list), options) + "\n";
}

void writeListBox(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const Element &e = t.page.lbx[elementNumber(t, index)];
    const auto &entries = t.page.lbxextras[elementNumber(t, index)];
    std::string options;
    for (std::size_t i = 0; i < entries.size(); ++i)
        options += element("option", attribute("value", static_cast<long>(i)),
                           isBlank(entries[i].text) ? "&nbsp;" : escaped(entries[i].text));
    place(t, index, fieldDeclarations(o, e));
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
