#pragma once

#include "document/page.h"
#include "json/action.h"

#include <vector>

namespace corvanta {

// Runs the record descriptions of document/record_fields.h over a JSON object and fills the records. Throws
// JsonError for a missing key, a wrong value, and, in finish(), for a key that was not read. Keys may
// stand in any order. The page's grid columns are not part of an object in JSON.
class JsonReader {
public:
    JsonReader(const Json &json, std::string where);

    void int16(const char *name, std::int16_t &v) { v = int16Of(value(name), pathOf(name)); }
    void int32(const char *name, std::int32_t &v) { v = int32Of(value(name), pathOf(name)); }
    void truth(const char *name, bool &v) { v = truthOf(value(name), pathOf(name)); }
    void single(const char *name, float &v) { v = singleOf(value(name), pathOf(name)); }
    void text(const char *name, std::string &v) { v = textOf(value(name), pathOf(name)); }
    void action(const char *name, std::string &v) { v = actionFromJson(value(name), pathOf(name)); }
    void optionalText(const char *name, std::string &v) { text(name, v); }
    template <class Body> void group(const char *name, Body body)
    {
        JsonReader inner(value(name), pathOf(name));
        body(inner);
        inner.finish();
    }
    // An array of objects: body(reader of the object) for each.
    template <class Body> void items(const char *name, std::size_t limit, Body body)
    {
        const Json &values = array(name, limit);
        for (std::size_t i = 0; i < values.size(); ++i) {
            JsonReader item(values[i], itemPath(pathOf(name), i));
            body(item);
            item.finish();
        }
    }
    template <class T, class Each> void counted(const char *name, std::vector<T> &entries, std::size_t limit, Each each)
    {
        entries.clear();
        items(name, limit, [&](JsonReader &item) { each(item, entries.emplace_back()); });
    }
    template <class T, class Each> void rest(const char *name, std::vector<T> &entries, Each each)
    {
        counted(name, entries, mostItems, each);
    }
    void plainTexts(const char *name, std::vector<std::string> &entries, std::size_t limit);
    void gridColumns(std::vector<GridColumn> &) {}
    bool strictTiming() const { return true; }

    bool has(const char *name) const { return object.contains(name); }
    // The value of a key, which counts as read.
    const Json &value(const char *name);
    std::string pathOf(const char *name) const { return keyPath(path, name); }
    [[noreturn]] void refuse(const char *name, const std::string &reason) const;
    void finish() const;

private:
    // Of lists that nothing else bounds: every item takes at least two bytes of the file.
    static constexpr std::size_t mostItems = fileLimit / 2;

    const Json &array(const char *name, std::size_t limit);

    const Json &object;
    std::string path;
    std::vector<std::string> read;
};

} // namespace corvanta
