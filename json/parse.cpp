#include "json/values.h"

#include <set>

namespace corvanta {

namespace {

constexpr std::size_t deepestLevel = 1000, mostKeys = 100;

// Follows the parser through the text: which keys each open object has had, and where it stands.
class ParseWatch {
public:
    void see(Json::parse_event_t event, const Json &parsed)
    {
        switch (event) {
        case Json::parse_event_t::object_start:
        case Json::parse_event_t::array_start: return open(event == Json::parse_event_t::object_start);
        case Json::parse_event_t::key: return key(parsed.get<std::string>());
        case Json::parse_event_t::object_end:
        case Json::parse_event_t::array_end: levels.pop_back(); return complete();
        case Json::parse_event_t::value: return complete();
        }
    }

private:
    struct Level {
        bool object = false;
        std::set<std::string> keys;
        std::string lastKey;
        std::size_t item = 0;
    };

    void open(bool object)
    {
        if (levels.size() == deepestLevel)
            throw JsonError("$", "more than " + std::to_string(deepestLevel) + " levels of nesting");
        levels.push_back({object, {}, {}, 0});
    }

    void key(std::string name)
    {
        levels.back().lastKey = name;
        if (!levels.back().keys.insert(std::move(name)).second)
            throw JsonError(path(), "the key stands twice");
        if (levels.back().keys.size() > mostKeys)
            throw JsonError(path(), "more than " + std::to_string(mostKeys) + " keys");
    }

    void complete()
    {
        if (!levels.empty())
            ++levels.back().item;
    }

    std::string path() const
    {
        std::string text = "$";
        for (const Level &level : levels)
            text = level.object ? keyPath(text, level.lastKey) : itemPath(text, level.item);
        return text;
    }

    std::vector<Level> levels;
};

// The parser's message without its "[json.exception...]" mark.
std::string plainMessage(const std::string &message)
{
    const std::size_t end = message.find("] ");
    return end == std::string::npos ? message : message.substr(end + 2);
}

} // namespace

std::string keyPath(const std::string &path, std::string_view key) { return (path + ".").append(key); }

std::string itemPath(const std::string &path, std::size_t item) { return path + "[" + std::to_string(item) + "]"; }

Json parseJson(std::string_view text)
{
    ParseWatch watch;
    try {
        return Json::parse(text.begin(), text.end(), [&](int, Json::parse_event_t event, Json &parsed) {
            watch.see(event, parsed);
            return true;
        });
    } catch (const Json::exception &error) {
        throw JsonError("$", plainMessage(error.what()));
    }
}

std::string printJson(const Json &json) { return json.dump(1) + "\n"; }

} // namespace corvanta
