#include "converter/css.h"
#include "converter/elements.h"
#include "converter/parts.h"
#include "converter/text.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr double tick = 0.008;           // seconds between two steps of a ticker
constexpr double averageCharacter = 0.5; // of a font's pixels

// The seconds in which the text crosses its strip, by the estimated width of the text.
double crossingTime(const ObjectRecord &o, const Element &e, std::int16_t speed)
{
    const double text = static_cast<double>(e.Caption.size()) * fontPixels(e.font) * averageCharacter;
    return (std::max<int>(o.pwidth, 0) + text) * tick / std::clamp<int>(speed, 1, 10);
}

} // namespace

void writeTicker(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const Element &e = t.page.tkr[elementNumber(t, index)];
    const Target target = targetOf(o.actlist, t.folder);
    place(t, index,
          cssFont(e.font) + "background:" + cssColour(e.BackColor) + ";" +
              (e.BorderStyle == 1 ? "border:1px solid #000;" : "") +
              "line-height:" + std::to_string(std::max(0, o.pheight - (e.BorderStyle == 1 ? 2 : 0))) + "px;");
    t.style += "#" + idOf(index) + " span{animation-duration:" +
               cssNumber(std::max(0.1, crossingTime(o, e, t.page.tkrextras[elementNumber(t, index)]))) + "s}\n";
    const bool acts = target.kind != Target::Kind::None;
    std::string content = element("span", "", captionHtml(t, e.Caption));
    if (acts && isBlank(e.Caption))
        content += hiddenText(spokenName(t, index, target));
    // Whoever reads it with the keyboard can stop it there.
    const std::string attributes = attribute("id", idOf(index)) + " class=\"ticker\"" +
                                   optionalAttribute("title", o.sptext) +
                                   (acts ? "" : " role=\"marquee\" tabindex=\"0\"");
    t.objects += control(t, index, target, "div", attributes, content) + "\n";
}

} // namespace corvanta
