#include "converter/elements.h"

#include "converter/address.h"
#include "converter/css.h"
#include "converter/parts.h"
#include "converter/text.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr int widestBevel = 10; // pixels

std::string captionDeclarations(const Element &e)
{
    std::string css = cssFont(e.font);
    if (e.BackStyle != 0)
        css += "background:" + cssColour(e.BackColor) + ";";
    if (e.BorderStyle == 1)
        css += "border:1px solid #000;padding:0 2px;";
    return css;
}

std::string mnemonicCaption(const Template &t, const std::string &caption)
{
    const bool markup = (t.page.pgflags & replaceHtmlFlag) == 0;
    return captionWithMnemonics(caption, markup);
}

// The first object with a mnemonic has its key.
std::string accessKey(Template &t, const std::string &caption)
{
    const std::string key = mnemonicOf(caption, (t.page.pgflags & replaceHtmlFlag) == 0);
    const bool free = !key.empty() && t.accessKeys.insert(key).second;
    return free ? " accesskey=\"" + key + "\"" : std::string();
}

std::string buttonFace(const Element &e)
{
    const EdgeColours edge = edgeColours(e.BackColor);
    const std::string bevel = std::to_string(std::clamp<int>(e.BevelWidth, 0, widestBevel)) + "px ";
    return cssFont(e.font) + "background:" + cssColour(e.BackColor) + ";border:1px solid " + cssColour(edge.outline) +
           ";padding:" + bevel + ";box-shadow:inset -" + bevel + "-" + bevel + cssColour(edge.shadow) + ",inset " +
           bevel + bevel + cssColour(edge.light) + ";";
}

} // namespace

void writeElement(Template &t, std::int16_t index)
{
    const auto kind = kindOf(recordOf(t, index).kind);
    if (!kind)
        return;
    switch (*kind) {
    case Kind::Button: return writeButton(t, index);
    case Kind::HotSpot: return writeHotSpot(t, index);
    case Kind::ListBox: return writeListBox(t, index);
    case Kind::Label: return writeLabel(t, index);
    case Kind::TextBox: return writeTextBox(t, index);
    case Kind::Image: return writeImage(t, index);
    case Kind::Ticker: return writeTicker(t, index);
    case Kind::Animation: return writeAnimation(t, index);
    case Kind::Grid: return writeGrid(t, index);
    case Kind::ImageDb: return writeImageDb(t, index);
    case Kind::ComboBox: return writeComboBox(t, index);
    case Kind::File: return writeFile(t, index);
    case Kind::Url: return writeUrl(t, index);
    }
}

void writeButton(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const Element &e = t.page.but[elementNumber(t, index)];
    const std::string &help = t.page.butextras[elementNumber(t, index)].balhelp;
    const Target target = targetOf(o.actlist, t.folder);
    std::string content;
    if (const std::string image = mediaAddress(o.srcfile, t.folder); !image.empty())
        content += "<img" + attribute("src", image) + " alt=\"\">";
    if (isBlank(e.Caption))
        content += hiddenText(isBlank(help) ? spokenName(t, index, target) : help);
    else
        content += element("span", "", mnemonicCaption(t, e.Caption));
    place(t, index, buttonFace(e));
    const std::string attributes = attribute("id", idOf(index)) + " class=\"button\"" + accessKey(t, e.Caption) +
                                   optionalAttribute("title", isBlank(help) ? o.sptext : help);
    t.objects += control(t, index, target, "button", attributes, content) + "\n";
}

void writeHotSpot(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const Target target = targetOf(o.actlist, t.folder);
    place(t, index, "");
    const std::string attributes = attribute("id", idOf(index)) + optionalAttribute("title", o.sptext);
    t.objects += control(t, index, target, "a", attributes, hiddenText(spokenName(t, index, target))) + "\n";
}

void writeLabel(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const Element &e = t.page.lbl[elementNumber(t, index)];
    const Target target = targetOf(o.actlist, t.folder);
    const std::int16_t field = t.labels.fieldOf[static_cast<std::size_t>(index)];
    place(t, index, captionDeclarations(e) + cssAlignment(o.alignment));
    std::string attributes = attribute("id", idOf(index)) + " class=\"text\"" + optionalAttribute("title", o.sptext);
    std::string content = mnemonicCaption(t, e.Caption);
    if (target.kind != Target::Kind::None)
        content = isBlank(e.Caption) ? hiddenText(spokenName(t, index, target)) : element("span", "", content);
    if (field != noObject || target.kind != Target::Kind::None)
        attributes += accessKey(t, e.Caption);
    if (field != noObject)
        attributes += attribute("for", idOf(field, kindOf(recordOf(t, field).kind) == Kind::File ? "f" : ""));
    t.objects += control(t, index, target, field == noObject ? "div" : "label", attributes, content) + "\n";
}

void writeUrl(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const Element &e = t.page.url[elementNumber(t, index)];
    const bool bound = !isBlank(o.ctlname) && !isBlank(o.datacol);
    const std::string text = bound ? "@" + o.ctlname + "@" : e.Caption;
    const auto address = safeAddress(text);
    place(t, index, captionDeclarations(e) + cssAlignment(o.alignment));
    std::string attributes = attribute("id", idOf(index)) + " class=\"text\"" + optionalAttribute("title", o.sptext);
    if (address)
        attributes += attribute("href", *address);
    const std::string content = isBlank(text) ? hiddenText(spokenName(t, index, {})) : captionHtml(t, text);
    t.objects += element("a", attributes, content) + "\n";
}

} // namespace corvanta
