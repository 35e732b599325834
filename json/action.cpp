#include "json/action.h"

#include "actions/action.h"
#include "json/reader.h"
#include "json/writer.h"

#include <algorithm>

namespace corvanta {

namespace {

// Lists nested deeper than this are written as "raw" alone, so that no file makes the JSON immense.
constexpr int deepestList = 24;

bool sameEntry(const ActionEntry &a, const ActionEntry &b) { return a.action == b.action && a.status == b.status; }

bool sameEntries(const std::vector<ActionEntry> &a, const std::vector<ActionEntry> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), sameEntry);
}

Json actionJsonAt(std::string_view text, int level);

bool writeEntries(JsonWriter &writer, std::string_view text, int level)
{
    if (level > deepestList)
        return false;
    Json &entries = writer.out["entries"] = Json::array();
    const std::vector<ActionEntry> list = heldActionEntries(text);
    for (const ActionEntry &entry : list) {
        JsonWriter item;
        item.out["action"] = actionJsonAt(entry.action, level + 1);
        item.text("status", entry.status);
        entries.push_back(std::move(item.out));
    }
    return encodeActionList(list) == text;
}

bool writeParameters(JsonWriter &writer, std::string_view text)
{
    const Action decoded = decodeAction(text);
    std::size_t i = 0;
    for (const ActionParameter &parameter : actionParameters(decoded.code)) {
        const std::string &value = decoded.values[i++];
        if (parameter.number)
            writer.int16(parameter.name, static_cast<std::int16_t>(std::stoi(value)));
        else
            writer.text(parameter.name, value);
    }
    return encodeAction(decoded) == text;
}

Json actionJsonAt(std::string_view text, int level)
{
    JsonWriter writer;
    writer.int16("code", ActionCode(text));
    const bool list = ActionCode(text) == action::list;
    if (!(list ? writeEntries(writer, text, level) : writeParameters(writer, text)))
        writer.out["raw"] = hexadecimal(text);
    return std::move(writer.out);
}

// The bytes behind "raw", which are of the code that stands beside them.
std::string readRaw(JsonReader &reader, std::int16_t code)
{
    const std::string bytes = bytesOf(reader.value("raw"), reader.pathOf("raw"));
    if (ActionCode(bytes) != code)
        reader.refuse("raw", "these bytes are of code " + std::to_string(ActionCode(bytes)) + ", not of code " +
                                 std::to_string(code));
    return bytes;
}

std::string readList(JsonReader &reader)
{
    const bool raw = reader.has("raw");
    const std::string bytes = raw ? readRaw(reader, action::list) : std::string();
    if (raw && !reader.has("entries"))
        return bytes;
    std::vector<ActionEntry> entries;
    reader.rest("entries", entries, [](JsonReader &item, ActionEntry &entry) {
        item.action("action", entry.action);
        item.text("status", entry.status);
    });
    if (raw && !sameEntries(entries, heldActionEntries(bytes)))
        reader.refuse("raw", "these bytes hold other entries than the named ones");
    return raw ? bytes : encodeActionList(entries);
}

std::string readParameters(JsonReader &reader, std::int16_t code)
{
    Action read{code, {}};
    for (const ActionParameter &parameter : actionParameters(code)) {
        std::string &value = read.values.emplace_back();
        std::int16_t number = 0;
        if (!parameter.number) {
            reader.text(parameter.name, value);
            continue;
        }
        reader.int16(parameter.name, number);
        value = std::to_string(number);
    }
    if (!reader.has("raw"))
        return encodeAction(read);
    std::string bytes = readRaw(reader, code);
    if (decodeAction(bytes).values != decodeAction(encodeAction(read)).values)
        reader.refuse("raw", "these bytes hold other parameters than the named ones");
    return bytes;
}

} // namespace

Json actionJson(std::string_view text) { return actionJsonAt(text, 1); }

std::string actionFromJson(const Json &value, const std::string &path)
{
    JsonReader reader(value, path);
    std::int16_t code = 0;
    reader.int16("code", code);
    std::string text = code == action::list ? readList(reader) : readParameters(reader, code);
    reader.finish();
    return text;
}

} // namespace corvanta
