#include "converter/parts.h"

#include "converter/css.h"
#include "converter/text.h"
#include "platform/text.h"

#include <algorithm>

namespace corvanta {

namespace {

// Title and text of a message, opened by its button and closed by its own, without a script: modal where the browser
// knows commands, else as a popover.
std::string dialog(const Template &t, const std::string &id, const std::string &title, const Target &target)
{
    std::string heading = oneLine(target.title, 200);
    if (heading.empty())
        heading = oneLine(t.page.pgcaption, 200);
    if (heading.empty())
        heading = target.caption;
    std::string content = element("h2", attribute("id", title), escapedUtf8(heading));
    if (!isBlank(target.text))
        content += element("p", "", escaped(target.text));
    const std::string close = " type=\"button\" command=\"close\"" + attribute("commandfor", id) +
                              attribute("popovertarget", id) + " popovertargetaction=\"hide\"";
    content += element("button", close, "OK");
    return element("dialog", attribute("id", id) + " popover" + attribute("aria-labelledby", title), content) + "\n";
}

} // namespace

const ObjectRecord &recordOf(const Template &t, std::int16_t index)
{
    return t.page.objects[static_cast<std::size_t>(index)];
}

std::size_t elementNumber(const Template &t, std::int16_t index)
{
    return static_cast<std::size_t>(t.page.ctlindex[static_cast<std::size_t>(index)]);
}

std::string idOf(std::int16_t index, std::string_view part) { return "o" + std::to_string(index) + std::string(part); }

std::string element(std::string_view tag, std::string_view attributes, std::string_view content)
{
    const std::string name(tag);
    return "<" + name + std::string(attributes) + ">" + std::string(content) + "</" + name + ">";
}

namespace {

// Pictures lie below the controls, as on the canvas.
int layer(const Template &t, std::int16_t index)
{
    const auto kind = kindOf(recordOf(t, index).kind);
    const bool below = kind == Kind::Image || kind == Kind::ImageDb;
    return index + 1 + (below ? 0 : objectCount(t.page));
}

// An object may be smaller than the edges of its kind.
std::string withoutEdges(const ObjectRecord &o)
{
    constexpr int thinnestPadding = 8, thinnestBorder = 2; // pixels
    const int size = std::min(o.pwidth, o.pheight);
    return std::string(size < thinnestPadding ? "padding:0;" : "") + (size < thinnestBorder ? "border-width:0;" : "");
}

} // namespace

void place(Template &t, std::int16_t index, std::string_view declarations)
{
    const ObjectRecord &o = recordOf(t, index);
    const auto pixels = [](const char *property, int value) {
        return property + std::to_string(value) + (value == 0 ? ";" : "px;");
    };
    t.style += "#" + idOf(index) + "{" + pixels("left:", o.pleft) + pixels("top:", o.ptop) +
               pixels("width:", std::max<int>(o.pwidth, 0)) + pixels("height:", std::max<int>(o.pheight, 0)) +
               "z-index:" + std::to_string(layer(t, index)) + ";" + std::string(declarations) + withoutEdges(o);
    if (o.has(hoverFlag))
        t.style += "cursor:pointer;";
    t.style += "}\n";
}

std::string captionHtml(const Template &t, std::string_view caption)
{
    return (t.page.pgflags & replaceHtmlFlag) != 0 ? escaped(caption) : cleanText(caption);
}

std::string hiddenText(std::string_view bytes) { return element("span", " class=\"hidden\"", escaped(bytes)); }

std::string spokenName(const Template &t, std::int16_t index, const Target &target)
{
    const ObjectRecord &o = recordOf(t, index);
    for (const std::string &name : {o.sptext, target.title, target.caption})
        if (!isBlank(name))
            return name;
    return std::string(kindRow(*kindOf(o.kind)).displayName) + " " + std::to_string(index + 1);
}

std::string labelling(const Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const std::int16_t label = t.labels.labelOf[static_cast<std::size_t>(index)];
    if (label != noObject)
        return t.labels.fieldOf[static_cast<std::size_t>(label)] == index ? std::string()
                                                                          : attribute("aria-labelledby", idOf(label));
    if (isBlank(o.sptext) && !isBlank(o.ctlname))
        return attribute("aria-label", o.ctlname);
    return attribute("aria-label", spokenName(t, index, {}));
}

std::string control(Template &t, std::int16_t index, const Target &target, std::string_view inert,
                    std::string_view attributes, std::string_view content, std::string_view entry)
{
    const std::string common(attributes), part = entry.empty() ? std::string() : "e" + std::string(entry);
    switch (target.kind) {
    case Target::Kind::None: return element(inert, common + (inert == "button" ? " type=\"button\"" : ""), content);
    case Target::Kind::Link: return element("a", common + attribute("href", target.address), content);
    case Target::Kind::Reset: return element("button", common + " type=\"reset\"", content);
    case Target::Kind::Submit:
        t.submits = true;
        return element("button",
                       common + " type=\"submit\" name=\"object\"" +
                           attribute("value", std::to_string(index) + (entry.empty() ? "" : ":") + std::string(entry)) +
                           (target.sendsValues ? "" : " formnovalidate"),
                       content);
    case Target::Kind::Message:
        t.dialogs += dialog(t, idOf(index, part + "m"), idOf(index, part + "t"), target);
        return element("button",
                       common + " type=\"button\" command=\"show-modal\"" +
                           attribute("commandfor", idOf(index, part + "m")) +
                           attribute("popovertarget", idOf(index, part + "m")),
                       content);
    }
    return {};
}

} // namespace corvanta
