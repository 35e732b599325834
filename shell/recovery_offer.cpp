#include "shell/recovery_offer.h"

#include "document/events.h"
#include "document/recovery.h"
#include "platform/asking.h"

#include <ctime>

namespace corvanta {

namespace {

std::string timeOf(const LostPage &lost)
{
    const std::time_t seconds = lost.time;
    std::tm local{};
    char text[32] = "";
    const bool told =
        localtime_r(&seconds, &local) && std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &local) > 0;
    return told ? text : "an unknown time";
}

// This editor holds one page; the others' are not lost.
void tellOthers(std::ptrdiff_t count)
{
    if (count > 0)
        documentEvents().notice("Recovered. The next start of the editor offers " + std::to_string(count) +
                                (count == 1 ? " more page." : " more pages."));
}

} // namespace

void offerLostPages()
{
    const std::vector<LostPage> offered = lostPages(recoveryFolder());
    for (const LostPage &lost : offered) {
        const std::string name = lost.filetag.empty() ? "a new page" : lost.filetag;
        switch (askChoice(
            {.text = "The editor ended with changes to " + name + " that were not saved, last at " + timeOf(lost) + ".",
             .title = "Corvanta Form Editor",
             .icon = Icon::Question,
             .captions = {"&Recover", "&Discard", "&Later"}})) {
        case 0: recoverPage(lost); return tellOthers(&offered.back() - &lost);
        case 1: discardLostPage(lost); break;
        default: break;
        }
    }
}

} // namespace corvanta
