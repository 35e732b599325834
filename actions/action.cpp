#include "actions/action.h"

#include "document/encoding.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace corvanta {

namespace {

constexpr ActionParameter pageName[] = {{"page", false}};
constexpr ActionParameter userid[] = {{"userid", false}};
constexpr ActionParameter mode[] = {{"mode", true}};
constexpr ActionParameter helptype[] = {{"helptype", true}};
constexpr ActionParameter url[] = {{"url", false}};
constexpr ActionParameter serverApplication[] = {{"host", false}, {"app", false}, {"command", false}};
constexpr ActionParameter application[] = {{"app", false}, {"command", false}};
constexpr ActionParameter query[] = {{"select", false}, {"hitlist", false}, {"queryview", false}};
constexpr ActionParameter sql[] = {{"sql", false}};
constexpr ActionParameter fileobj[] = {{"fileobj", false}};
constexpr ActionParameter message[] = {{"title", false}, {"text", false}};

std::int16_t numberOf(std::string_view text)
{
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(number, Limits::min(), Limits::max()));
}

// An entry takes at least the two bytes of its length. A damaged count is believed as far as the text could
// hold so many entries, and a small one always: its missing entries read as empty.
std::size_t believedCount(std::int16_t count, std::size_t bytesLeft)
{
    constexpr std::size_t always = 50;
    const auto wanted = static_cast<std::size_t>(std::max<std::int16_t>(count, 0));
    return std::min(wanted, std::max(always, bytesLeft / 2));
}

} // namespace

std::span<const ActionParameter> actionParameters(std::int16_t code)
{
    switch (code) {
    case action::goToPage: return pageName;
    case action::pageUser: return userid;
    case action::downloadCaution: return mode;
    case action::helpType: return helptype;
    case action::goToUrl: return url;
    case action::serverApp: return serverApplication;
    case action::executeApp: return application;
    case action::submitSelect: return query;
    case action::executeSql: return sql;
    case action::downloadFile:
    case action::uploadFile: return fileobj;
    case action::messageBox: return message;
    }
    return {};
}

std::int16_t ActionCode(std::string_view text) { return decodeInt16(text); }

Action decodeAction(std::string_view text)
{
    Action decoded;
    decoded.code = decodeInt16(text);
    for (const ActionParameter &parameter : actionParameters(decoded.code))
        decoded.values.push_back(parameter.number ? std::to_string(decodeInt16(text)) : decodeString(text));
    return decoded;
}

std::string encodeAction(const Action &action)
{
    std::string text = encodeInt16(action.code);
    std::size_t i = 0;
    for (const ActionParameter &parameter : actionParameters(action.code)) {
        const std::string value = i < action.values.size() ? action.values[i] : std::string();
        text += parameter.number ? encodeInt16(numberOf(value)) : encodeString(value);
        ++i;
    }
    return text;
}

std::vector<ActionEntry> decodeActionList(std::string_view text)
{
    decodeInt16(text);
    const std::int16_t count = decodeInt16(text);
    std::vector<ActionEntry> entries(believedCount(count, text.size()));
    for (ActionEntry &entry : entries)
        entry = decodeActionEntry(decodeString(text));
    return entries;
}

std::vector<ActionEntry> heldActionEntries(std::string_view text)
{
    decodeInt16(text);
    const std::int16_t count = decodeInt16(text);
    std::vector<ActionEntry> entries;
    for (std::int16_t i = 0; i < count && !text.empty(); ++i)
        entries.push_back(decodeActionEntry(decodeString(text)));
    return entries;
}

std::string encodeActionList(const std::vector<ActionEntry> &entries)
{
    std::string text = encodeInt16(action::list) + encodeInt16(static_cast<std::int16_t>(entries.size()));
    for (const ActionEntry &entry : entries)
        text += encodeString(encodeActionEntry(entry));
    return text;
}

ActionEntry decodeActionEntry(std::string_view text)
{
    ActionEntry entry;
    entry.action = decodeString(text);
    entry.status = decodeString(text);
    return entry;
}

std::string encodeActionEntry(const ActionEntry &entry)
{
    return encodeString(entry.action) + encodeString(entry.status);
}

std::string withTopPage(std::string_view text)
{
    const Action decoded = decodeAction(text);
    if (decoded.code == action::goToPage && decoded.values[0].empty())
        return encodeAction({action::goToPage, {"TOP"}});
    return std::string(text);
}

} // namespace corvanta
