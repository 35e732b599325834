#pragma once

#include "document/encoding.h"
#include "document/record_fields.h"

#include <algorithm>
#include <cmath>

namespace corvanta {

// Runs the record descriptions over bytes, from the front of a text that it shortens.
class ByteReader {
public:
    ByteReader(std::string_view &text, std::int16_t version) : in(text), pgversion(version) {}

    void int16(const char *, std::int16_t &v) { v = decodeInt16(in); }
    void int32(const char *, std::int32_t &v) { v = decodeInt32(in); }
    void truth(const char *, bool &v) { v = decodeInt16(in) != 0; }
    void single(const char *, float &v)
    {
        v = decodeSingle(in);
        if (!std::isfinite(v))
            v = 0;
    }
    void text(const char *, std::string &v)
    {
        if (const std::string_view taken = takeString(in); taken.empty())
            v.clear(); // as most texts are
        else
            v = taken;
    }
    void action(const char *name, std::string &v) { text(name, v); }
    void optionalText(const char *name, std::string &v) { text(name, v); }
    template <class Body> void group(const char *, Body body) { body(*this); }
    template <class T, class Each> void counted(const char *, std::vector<T> &entries, std::size_t limit, Each each)
    {
        entries.assign(readCount(limit), T{});
        for (T &entry : entries)
            each(*this, entry);
    }
    void plainTexts(const char *name, std::vector<std::string> &entries, std::size_t limit)
    {
        counted(name, entries, limit, [](ByteReader &r, std::string &entry) { r.text("", entry); });
    }
    template <class T, class Each> void rest(const char *, std::vector<T> &entries, Each each)
    {
        entries.clear();
        while (!in.empty())
            each(*this, entries.emplace_back());
    }
    void gridColumns(std::vector<GridColumn> &columns)
    {
        columns.assign(readCount(gridColumnLimit) + 1, GridColumn{});
        std::string_view left = takeString(in);
        ByteReader inner(left, pgversion);
        for (std::size_t i = 0; i + 1 < columns.size(); ++i)
            gridColumnFields(inner, columns[i]);
    }
    bool strictTiming() const { return pgversion >= 2; }

private:
    std::size_t readCount(std::size_t limit)
    {
        return std::min<std::size_t>(static_cast<std::size_t>(std::max<std::int16_t>(decodeInt16(in), 0)), limit);
    }

    std::string_view &in;
    std::int16_t pgversion;
};

// Runs the record descriptions over records and appends their bytes.
class ByteWriter {
public:
    explicit ByteWriter(std::string &bytes) : out(bytes) {}

    void int16(const char *, std::int16_t v) { appendInt16(out, v); }
    void int32(const char *, std::int32_t v) { appendInt32(out, v); }
    void truth(const char *, bool v) { appendInt16(out, v ? -1 : 0); }
    void single(const char *, float v) { appendSingle(out, v); }
    void text(const char *, const std::string &v) { appendString(out, v); }
    void action(const char *, const std::string &v) { appendString(out, v); }
    void optionalText(const char *, const std::string &v) { appendString(out, v); }
    template <class Body> void group(const char *, Body body) { body(*this); }
    template <class T, class Each> void counted(const char *, const std::vector<T> &entries, std::size_t, Each each)
    {
        appendInt16(out, static_cast<std::int16_t>(entries.size()));
        for (const T &entry : entries)
            each(*this, entry);
    }
    void plainTexts(const char *name, const std::vector<std::string> &entries, std::size_t limit)
    {
        counted(name, entries, limit, [](ByteWriter &w, const std::string &entry) { w.text("", entry); });
    }
    template <class T, class Each> void rest(const char *, const std::vector<T> &entries, Each each)
    {
        for (const T &entry : entries)
            each(*this, entry);
    }
    void gridColumns(const std::vector<GridColumn> &columns)
    {
        appendInt16(out, static_cast<std::int16_t>(columns.size() - 1));
        const std::size_t mark = beginString(out);
        for (std::size_t i = 0; i + 1 < columns.size(); ++i)
            gridColumnFields(*this, columns[i]);
        endString(out, mark);
    }
    bool strictTiming() const { return true; }

private:
    std::string &out;
};

} // namespace corvanta
