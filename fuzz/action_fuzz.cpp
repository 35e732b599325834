#include "actions/action.h"
#include "actions/action_choice.h"
#include "fuzz/support.h"
#include "json/action.h"

using namespace corvanta;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view text = bytesOf(data, size);
    const std::string written = encodeAction(decodeAction(text));
    require(encodeAction(decodeAction(written)) == written, "an action reads back");
    const std::string entries = encodeActionList(heldActionEntries(text));
    require(encodeActionList(decodeActionList(entries)) == entries, "a list of actions reads back");
    require(decodeActionList(text).size() <= 32767, "a list is bounded");
    const Json json = actionJson(text);
    require(actionFromJson(Json::parse(json.dump()), "action") == text, "JSON holds every byte of an action");
    return 0;
}
