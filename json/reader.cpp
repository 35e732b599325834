#include "json/reader.h"

#include <algorithm>

namespace corvanta {

JsonReader::JsonReader(const Json &json, std::string where) : object(json), path(std::move(where))
{
    if (!object.is_object())
        throw JsonError(path, "an object is expected");
}

const Json &JsonReader::value(const char *name)
{
    const auto found = object.find(name);
    if (found == object.end())
        refuse(name, "the key is missing");
    read.emplace_back(name);
    return *found;
}

const Json &JsonReader::array(const char *name, std::size_t limit)
{
    const Json &items = value(name);
    if (!items.is_array())
        refuse(name, "an array is expected");
    if (items.size() > limit)
        refuse(name, std::to_string(items.size()) + " entries are more than the " + std::to_string(limit) +
                         " that a file can hold here");
    return items;
}

void JsonReader::plainTexts(const char *name, std::vector<std::string> &entries, std::size_t limit)
{
    const Json &items = array(name, limit);
    entries.clear();
    for (std::size_t i = 0; i < items.size(); ++i)
        entries.push_back(textOf(items[i], itemPath(pathOf(name), i)));
}

void JsonReader::refuse(const char *name, const std::string &reason) const { throw JsonError(pathOf(name), reason); }

void JsonReader::finish() const
{
    for (const auto &item : object.items())
        if (std::find(read.begin(), read.end(), item.key()) == read.end())
            throw JsonError(keyPath(path, item.key()), "the key is unknown here");
}

} // namespace corvanta
