#include "document/media.h"
#include "document/parse.h"
#include "objects/properties.h"
#include "platform/asking.h"
#include "platform/text.h"

namespace corvanta {

namespace {

constexpr std::size_t entryLimit = 50;

Confirmation refuse(const std::string &text, const char *control, int entry = -1)
{
    showExclamation(text, "Properties Error");
    return {false, control, entry};
}

// The checks of a frame, stopping at its first fault.
Confirmation checkFrame(const Frame &frame, int entry)
{
    const Page &p = page();
    const std::string where = " for frame " + std::to_string(entry + 1);
    const auto field = [&](const char *name, const char *control) {
        return refuse("Invalid \"" + std::string(name) + "\"" + where + ".", control, entry);
    };
    if (frame.top < 0 || frame.top > p.bkght)
        return field("Top", "ptop");
    if (frame.left < 0 || frame.left > p.bkgwd)
        return field("Left", "pleft");
    if (frame.duration < 0)
        return field("Duration", "duration");
    if (!validFileName(frame.image))
        return refuse(invalidFileName("image", where), "imgfn", entry);
    if (!validFileName(frame.sound))
        return refuse(invalidFileName("sound", where), "sndfn", entry);
    return {true, ""};
}

} // namespace

Confirmation CheckAnimation(const PropertyFields &fields)
{
    if (ParseInt16Clamped(fields.nplay) < 0)
        return refuse("You cannot play the animation a negative number of times.", "nplay");
    int entry = 0;
    for (const Frame &frame : fields.frames)
        if (const Confirmation check = checkFrame(frame, entry++); !check.stored)
            return check;
    return {true, ""};
}

bool checkEntryLimit(std::size_t entries, const std::string &kind, const std::string &title)
{
    if (entries < entryLimit)
        return true;
    showExclamation("You can only have up to 50 " + kind + " entries.", title);
    return false;
}

} // namespace corvanta
