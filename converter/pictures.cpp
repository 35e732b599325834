#include "converter/address.h"
#include "converter/css.h"
#include "converter/elements.h"
#include "converter/parts.h"
#include "converter/text.h"
#include "document/tablist.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr const char *emptyArea = "background:#e4e7ec;border:1px solid #000;";

std::string imageTag(const std::string &attributes, const std::string &address, const std::string &alt)
{
    return "<img" + attributes + attribute("src", address) + attribute("alt", alt) + ">";
}

// The steps of one frame: shown from start to end, which are tenths of a second of the whole.
std::string frameSteps(int start, int end, int whole)
{
    const auto step = [whole](int at, const char *visibility) {
        return cssNumber(100.0 * at / whole) + "%{visibility:" + visibility + "}";
    };
    std::string steps = start > 0 ? step(0, "hidden") : std::string();
    steps += step(start, "visible");
    return end < whole ? steps + step(end, "hidden") : steps;
}

struct Timing {
    int whole = 0; // tenths of a second
    std::int16_t plays = 0;
};

Timing timingOf(const std::vector<Frame> &frames, const AnimationExtras &x)
{
    Timing timing{0, x.nplay};
    for (const Frame &f : frames)
        timing.whole += std::max<int>(f.duration, 0);
    return timing;
}

std::string frameDeclarations(const ObjectRecord &o, const Frame &position)
{
    return "left:" + std::to_string(position.left - o.pleft) + "px;top:" + std::to_string(position.top - o.ptop) +
           "px;";
}

void writeFrameRule(Template &t, const std::string &id, std::string declarations, int start, int end, Timing timing)
{
    const bool shownAfterwards = end == timing.whole;
    if (!shownAfterwards)
        declarations += "visibility:hidden;";
    if (timing.whole > 0) {
        t.style += "@keyframes " + id + "{" + frameSteps(start, end, timing.whole) + "}\n";
        declarations += "animation:" + id + " " + cssNumber(timing.whole / 10.0) + "s step-end " +
                        (timing.plays > 0 ? std::to_string(timing.plays) : "infinite") + ";";
    }
    t.style += "#" + id + "{" + declarations + "}\n";
}

std::vector<Frame> framesOfAnimation(const Template &t, std::int16_t index)
{
    std::vector<Frame> frames;
    for (const int number : frameNumbers(t.page, static_cast<std::int16_t>(elementNumber(t, index))))
        frames.push_back(t.page.frames[static_cast<std::size_t>(number)]);
    return frames;
}

// The frames' images one above the other; the last one stays when the plays are over.
std::string stackedFrames(Template &t, std::int16_t index, const std::vector<Frame> &frames)
{
    const AnimationExtras &x = t.page.aniextras[elementNumber(t, index)];
    const Timing timing = timingOf(frames, x);
    std::string content;
    int start = 0;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const std::string id = idOf(index, "f" + std::to_string(i)), address = mediaAddress(frames[i].image, t.folder);
        const int end = start + std::max<int>(frames[i].duration, 0);
        const bool shown = timing.whole > 0 ? end > start : i == 0;
        if (shown && !address.empty()) {
            const Frame &position = x.frozen != 0 ? frames.front() : frames[i];
            writeFrameRule(t, id, frameDeclarations(recordOf(t, index), position), start, end, timing);
            content += imageTag(attribute("id", id), address, "");
        }
        start = end;
    }
    return content;
}

} // namespace

void writeImage(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const Target target = targetOf(o.actlist, t.folder);
    const std::string address = mediaAddress(fieldAt(o.srcfile, 0), t.folder), id = attribute("id", idOf(index));
    const bool acts = target.kind != Target::Kind::None;
    place(t, index, std::string(address.empty() ? emptyArea : "") + (acts ? "" : "pointer-events:none;"));
    if (!acts && !address.empty()) {
        t.objects += imageTag(id, address, o.sptext) + "\n";
        return;
    }
    std::string content = address.empty() ? std::string() : imageTag(" class=\"whole\"", address, "");
    if (acts || !isBlank(o.sptext))
        content += hiddenText(spokenName(t, index, target));
    t.objects += control(t, index, target, "div", id + optionalAttribute("title", o.sptext), content) + "\n";
}

void writeImageDb(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const std::string id = attribute("id", idOf(index)), alt = isBlank(o.sptext) ? o.ctlname : o.sptext;
    place(t, index, std::string(emptyArea) + (isBlank(o.ctlname) ? "" : "pointer-events:none;"));
    if (isBlank(o.ctlname))
        t.objects += element("div", id, isBlank(alt) ? std::string() : hiddenText(alt)) + "\n";
    else
        t.objects += imageTag(id, imageAddress(o.srcfile, o.ctlname), alt) + "\n";
}

void writeAnimation(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const Target target = targetOf(o.actlist, t.folder);
    place(t, index, "overflow:visible;");
    std::string content = stackedFrames(t, index, framesOfAnimation(t, index));
    const bool acts = target.kind != Target::Kind::None, moves = content.find("<img", 1) != std::string::npos;
    std::string attributes =
        attribute("id", idOf(index)) + " class=\"animation\"" + optionalAttribute("title", o.sptext);
    if (moves && !acts) // whoever uses the keyboard can stop it there
        attributes += " role=\"img\" tabindex=\"0\"" + attribute("aria-label", spokenName(t, index, target));
    if (acts || (!moves && !isBlank(o.sptext)))
        content += hiddenText(spokenName(t, index, target));
    t.objects += control(t, index, target, "div", attributes, content) + "\n";
}

} // namespace corvanta
