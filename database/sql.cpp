#include "database/sql.h"

#include "platform/text.h"

#include <algorithm>
#include <array>

namespace corvanta {
namespace {

// Words that no database takes as a column's name without quotes.
constexpr std::array reservedWords{
    "all",    "and",    "any",     "as",         "between", "by",       "case",  "check",  "column", "constraint",
    "create", "cross",  "default", "delete",     "desc",    "distinct", "drop",  "else",   "end",    "except",
    "exists", "for",    "foreign", "from",       "full",    "grant",    "group", "having", "in",     "inner",
    "insert", "into",   "is",      "join",       "left",    "like",     "not",   "null",   "on",     "or",
    "order",  "outer",  "primary", "references", "right",   "select",   "set",   "table",  "then",   "to",
    "union",  "unique", "update",  "user",       "using",   "values",   "when",  "where",  "with"};

ValueClass inputClass(std::int16_t inptype)
{
    switch (inptype) {
    case 1:
    case 2:
    case 6: return ValueClass::Number;
    case 3: return ValueClass::Date;
    default: return ValueClass::Text;
    }
}

std::int16_t inputType(const Page &p, std::int16_t index)
{
    auto element = static_cast<std::size_t>(p.ctlindex[index]);
    return element < p.tbxextras.size() ? p.tbxextras[element].inptype : std::int16_t{0};
}

std::string placeholder(const std::string &name) { return "@" + name + "@"; }

std::string operatorText(const std::string &condobjname, ValueClass value)
{
    if (!condobjname.empty())
        return placeholder(condobjname) + " ";
    return value == ValueClass::Text ? "Like " : "= ";
}

std::string valueText(const ObjectRecord &object, ValueClass value)
{
    switch (value) {
    case ValueClass::Number: return placeholder(object.ctlname);
    case ValueClass::Date: return "{d'" + placeholder(object.ctlname) + "'}";
    case ValueClass::Text: break;
    }
    return "'" + placeholder(object.ctlname) + (object.condobjname.empty() ? "%'" : "'");
}

bool contributes(const ObjectRecord &object) { return !object.datacol.empty() && !object.has(exludesqlFlag); }

} // namespace

ValueClass valueClass(const Page &p, std::int16_t index)
{
    std::optional<Kind> kind = kindOf(p.objects[index].kind);
    if (!kind)
        return ValueClass::Text;
    switch (*kind) {
    case Kind::TextBox: return inputClass(inputType(p, index));
    case Kind::Button:
    case Kind::HotSpot:
    case Kind::ListBox:
    case Kind::Label:
    case Kind::Image:
    case Kind::Ticker:
    case Kind::Animation:
    case Kind::Grid:
    case Kind::ImageDb:
    case Kind::ComboBox:
    case Kind::File:
    case Kind::Url: break;
    }
    return ValueClass::Text;
}

bool isReservedWord(std::string_view word)
{
    return std::any_of(reservedWords.begin(), reservedWords.end(),
                       [&](std::string_view reserved) { return sameText(word, reserved); });
}

std::string quotedIfBlank(std::string_view name)
{
    std::string text(name);
    return name.find(' ') == std::string_view::npos ? text : '"' + text + '"';
}

SqlText GenerateSelect(const Page &p, std::string_view statement)
{
    std::string table = connectPart(p, 3);
    if (table.empty())
        return {std::string(statement), "No Default Table."};
    SqlText where = BuildWhereClause(p);
    if (!where.error.empty())
        return {std::string(statement), where.error};
    return {"Select " + DefaultColumns(ExtractColumnList(statement)) + " From " + quotedIfBlank(table) + " " +
                where.text + ExtractOrderBy(statement),
            {}};
}

SqlText BuildWhereClause(const Page &p)
{
    std::string conditions;
    for (std::int16_t index = 0; index < objectCount(p); ++index) {
        if (!contributes(p.objects[index]))
            continue;
        SqlText condition = BuildCondition(p, index);
        if (!condition.error.empty())
            return condition;
        conditions += (conditions.empty() ? "" : " And ") + condition.text;
    }
    return {"Where " + conditions, {}};
}

SqlText BuildCondition(const Page &p, std::int16_t index)
{
    const ObjectRecord &object = p.objects[index];
    if (object.ctlname.empty())
        return {{}, "Object attached to '" + object.datacol + "' has no name."};
    ValueClass value = valueClass(p, index);
    std::string condition =
        quotedIfBlank(object.datacol) + " " + operatorText(object.condobjname, value) + valueText(object, value);
    if (value == ValueClass::Number)
        condition = "(" + condition + " Or " + placeholder(object.ctlname) + " is Null)";
    return {condition, {}};
}

std::string ExtractColumnList(std::string_view statement)
{
    std::string folded = lowerCase(statement);
    std::size_t blank = folded.find("select");
    if (blank != std::string::npos)
        blank = folded.find(' ', blank);
    std::size_t start = folded.find_first_not_of(' ', blank);
    if (blank == std::string::npos || start == std::string::npos)
        return {};
    std::size_t from = folded.find("from", start);
    if (from == std::string::npos || from < start + 2)
        return {};
    return std::string(statement.substr(start, from - start - 1));
}

std::string ExtractOrderBy(std::string_view statement)
{
    std::size_t start = lowerCase(statement).find("order by");
    return start == std::string::npos ? std::string() : " " + std::string(statement.substr(start));
}

std::string DefaultColumns(std::string_view columns) { return std::string(columns.empty() ? "*" : columns); }

SqlText selectWholeTable(std::string_view table)
{
    if (table.empty())
        return {{}, "No default table."};
    return {"Select * From " + quotedIfBlank(table), {}};
}

} // namespace corvanta
