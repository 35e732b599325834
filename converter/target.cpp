#include "converter/target.h"

#include "actions/action.h"
#include "actions/action_kinds.h"
#include "converter/address.h"
#include "converter/text.h"

namespace corvanta {

namespace {

std::string valueOf(const Action &a, std::size_t n) { return n < a.values.size() ? a.values[n] : std::string(); }

Target link(std::string address, std::string caption)
{
    return {Target::Kind::Link, std::move(address), {}, {}, std::move(caption)};
}

} // namespace

Target targetOf(std::string_view actionText, const std::filesystem::path &folder)
{
    const Action a = decodeAction(actionText);
    switch (a.code) {
    case action::none: return {};
    case action::goToPage: {
        const std::string name = nameAlone(valueOf(a, 0));
        return link(pageAddress(name, folder), isBlank(name) ? "TOP" : name);
    }
    case action::goToUrl: {
        const auto address = safeAddress(valueOf(a, 0));
        return address ? link(*address, valueOf(a, 0)) : Target{};
    }
    case action::resetForm: return {Target::Kind::Reset, {}, {}, {}, actionKind(a.code).caption};
    case action::messageBox:
        return {Target::Kind::Message, {}, valueOf(a, 0), valueOf(a, 1), actionKind(a.code).caption};
    default: return {Target::Kind::Submit, {}, {}, {}, actionKind(a.code).caption};
    }
}

} // namespace corvanta
