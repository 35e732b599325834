#include "document/media.h"
#include "document/parse.h"
#include "objects/properties.h"
#include "platform/asking.h"
#include "platform/text.h"

namespace corvanta {

namespace {

constexpr std::size_t entryLimit = 50;

bool refuse(const std::string &text)
{
    showExclamation(text, "Properties Error");
    return false;
}

// The first fault of a frame, or none.
std::string frameFault(const Frame &frame, const std::string &number)
{
    const Page &p = page();
    const auto field = [&](const char *name) {
        return std::string("Invalid \"") + name + "\" for frame " + number + ".";
    };
    const auto file = [&](const char *what) {
        return std::string("Invalid ") + what + " file name for frame " + number +
               ".  To change the directory, use \"File... Directory\".";
    };
    if (frame.top < 0 || frame.top > p.bkght)
        return field("Top");
    if (frame.left < 0 || frame.left > p.bkgwd)
        return field("Left");
    if (frame.duration < 0)
        return field("Duration");
    if (!validFileName(frame.image))
        return file("image");
    if (!validFileName(frame.sound))
        return file("sound");
    return {};
}

} // namespace

bool CheckAnimation(const PropertyFields &fields)
{
    if (ParseInt16Clamped(fields.nplay) < 0)
        return refuse("You cannot play the animation a negative number of times.");
    for (std::size_t i = 0; i < fields.frames.size(); ++i) {
        const std::string fault = frameFault(fields.frames[i], std::to_string(i + 1));
        if (!fault.empty())
            return refuse(fault);
    }
    return true;
}

bool checkEntryLimit(std::size_t entries, const std::string &kind, const std::string &title)
{
    if (entries < entryLimit)
        return true;
    showExclamation("You can only have up to 50 " + kind + " entries.", title);
    return false;
}

} // namespace corvanta
