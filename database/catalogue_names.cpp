#include "database/catalogue_names.h"

#include "database/catalogue.h"
#include "database/sql.h"
#include "platform/codepage.h"
#include "platform/text.h"

#include <algorithm>
#include <map>
#include <set>

namespace corvanta {

namespace {

constexpr std::size_t mostSpelt = 16; // characters that a name in the code page tells by number

// A name before it is made unlike the others.
struct Candidate {
    std::u16string spelling, qualifier; // the qualifier is empty where none is shown
};

bool spellable(const std::u16string &text)
{
    return std::all_of(text.begin(), text.end(), [](char16_t unit) { return byteOf(unit).has_value(); });
}

// "U+8868 U+4E00"
std::string byNumbers(const std::u16string &text)
{
    std::string numbers;
    for (const char16_t unit : text.substr(0, mostSpelt))
        numbers += (numbers.empty() ? "U+" : " U+") + hexDigits(unit, 4);
    return numbers;
}

std::string inBrackets(const std::string &text) { return text.empty() ? "" : " (" + text + ")"; }

// Short enough for the name buffer, also with something behind it.
std::string fitting(const std::string &name, const std::string &behind)
{
    const std::size_t room = nameBufferSize - 1;
    return name.substr(0, room - std::min(room, behind.size())) + behind.substr(0, room);
}

std::string plainly(const Candidate &c)
{
    return fitting(bytesOfUtf16(c.spelling), inBrackets(bytesOfUtf16(c.qualifier)));
}

std::string shownOf(const Candidate &c)
{
    std::string shown = utf8FromUtf16(c.spelling);
    if (!spellable(c.spelling))
        shown = toUtf8(bytesOfUtf16(c.spelling)) + inBrackets(shown);
    return shown + inBrackets(utf8FromUtf16(c.qualifier));
}

std::vector<ListedName> unlikeEachOther(const std::vector<Candidate> &candidates)
{
    std::map<std::string, int> times;
    for (const Candidate &c : candidates)
        ++times[plainly(c)];
    std::set<std::string> used;
    std::vector<ListedName> names;
    for (const Candidate &c : candidates) {
        ListedName listed{plainly(c), shownOf(c)};
        if (times[listed.name] > 1 && !spellable(c.spelling + c.qualifier))
            listed.name = fitting(listed.name, inBrackets(byNumbers(c.spelling + c.qualifier)));
        const ListedName first = listed;
        for (int number = 2; !used.insert(listed.name).second; ++number) {
            const std::string behind = inBrackets(std::to_string(number));
            listed = {fitting(first.name, behind), first.shown + behind};
        }
        names.push_back(std::move(listed));
    }
    return names;
}

char16_t folded(char16_t unit, NameRules::Folding folding)
{
    switch (folding) {
    case NameRules::Folding::Upper: return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 0x20) : unit;
    case NameRules::Folding::Lower: return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
    case NameRules::Folding::None: break;
    }
    return unit;
}

// Whether SQL takes the name as it stands.
bool isPlain(const std::u16string &name, NameRules::Folding folding)
{
    const bool letters = std::all_of(name.begin(), name.end(), [&](char16_t unit) {
        const bool letter = (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || unit >= 0x80;
        return (letter || unit == u'_' || (unit >= u'0' && unit <= u'9')) && folded(unit, folding) == unit;
    });
    return letters && !name.empty() && !(name[0] >= u'0' && name[0] <= u'9') && !isReservedWord(bytesOfUtf16(name));
}

std::u16string doubled(const std::u16string &name, const std::u16string &mark)
{
    std::u16string text;
    for (const char16_t unit : name)
        text += mark == std::u16string(1, unit) ? mark + mark : std::u16string(1, unit);
    return text;
}

std::string escaped(const std::u16string &name)
{
    std::string text = "U&\"";
    for (const char16_t unit : name)
        text += '\\' + hexDigits(unit, 4);
    return text + '"';
}

bool holdsBlank(const std::u16string &name) { return name.find(u' ') != std::u16string::npos; }

// A name in a statement without quotes around the whole.
std::string inSql(const std::u16string &name, const NameRules &rules)
{
    if (!spellable(name))
        return escaped(name);
    const bool bare = isPlain(name, rules.folding) || rules.quote.empty() || rules.quote == u" ";
    return bytesOfUtf16(bare ? name : quotedName(name, rules.quote));
}

// Generated statements put double quotes around what holds a blank.
std::string droppedText(const std::vector<std::u16string> &parts, const NameRules &rules)
{
    const bool spelt = std::all_of(parts.begin(), parts.end(), spellable);
    if (!spelt && !rules.escapes)
        return {};
    std::string text;
    for (const std::u16string &part : parts) {
        const bool quotedLater = spelt && std::any_of(parts.begin(), parts.end(), holdsBlank);
        const std::string name = quotedLater                  ? bytesOfUtf16(doubled(part, u"\""))
                                 : holdsBlank(part) && !spelt ? escaped(part)
                                                              : inSql(part, rules);
        text += (text.empty() ? "" : quotedLater ? "\".\"" : ".") + name;
    }
    return text;
}

} // namespace

std::string bytesOfUtf16(std::u16string_view text) { return fromUtf8Lossy(utf8FromUtf16(text)); }

std::vector<TableName> tableNames(const std::vector<DriverTable> &tables, const NameRules &rules)
{
    std::map<std::u16string, int> schemas;
    for (const DriverTable &t : tables)
        ++schemas[t.name];
    const auto first = [&](const DriverTable &t) { return t.qualifier.empty() || t.qualifier == rules.firstSchema; };
    std::vector<Candidate> candidates;
    candidates.reserve(tables.size());
    for (const DriverTable &t : tables)
        candidates.push_back({t.name, first(t) || schemas[t.name] == 1 ? std::u16string() : t.qualifier});
    const std::vector<ListedName> listed = unlikeEachOther(candidates);
    std::vector<TableName> names;
    for (std::size_t i = 0; i < tables.size(); ++i) {
        std::vector<std::u16string> parts{tables[i].name};
        if (!first(tables[i]))
            parts.insert(parts.begin(), tables[i].qualifier);
        names.push_back({listed[i], droppedText(parts, rules)});
    }
    return names;
}

std::u16string trueName(const DriverTable &table, const NameRules &rules)
{
    const std::u16string mark = rules.quote == u" " ? std::u16string() : rules.quote;
    const std::u16string qualifier = table.qualifier.empty() ? u"" : quotedName(table.qualifier, mark) + u".";
    return qualifier + quotedName(table.name, mark);
}

std::u16string quotedName(const std::u16string &name, const std::u16string &mark)
{
    return mark + doubled(name, mark) + mark;
}

std::vector<ListedName> listedNames(const std::vector<std::u16string> &spellings)
{
    std::vector<Candidate> candidates;
    candidates.reserve(spellings.size());
    for (const std::u16string &spelling : spellings)
        candidates.push_back({spelling, {}});
    return unlikeEachOther(candidates);
}

} // namespace corvanta
