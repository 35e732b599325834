#include "converter/target.h"

#include "actions/action.h"
#include "actions/action_kinds.h"
#include "converter/address.h"
#include "converter/text.h"

#include <algorithm>
#include <iterator>

namespace corvanta {

namespace {

// What a visitor must be able to do whatever the fields hold.
bool leavesValues(std::int16_t code)
{
    constexpr std::int16_t codes[] = {action::nextRecord,   action::previousRecord, action::viewRow,
                                      action::deleteRecord, action::downloadFile,   action::exitApplication,
                                      action::closePage};
    return std::find(std::begin(codes), std::end(codes), code) != std::end(codes);
}

std::string valueOf(const Action &a, std::size_t n) { return n < a.values.size() ? a.values[n] : std::string(); }

Target link(std::string address, std::string caption)
{
    return {Target::Kind::Link, std::move(address), {}, {}, true, std::move(caption)};
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
    case action::resetForm: return {Target::Kind::Reset, {}, {}, {}, true, actionKind(a.code).caption};
    case action::messageBox:
        return {Target::Kind::Message, {}, valueOf(a, 0), valueOf(a, 1), true, actionKind(a.code).caption};
    default: return {Target::Kind::Submit, {}, {}, {}, !leavesValues(a.code), actionKind(a.code).caption};
    }
}

} // namespace corvanta
