#include "preview/statement_fill.h"

#include "database/sql.h"
#include "platform/codepage.h"
#include "platform/text.h"

#include <algorithm>
#include <array>

namespace corvanta {

namespace {

constexpr std::int16_t passwordObject = 1;
constexpr std::size_t longestNumber = 40; // characters

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isBlankChar(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

// "@name@" at the front of a text.
struct Placeholder {
    std::int16_t object = noObject;
    std::size_t length = 0;
};

Placeholder placeholderAt(const Page &p, std::string_view text)
{
    const std::size_t end = text.find('@', 1);
    if (text.empty() || text.front() != '@' || end == std::string_view::npos || end == 1)
        return {};
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        if (sameText(p.objects[static_cast<std::size_t>(i)].ctlname, text.substr(1, end - 1)))
            return {i, end + 1};
    return {};
}

bool isCondition(const Page &p, std::int16_t object)
{
    const std::string &name = p.objects[static_cast<std::size_t>(object)].ctlname;
    return std::any_of(p.objects.begin(), p.objects.end(),
                       [&](const ObjectRecord &o) { return sameText(o.condobjname, name); });
}

// The operator in the spelling of the list; empty when it is none.
std::string operatorOf(const std::string &text)
{
    constexpr std::array<const char *, 9> operators = {"=", "<>", "!=", "<", ">", "<=", ">=", "Like", "Not Like"};
    const std::string given = trimmed(text);
    for (const char *known : operators)
        if (sameText(given, known))
            return known;
    return given.empty() ? "=" : "";
}

// One statement that is being filled. The text is read as bytes of the code page and written as UTF-8.
class Filler {
public:
    Filler(const Page &page, std::string_view statement, const ObjectValues &objectValues)
        : p(page), text(statement), values(objectValues)
    {
    }

    FilledStatement fill()
    {
        while (at < text.size() && filled.failure.empty())
            step();
        filled.statement.text = toUtf8(out);
        return std::move(filled);
    }

private:
    const Page &p;
    std::string_view text;
    const ObjectValues &values;
    std::size_t at = 0;
    std::string out; // bytes of the code page
    FilledStatement filled;

    std::string valueOf(std::int16_t object) const
    {
        return values[static_cast<std::size_t>(object)].value_or(std::string());
    }
    void fail(std::int16_t object, const std::string &what)
    {
        const std::string name = toUtf8(p.objects[static_cast<std::size_t>(object)].ctlname);
        filled.failure =
            name + ": " + (isPasswordField(p, object) ? "what was typed" : '"' + valueOf(object) + '"') + " " + what;
    }
    void copy(std::size_t length)
    {
        out += text.substr(at, length);
        at = std::min(at + length, text.size());
    }
    void bindValue(std::string value, bool secret, SqlClass kind = SqlClass::Text)
    {
        out += '?';
        filled.statement.parameters.push_back({std::move(value), columnOfClass(kind), secret});
    }

    void step()
    {
        const std::string_view rest = text.substr(at);
        if (rest.starts_with("--"))
            copy(std::min(rest.find('\n'), rest.size()));
        else if (rest.starts_with("/*"))
            copy(std::min(rest.find("*/", 2), rest.size() - 2) + 2);
        else if (rest.front() == '\'')
            literal(rest.substr(0, closingMark(rest)));
        else if (rest.front() == '"')
            name(rest.substr(0, closingMark(rest)));
        else if (const Placeholder found = placeholderAt(p, rest); found.length > 0)
            bare(found);
        else
            copy(1);
    }

    // The length of a literal or name in marks, doubled marks inside.
    static std::size_t closingMark(std::string_view rest)
    {
        for (std::size_t i = 1; i < rest.size(); ++i) {
            if (rest[i] != rest.front())
                continue;
            if (i + 1 == rest.size() || rest[i + 1] != rest.front())
                return i + 1;
            ++i;
        }
        return rest.size();
    }

    // The content of a literal with its placeholders filled, UTF-8; whether one is a password's.
    std::string content(std::string_view literal, std::int16_t &lastObject, bool &secret)
    {
        const bool closed = literal.size() > 1 && literal.back() == '\'';
        std::string_view inner = literal.substr(1, literal.size() - (closed ? 2 : 1));
        std::string value;
        while (!inner.empty()) {
            const Placeholder found = placeholderAt(p, inner);
            if (found.length > 0) {
                value += valueOf(found.object);
                lastObject = found.object;
                secret = secret || isPasswordField(p, found.object);
                inner.remove_prefix(found.length);
                continue;
            }
            value += toUtf8(inner.substr(0, 1));
            inner.remove_prefix(inner.starts_with("''") ? 2 : 1);
        }
        return value;
    }

    // Where the "{" of "{d", "{t" or "{ts" stands, when that is what was written last.
    std::size_t escapeStart() const
    {
        const std::size_t brace = out.rfind('{');
        if (brace == std::string::npos)
            return std::string::npos;
        const std::string word = trimmed(std::string_view(out).substr(brace + 1));
        return sameText(word, "d") || sameText(word, "t") || sameText(word, "ts") ? brace : std::string::npos;
    }

    std::size_t behindEscape() const { return std::min(text.find('}', at), text.size() - 1) + 1; }

    void literal(std::string_view whole)
    {
        std::int16_t object = noObject;
        bool secret = false;
        std::string value = content(whole, object, secret);
        if (object == noObject)
            return copy(whole.size());
        at += whole.size();
        const std::size_t brace = escapeStart();
        if (brace == std::string::npos)
            return bindValue(std::move(value), secret);
        if (isDateText(value) && secret) { // a bound value is not shown
            const std::string word = trimmed(std::string_view(out).substr(brace + 1));
            out.erase(brace);
            at = behindEscape();
            return bindValue(std::move(value), true,
                             sameText(word, "d")   ? SqlClass::Date
                             : sameText(word, "t") ? SqlClass::Time
                                                   : SqlClass::DateAndTime);
        }
        if (isDateText(value)) {
            // Some drivers know the escape only with a blank.
            out += (out.ends_with(' ') ? "'" : " '") + value + '\'';
            return;
        }
        if (!trimmed(value).empty())
            return fail(object, "is no date or time (2001-12-31, 23:59:59).");
        out.erase(brace);
        out += "NULL";
        at = behindEscape();
    }

    void name(std::string_view whole)
    {
        for (std::size_t i = 0; i < whole.size(); ++i)
            if (const Placeholder found = placeholderAt(p, whole.substr(i)); found.length > 0)
                return fail(found.object, "cannot be part of a name.");
        copy(whole.size());
    }

    void bare(const Placeholder &found)
    {
        at += found.length;
        const std::string value = trimmed(valueOf(found.object));
        if (isCondition(p, found.object)) {
            const std::string known = operatorOf(value);
            out += known;
            if (known.empty())
                fail(found.object, "is no comparison (=, <>, <, >, <=, >=, Like, Not Like).");
            return;
        }
        switch (valueClass(p, found.object)) {
        case ValueClass::Text: return bindValue(valueOf(found.object), isPasswordField(p, found.object));
        case ValueClass::Number:
            if (!value.empty() && !isNumber(value))
                return fail(found.object, "is no number.");
            if (!value.empty() && isPasswordField(p, found.object)) // a bound value is not shown
                return bindValue(value, true, SqlClass::Number);
            // A sign behind a "-" would begin a comment.
            out += value.empty() ? "NULL" : isDigit(value.front()) ? value : "(" + value + ")";
            return;
        case ValueClass::Date:
            if (!value.empty() && !isDateText(value))
                return fail(found.object, "is no date (2001-12-31).");
            if (!value.empty() && isPasswordField(p, found.object))
                return bindValue(value, true, SqlClass::Date);
            out += value.empty() ? "NULL" : "{d '" + value + "'}";
            return;
        }
    }
};

} // namespace

bool isDateText(std::string_view text)
{
    return text.size() <= longestNumber && std::any_of(text.begin(), text.end(), isDigit) &&
           std::all_of(text.begin(), text.end(),
                       [](char c) { return isDigit(c) || c == '-' || c == ':' || c == '.' || c == ' '; });
}

bool isPasswordField(const Page &p, std::int16_t index)
{
    const auto element = static_cast<std::size_t>(p.ctlindex[static_cast<std::size_t>(index)]);
    return kindOf(p.objects[static_cast<std::size_t>(index)].kind) == Kind::TextBox &&
           p.tbxextras[element].sysobj == passwordObject;
}

bool isNumber(std::string_view text)
{
    std::size_t i = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    const auto digits = [&] {
        const std::size_t start = i;
        while (i < text.size() && isDigit(text[i]))
            ++i;
        return i - start;
    };
    std::size_t count = digits();
    if (i < text.size() && text[i] == '.') {
        ++i;
        count += digits();
    }
    if (count > 0 && i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        ++i;
        i += i < text.size() && (text[i] == '-' || text[i] == '+') ? 1 : 0;
        if (digits() == 0)
            return false;
    }
    return count > 0 && i == text.size() && text.size() <= longestNumber;
}

FilledStatement fillStatement(const Page &p, std::string_view statement, const ObjectValues &values)
{
    return Filler(p, statement, values).fill();
}

std::string filledText(const Page &p, std::string_view text, const ObjectValues &values)
{
    std::string filled;
    while (!text.empty()) {
        const Placeholder found = placeholderAt(p, text);
        if (found.length == 0)
            filled += toUtf8(text.substr(0, 1));
        else if (isPasswordField(p, found.object))
            filled += "•••"; // what is told stays on the screen
        else
            filled += values[static_cast<std::size_t>(found.object)].value_or(std::string());
        text.remove_prefix(std::max<std::size_t>(found.length, 1));
    }
    return filled;
}

bool isOneSelect(std::string_view statement)
{
    while (!statement.empty() && isBlankChar(statement.front()))
        statement.remove_prefix(1);
    while (!statement.empty() && (isBlankChar(statement.back()) || statement.back() == ';'))
        statement.remove_suffix(1);
    const bool select = sameText(statement.substr(0, 6), "select") && statement.size() > 6 &&
                        !std::isalnum(static_cast<unsigned char>(statement[6]));
    // Databases differ in what begins and ends a literal or a comment: a ";" is refused wherever it stands.
    return select && statement.find(';') == std::string_view::npos;
}

} // namespace corvanta
