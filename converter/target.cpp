#include "converter/target.h"

#include "actions/action.h"
#include "actions/action_kinds.h"
#include "converter/address.h"
#include "converter/text.h"

namespace corvanta {

namespace {

// The tools come here without the editor's start-up, which fills the table.
std::string captionOf(std::int16_t code)
{
    if (actionKind(action::goToPage).caption.empty())
        BuildActionKinds();
    return actionKind(code).caption;
}

std::string valueOf(const Action &a, std::size_t n) { return n < a.values.size() ? a.values[n] : std::string(); }

Target link(std::string address, std::string caption)
{
    return {Target::Kind::Link, std::move(address), {}, {}, std::move(caption)};
}

} // namespace

Target targetOf(std::string_view actionText)
{
    const Action a = decodeAction(actionText);
    switch (a.code) {
    case action::none: return {};
    case action::goToPage: {
        const std::string name = nameAlone(valueOf(a, 0));
        return link(pageAddress(name), isBlank(name) ? "TOP" : name);
    }
    case action::goToUrl: {
        const auto address = safeAddress(valueOf(a, 0));
        return address ? link(*address, valueOf(a, 0)) : Target{};
    }
    case action::resetForm: return {Target::Kind::Reset, {}, {}, {}, captionOf(a.code)};
    case action::messageBox: return {Target::Kind::Message, {}, valueOf(a, 0), valueOf(a, 1), captionOf(a.code)};
    default: return {Target::Kind::Submit, {}, {}, {}, captionOf(a.code)};
    }
}

} // namespace corvanta
