#pragma once

#include "compare/fields.h"
#include "document/byte_codec.h"
#include "platform/text.h"

#include <algorithm>
#include <charconv>
#include <iterator>

// The codecs behind fields.h, for the record descriptions of document/record_fields.h. A list is one value.
namespace corvanta {

std::string inQuotes(const std::string &text);
std::string shownAction(const std::string &text);

// Lists the values of records.
class FieldLister {
public:
    Fields fields;

    void int16(const char *name, std::int16_t v) { add(name, encodeInt16(v), std::to_string(v)); }
    void int32(const char *name, std::int32_t v)
    {
        const auto bits = static_cast<std::uint32_t>(v);
        const std::string hexadecimal = "0x" + hexDigits(bits, bits > 0xFFFFFF ? 8 : 6);
        add(name, encodeInt32(v), hexadecimal);
    }
    void truth(const char *name, bool v) { add(name, encodeInt16(v ? -1 : 0), v ? "yes" : "no"); }
    void single(const char *name, float v)
    {
        char number[32];
        const auto end = std::to_chars(number, std::end(number), v, std::chars_format::general, 6).ptr;
        add(name, encodeSingle(v), std::string(number, end));
    }
    void text(const char *name, const std::string &v) { add(name, encodeString(v), inQuotes(v)); }
    void action(const char *name, const std::string &v) { add(name, encodeString(v), shownAction(v)); }
    void optionalText(const char *name, const std::string &v) { text(name, v); }
    template <class Body> void group(const char *name, Body body)
    {
        FieldLister inner;
        body(inner);
        for (Field &field : inner.fields)
            add((std::string(name) + "." + field.name).c_str(), std::move(field.bytes), std::move(field.shown));
    }
    template <class T, class Each> void counted(const char *name, const std::vector<T> &entries, std::size_t, Each each)
    {
        add(name, encodeInt16(static_cast<std::int16_t>(entries.size())) + bytesOf(entries, each),
            std::to_string(entries.size()));
    }
    template <class T, class Each> void rest(const char *name, const std::vector<T> &entries, Each each)
    {
        add(name, bytesOf(entries, each), std::to_string(entries.size()));
    }
    void plainTexts(const char *name, const std::vector<std::string> &entries, std::size_t limit)
    {
        counted(name, entries, limit, [](FieldLister &item, const std::string &entry) { item.text("", entry); });
    }
    void gridColumns(const std::vector<GridColumn> &) {}
    bool strictTiming() const { return true; }

private:
    template <class T, class Each> static std::string bytesOf(const std::vector<T> &entries, Each each)
    {
        FieldLister inner;
        for (const T &entry : entries)
            each(inner, entry);
        std::string bytes;
        for (const Field &field : inner.fields)
            bytes += field.bytes;
        return bytes;
    }
    void add(const char *name, std::string bytes, std::string shown)
    {
        fields.push_back({name, std::move(bytes), std::move(shown)});
    }
};

// Fills records from listed values; what is not listed stays.
class FieldTaker {
public:
    explicit FieldTaker(const Fields &listed, std::string before = {}) : fields(listed), prefix(std::move(before)) {}

    void int16(const char *name, std::int16_t &v)
    {
        take(name, [&](ByteReader &r) { r.int16(name, v); });
    }
    void int32(const char *name, std::int32_t &v)
    {
        take(name, [&](ByteReader &r) { r.int32(name, v); });
    }
    void truth(const char *name, bool &v)
    {
        take(name, [&](ByteReader &r) { r.truth(name, v); });
    }
    void single(const char *name, float &v)
    {
        take(name, [&](ByteReader &r) { r.single(name, v); });
    }
    void text(const char *name, std::string &v)
    {
        take(name, [&](ByteReader &r) { r.text(name, v); });
    }
    void action(const char *name, std::string &v) { text(name, v); }
    void optionalText(const char *name, std::string &v) { text(name, v); }
    template <class Body> void group(const char *name, Body body)
    {
        FieldTaker inner(fields, prefix + name + ".");
        body(inner);
    }
    template <class T, class Each> void counted(const char *name, std::vector<T> &entries, std::size_t limit, Each each)
    {
        std::int16_t count = 0;
        takeList(name, [&](FieldTaker &list) {
            list.int16("", count);
            entries.assign(std::min<std::size_t>(static_cast<std::size_t>(std::max<std::int16_t>(count, 0)), limit),
                           T{});
            for (T &entry : entries)
                each(list, entry);
        });
    }
    template <class T, class Each> void rest(const char *name, std::vector<T> &entries, Each each)
    {
        takeList(name, [&](FieldTaker &list) {
            entries.clear();
            while (!list.sequence->empty())
                each(list, entries.emplace_back());
        });
    }
    void plainTexts(const char *name, std::vector<std::string> &entries, std::size_t limit)
    {
        counted(name, entries, limit, [](FieldTaker &item, std::string &entry) { item.text("", entry); });
    }
    void gridColumns(std::vector<GridColumn> &) {}
    bool strictTiming() const { return true; }

private:
    // Within a list values have no names: they follow one another.
    template <class Read> void take(const char *name, Read read)
    {
        if (sequence != nullptr) {
            ByteReader reader(*sequence, currentVersion);
            return read(reader);
        }
        const Field *field = fieldNamed(fields, prefix + name);
        if (field == nullptr)
            return;
        std::string_view bytes = field->bytes;
        ByteReader reader(bytes, currentVersion);
        read(reader);
    }
    template <class Read> void takeList(const char *name, Read read)
    {
        const Field *field = fieldNamed(fields, prefix + name);
        if (field == nullptr)
            return;
        std::string_view bytes = field->bytes;
        FieldTaker list(fields);
        list.sequence = &bytes;
        read(list);
    }

    const Fields &fields;
    std::string prefix;
    std::string_view *sequence = nullptr;
};

} // namespace corvanta
