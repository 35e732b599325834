#include "converter/css.h"
#include "converter/elements.h"
#include "converter/parts.h"
#include "converter/text.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr int tick = 8; // milliseconds between two steps of a ticker, of so many pixels as its speed says

// The text moves over a known distance, from behind the right edge until it has left at the other, so that its speed
// does not depend on how wide it is.
std::string journey(const ObjectRecord &o, const Element &e, std::int16_t speed)
{
    const int distance = std::max(1, std::max<int>(o.pwidth, 0) + textWidth(e.font, cleanText(e.Caption)));
    const int duration = std::max(1, distance * tick / std::clamp<int>(speed, 1, 10));
    return "--way:-" + std::to_string(distance) + "px;animation-duration:" + std::to_string(duration) + "ms";
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
    t.style += "#" + idOf(index) + " span{" + journey(o, e, t.page.tkrextras[elementNumber(t, index)]) + "}\n";
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
