#pragma once

#include "platform/codepage.h"
#include "json/action.h"

#include <vector>

namespace corvanta {

struct GridColumn;

// Runs the record descriptions of document/record_fields.h over records and collects them as JSON objects,
// keys in the order of the file. The page's grid columns are not part of an object in JSON.
class JsonWriter {
public:
    Json out = Json::object();

    void int16(const char *name, std::int16_t v) { out[name] = v; }
    void int32(const char *name, std::int32_t v) { out[name] = v; }
    void truth(const char *name, bool v) { out[name] = v; }
    void single(const char *name, float v) { out[name] = v; }
    void text(const char *name, const std::string &v) { out[name] = toUtf8(v); }
    void action(const char *name, const std::string &v) { out[name] = actionJson(v); }
    void optionalText(const char *name, const std::string &v) { text(name, v); }
    template <class Body> void group(const char *name, Body body)
    {
        JsonWriter inner;
        body(inner);
        out[name] = std::move(inner.out);
    }
    template <class T, class Each> void rest(const char *name, const std::vector<T> &entries, Each each)
    {
        Json &array = out[name] = Json::array();
        for (const T &entry : entries) {
            JsonWriter item;
            each(item, entry);
            array.push_back(std::move(item.out));
        }
    }
    template <class T, class Each> void counted(const char *name, const std::vector<T> &entries, std::size_t, Each each)
    {
        rest(name, entries, each);
    }
    void plainTexts(const char *name, const std::vector<std::string> &entries, std::size_t)
    {
        Json &array = out[name] = Json::array();
        for (const std::string &entry : entries)
            array.push_back(toUtf8(entry));
    }
    void gridColumns(const std::vector<GridColumn> &) {}
    bool strictTiming() const { return true; }
};

} // namespace corvanta
