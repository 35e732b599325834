#include "actions/action_choice.h"

#include "actions/action.h"
#include "actions/action_kinds.h"

namespace corvanta {

std::string &workingAction()
{
    static std::string text;
    return text;
}

std::string &dialogExchange()
{
    static std::string text;
    return text;
}

std::vector<std::int16_t> offeredActions()
{
    std::vector<std::int16_t> codes;
    for (std::size_t code = 0; code < actionKinds().size(); ++code)
        if (!actionKinds()[code].caption.empty())
            codes.push_back(static_cast<std::int16_t>(code));
    return codes;
}

std::string chosenAction(std::string_view caption, std::string_view working, std::string_view stored)
{
    const std::int16_t code = FindActionKind(caption);
    if (code < 0 || code == ActionCode(working))
        return std::string(working);
    return code == ActionCode(stored) ? std::string(stored) : actionKind(code).actionTemplate;
}

bool hasActionDialog(std::int16_t code) { return actionKind(code).hasDialog; }

} // namespace corvanta
