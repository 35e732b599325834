#include "converter/address.h"
#include "converter/css.h"
#include "converter/elements.h"
#include "converter/html_template.h"
#include "converter/parts.h"
#include "converter/text.h"
#include "platform/codepage.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr std::size_t titleLength = 70; // characters that tabs and search engines show, references written out

// Rules by class come before those by id, which differ from object to object.
constexpr const char *commonRules =
    R"css(:root{color-scheme:light;background:#fff}
body{margin:0;direction:ltr}
.page>*,.page button{box-sizing:border-box;margin:0;padding:0;border:0;border-radius:0;overflow:hidden;background:none;color:inherit;font:inherit;text-align:inherit}
.page>*{position:absolute}
.page>.field,.page>.file,.page>.grid{padding:1px;border:1px solid;border-color:#808080 #fff #fff #808080;box-shadow:inset -1px -1px #dfdfdf,inset 1px 1px #404040}
.page>.field{padding:1px 3px;resize:none}
.page>select.field{padding:1px}
.field option{min-height:0;padding:0 2px;line-height:inherit}
.page>.combo{padding-right:20px;background-repeat:no-repeat;background-position:right 6px top calc(50% + 1px),right 3px top 3px,right 3px top 2px,right 1px top 1px;background-size:7px 4px,13px calc(100% - 6px),14px calc(100% - 5px),17px calc(100% - 2px);background-image:url("data:image/svg+xml,%3Csvg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 7 4'%3E%3Cpath d='M0 0h7v1h-1v1h-1v1h-1v1h-1v-1h-1v-1h-1v-1h-1z'/%3E%3C/svg%3E"),linear-gradient(#c0c0c0,#c0c0c0),linear-gradient(#f6f6f6,#f6f6f6),linear-gradient(#777,#777)}
.combo::-webkit-calendar-picker-indicator{margin:0 -17px 0 0;opacity:0}
.page>.text{white-space:pre-wrap}
.page>button.text{display:flex;flex-direction:column;align-items:stretch;justify-content:flex-start}
.page>.button{border-radius:2px;display:flex;flex-flow:column wrap;gap:4px;align-items:center;align-content:center;justify-content:center;text-align:center;white-space:pre-wrap;cursor:pointer}
.page>.file{display:flex}
.file input{flex:1;min-width:0;font:inherit}
.file button{padding:0 4px;border:1px outset #c0c0c0;background:#c0c0c0;color:#000;cursor:pointer}
.page>.grid{overflow:auto}
.grid table{border-spacing:0;table-layout:fixed}
.grid th,.grid td{box-sizing:border-box;padding:2px 3px 0;overflow:hidden;vertical-align:top;white-space:nowrap;border:0 solid #c0c0c0;border-width:0 1px 1px 0;text-align:start;font-weight:inherit}
.grid thead{background:#c0c0c0;color:#000}
.grid thead tr>*{border-width:0;padding:2px 4px 0;box-shadow:inset -1px -1px #777,inset 1px 1px #f6f6f6}
.page>.list{overflow:auto;padding:1px}
.list ul{margin:0;padding:0;list-style:none}
.list li>*{display:block;box-sizing:border-box;width:100%;padding:0 2px;color:inherit;text-decoration:inherit;white-space:pre;cursor:pointer}
.list li>span{cursor:default}
.list li>:focus-visible{outline-offset:-2px}
.whole{display:block;width:100%;height:100%}
.ticker span{position:absolute;top:0;left:100%;white-space:pre;animation:ticker 10s linear infinite}
.ticker:hover span,.ticker:focus span,.animation:hover img,.animation:focus img{animation-play-state:paused}
.animation[tabindex]:focus-visible{outline:2px solid #000}
.animation img{position:absolute}
dialog p{white-space:pre-wrap}
.hidden{position:absolute;width:1px;height:1px;overflow:hidden;clip-path:inset(50%);white-space:nowrap}
.send:not(:focus){clip-path:inset(50%)}
@keyframes ticker{to{transform:translateX(var(--way))}}
)css";

// The last rules, stronger than those by id.
constexpr const char *stillRules =
    R"css(@media (prefers-reduced-motion:reduce),print{
.page .ticker span{position:static;animation:none;white-space:pre-wrap}
.page .ticker{overflow:auto}
.page .animation img{animation:none!important}
}
@media print{
.page,.page *{print-color-adjust:exact;-webkit-print-color-adjust:exact}
audio,.send{display:none}
}
)css";

// The language of the code page's texts where it has one, else that of the few words of the converter.
const char *language()
{
    switch (codePageNumber()) {
    case 874: return "th";
    case 1253: return "el";
    case 1254: return "tr";
    case 1255: return "he";
    case 1256: return "ar";
    case 1258: return "vi";
    default: return "en";
    }
}

const char *typeName(const Page &p)
{
    switch (static_cast<PageKind>(p.PageType)) {
    case PageKind::Query: return "Query";
    case PageKind::Menu: return "Menu";
    case PageKind::Record: return "Record";
    case PageKind::HitList: return "Hit List";
    case PageKind::QueryView: return "Query View";
    }
    return "Page";
}

std::string heading(const Page &p, std::size_t characters)
{
    const std::string caption = oneLine(p.pgcaption, characters);
    return escapedUtf8(caption.empty() ? typeName(p) : caption);
}

std::size_t characterCount(const std::string &utf8)
{
    return static_cast<std::size_t>(
        std::count_if(utf8.begin(), utf8.end(), [](unsigned char c) { return (c & 0xC0) != 0x80; }));
}

std::string title(const Page &p)
{
    std::size_t characters = titleLength;
    while (characterCount(heading(p, characters)) > titleLength)
        --characters;
    return heading(p, characters);
}

std::string pageRule(const Template &t)
{
    const Page &p = t.page;
    std::string rule = (p.pgflags & rtlFlag) != 0 ? ".page,dialog{direction:rtl}\n" : "";
    rule += ".page{position:absolute;left:0;top:0;width:" + std::to_string(std::max<int>(p.bkgwd, 0)) +
            "px;height:" + std::to_string(std::max<int>(p.bkght, 0)) + "px;background:" + cssColour(p.bkgcol);
    if (const std::string image = mediaAddress(p.bkgfile, t.folder); !image.empty())
        rule += " url(\"" + image + "\") no-repeat";
    return rule + "}\n";
}

std::string belowPage(const Page &p)
{
    return ".below{position:absolute;left:0;top:" + std::to_string(std::max<int>(p.bkght, 0)) + "px}\n";
}

// A page's sound waits for the visitor below the page.
std::string sound(const Template &t)
{
    const std::string address = mediaAddress(t.page.sndfn, t.folder);
    if (address.empty())
        return {};
    return element("audio",
                   " class=\"below\" controls preload=\"none\"" + attribute("src", address) +
                       attribute("aria-label", nameAlone(t.page.sndfn)),
                   "") +
           "\n";
}

bool sendsFiles(const Page &p)
{
    return std::any_of(p.objects.begin(), p.objects.end(),
                       [](const ObjectRecord &o) { return kindOf(o.kind) == Kind::File; });
}

std::string form(const Template &t)
{
    // Enter in a field would press the first button: this one, which does nothing.
    std::string content = "\n<button type=\"submit\" name=\"object\" value=\"\" disabled hidden>No action</button>\n"
                          "<div class=\"page\">\n" +
                          t.objects + "</div>\n";
    if (!t.submits)
        content += "<button type=\"submit\" name=\"object\" value=\"\" class=\"send below\">Submit</button>\n";
    return element("form",
                   std::string(" method=\"post\"") + (sendsFiles(t.page) ? " enctype=\"multipart/form-data\"" : ""),
                   content) +
           "\n";
}

// On a small screen the page is shown as a whole.
std::string viewportWidth(const Page &p)
{
    constexpr int narrowest = 320; // pixels
    return p.bkgwd > 0 ? std::to_string(std::max<int>(p.bkgwd, narrowest)) : "device-width, initial-scale=1";
}

std::string head(const Template &t)
{
    return "<meta charset=\"utf-8\">\n" + element("title", "", title(t.page)) +
           "\n<meta name=\"viewport\" content=\"width=" + viewportWidth(t.page) + "\">\n" +
           element("style", "",
                   "\n" + std::string(commonRules) + pageRule(t) + belowPage(t.page) + t.style + stillRules) +
           "\n";
}

} // namespace

std::string htmlTemplate(const Page &p, const std::filesystem::path &folder)
{
    Template t(p, folder);
    for (const std::int16_t index : documentOrder(p))
        writeElement(t, index);
    const std::string main = "\n" + element("h1", " class=\"hidden\"", heading(p, std::string::npos)) + "\n" + form(t) +
                             t.dialogs + sound(t);
    const std::string direction = (p.pgflags & rtlFlag) != 0 ? "rtl" : "ltr";
    return "<!DOCTYPE html>\n" +
           element("html", attribute("lang", language()) + attribute("dir", direction),
                   "\n" + element("head", "", "\n" + head(t)) + "\n" +
                       element("body", "", "\n" + element("main", "", main) + "\n") + "\n") +
           "\n";
}

} // namespace corvanta
