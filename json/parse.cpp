#include "json/values.h"

#include <set>

namespace corvanta {

namespace {

constexpr std::size_t deepestLevel = 1000, mostKeys = 100;

// The parser's message without its "[json.exception...]" mark.
std::string plainMessage(const std::string &message)
{
    const std::size_t end = message.find("] ");
    return end == std::string::npos ? message : message.substr(end + 2);
}

// Far more values than the JSON of any file has.
constexpr std::size_t mostValues = 1'000'000;

// Goes through the text before anything of it is kept: which keys each open object has had, and where it stands.
class ParseWatch : public nlohmann::json_sax<Json> {
public:
    bool null() override { return value(); }
    bool boolean(bool) override { return value(); }
    bool number_integer(std::int64_t) override { return value(); }
    bool number_unsigned(std::uint64_t) override { return value(); }
    bool number_float(double, const std::string &) override { return value(); }
    bool string(std::string &) override { return value(); }
    bool binary(Json::binary_t &) override { return value(); }
    bool start_object(std::size_t) override { return open(true); }
    bool start_array(std::size_t) override { return open(false); }
    bool key(std::string &name) override { return addKey(name); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t, const std::string &, const Json::exception &error) override
    {
        throw JsonError("$", plainMessage(error.what()));
    }

private:
    struct Level {
        bool object = false;
        std::set<std::string> keys;
        std::string lastKey;
        std::size_t item = 0;
    };

    bool open(bool object)
    {
        if (levels.size() == deepestLevel)
            throw JsonError("$", "more than " + std::to_string(deepestLevel) + " levels of nesting");
        levels.push_back({object, {}, {}, 0});
        return true;
    }

    bool addKey(const std::string &name)
    {
        levels.back().lastKey = name;
        if (!levels.back().keys.insert(name).second)
            throw JsonError(path(), "the key stands twice");
        if (levels.back().keys.size() > mostKeys)
            throw JsonError(path(), "more than " + std::to_string(mostKeys) + " keys");
        return true;
    }

    bool close()
    {
        levels.pop_back();
        return value();
    }

    bool value()
    {
        if (++values > mostValues)
            throw JsonError("$", "more than " + std::to_string(mostValues) + " values");
        if (!levels.empty())
            ++levels.back().item;
        return true;
    }

    std::string path() const
    {
        std::string text = "$";
        for (const Level &level : levels)
            text = level.object ? keyPath(text, level.lastKey) : itemPath(text, level.item);
        return text;
    }

    std::vector<Level> levels;
    std::size_t values = 0;
};

} // namespace

std::string keyPath(const std::string &path, std::string_view key) { return (path + ".").append(key); }

std::string itemPath(const std::string &path, std::size_t item) { return path + "[" + std::to_string(item) + "]"; }

Json parseJson(std::string_view text)
{
    ParseWatch watch;
    Json::sax_parse(text.begin(), text.end(), &watch);
    try {
        return Json::parse(text.begin(), text.end());
    } catch (const Json::exception &error) {
        throw JsonError("$", plainMessage(error.what()));
    }
}

std::string printJson(const Json &json) { return json.dump(1) + "\n"; }

} // namespace corvanta
