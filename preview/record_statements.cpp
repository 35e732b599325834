#include "preview/record_statements.h"

#include "database/sql.h"
#include "platform/codepage.h"
#include "platform/text.h"

#include <algorithm>

namespace corvanta {

namespace {

const ObjectRecord &objectAt(const Page &p, std::int16_t index) { return p.objects[static_cast<std::size_t>(index)]; }

bool isPlainName(std::string_view name)
{
    return !name.empty() && !(name.front() >= '0' && name.front() <= '9') &&
           std::all_of(name.begin(), name.end(), [](unsigned char c) {
               return c >= 0x80 || c == '_' || (c >= '0' && c <= '9') || ((c | 0x20) >= 'a' && (c | 0x20) <= 'z');
           });
}

// Names that are more than letters and digits stand in marks, as names with blanks do in generated statements.
std::string quotedName(const std::string &name)
{
    if (isPlainName(name))
        return toUtf8(name);
    std::string text = "\"";
    for (const char c : name)
        text += c == '"' ? "\"\"" : std::string(1, c);
    return toUtf8(text + '"');
}

// The length of the name that a text begins with, plain or in marks; 0 when there is none.
std::size_t nameLength(std::string_view text)
{
    const std::size_t open = text.starts_with("U&\"") ? 2 : 0;
    const char mark = text.size() > open ? text[open] : '\0';
    if (mark != '"' && mark != '`')
        return isPlainName(text.substr(0, text.find('.'))) ? std::min(text.find('.'), text.size()) : 0;
    for (std::size_t at = open + 1; at < text.size(); ++at)
        if (text[at] == mark && text.substr(at + 1, 1) != std::string_view(&mark, 1))
            return at + 1;
        else if (text[at] == mark)
            ++at;
    return 0;
}

// Whether a text is names with full stops between them and nothing else.
bool isNamesInSql(std::string_view text)
{
    for (;;) {
        const std::size_t length = nameLength(text);
        if (length == 0 || length == text.size())
            return length != 0;
        if (text[length] != '.')
            return false;
        text.remove_prefix(length + 1);
    }
}

// "schema.table" is two names. A dropped name may hold marks, but for those around one with a blank.
std::string quotedTable(const std::string &table)
{
    if (table.find_first_of("\"`") != std::string::npos && isNamesInSql(quotedIfBlank(table)))
        return toUtf8(quotedIfBlank(table));
    const std::size_t dot = table.find('.');
    return dot == std::string::npos ? quotedName(table)
                                    : quotedName(table.substr(0, dot)) + "." + quotedName(table.substr(dot + 1));
}

bool isOfTable(const Page &p, const std::string &datacol)
{
    const std::string named = tableName(datacol);
    return !columnName(datacol).empty() && (named.empty() || sameText(named, recordTable(p)));
}

// The Text Boxes and Combo Boxes that visitors change a column of the table with.
std::vector<std::int16_t> changingFields(const Page &p)
{
    std::vector<std::int16_t> fields;
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const ObjectRecord &o = objectAt(p, i);
        const bool field = kindOf(o.kind) == Kind::TextBox || kindOf(o.kind) == Kind::ComboBox;
        if (field && !o.has(readonlyFlag) && !o.has(exludesqlFlag) && isOfTable(p, o.datacol))
            fields.push_back(i);
    }
    return fields;
}

std::vector<std::string> updateKeys(const Page &p)
{
    std::vector<std::string> keys;
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const std::string key = columnName(trimmed(objectAt(p, i).updatekey));
        const bool known =
            std::any_of(keys.begin(), keys.end(), [&](const std::string &k) { return sameText(k, key); });
        if (!key.empty() && !known)
            keys.push_back(key);
    }
    return keys;
}

std::string withLineFeeds(const std::string &text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] != '\r' || i + 1 == text.size() || text[i + 1] != '\n')
            plain += text[i];
    return plain;
}

// "250" and "+250.00" are the same; numbers with an exponent are what they are.
std::string plainNumber(std::string text)
{
    if (text.starts_with('+'))
        text.erase(0, 1);
    if (text.find('.') != std::string::npos && text.find_first_of("eE") == std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.ends_with('.'))
            text.pop_back();
    }
    return text;
}

SqlColumn columnOf(const std::vector<SqlColumn> &columns, const std::string &name)
{
    const int place = columnPlace(columns, name);
    return place < 0 ? SqlColumn{} : columns[static_cast<std::size_t>(place)];
}

// What a field's text stores in a column: an empty one nothing. Else what is wrong with it; empty when it fits.
std::string storedField(const std::string &text, const SqlColumn &column, SqlField &stored)
{
    const SqlClass kind = sqlClass(column);
    stored = kind == SqlClass::Text ? text : trimmed(text);
    if (stored->empty())
        stored.reset();
    else if (kind == SqlClass::Number && !isNumber(*stored))
        return "is no number.";
    else if (kind != SqlClass::Text && kind != SqlClass::Number && !isDateText(*stored))
        return "is no date or time (2001-12-31, 23:59:59).";
    return {};
}

// One column that is to be stored.
struct Assignment {
    std::string name; // as it stands in the statement
    SqlParameter parameter;
};

struct Assignments {
    std::vector<Assignment> list;
    std::string failure;
};

// Whether a field still shows what the row holds, line ends and the spelling of numbers apart.
bool isUnchanged(const std::string &text, const std::string &name, const SqlColumn &column, const ShownRecord &record)
{
    const int place = columnPlace(record.columns, name);
    if (place < 0)
        return false;
    const std::string before = record.row[static_cast<std::size_t>(place)].value_or(std::string());
    return withLineFeeds(before) == withLineFeeds(text) ||
           (sqlClass(column) == SqlClass::Number && plainNumber(before) == plainNumber(trimmed(text)));
}

// What the fields store; those of a record only where they differ from it.
Assignments assignmentsOf(const Page &p, const std::vector<SqlColumn> &tableColumns, const ObjectValues &values,
                          const ShownRecord *record)
{
    Assignments assignments;
    for (const std::int16_t i : changingFields(p)) {
        const std::optional<std::string> &value = values[static_cast<std::size_t>(i)];
        if (!value || (isPasswordField(p, i) && value->empty()))
            continue;
        const std::string name = columnName(objectAt(p, i).datacol);
        SqlParameter parameter{{}, columnOf(tableColumns, name), isPasswordField(p, i)};
        if (record && isUnchanged(*value, name, parameter.column, *record))
            continue;
        const std::string failure = storedField(*value, parameter.column, parameter.value);
        if (!failure.empty()) {
            assignments.failure =
                toUtf8(name) + ": " + (parameter.secret ? "what was typed" : '"' + *value + '"') + " " + failure;
            return assignments;
        }
        assignments.list.push_back({quotedName(name), std::move(parameter)});
    }
    return assignments;
}

// Adds " Where " and the update keys with the values of the row.
void addCondition(const Page &p, const ShownRecord &record, FilledStatement &filled)
{
    const std::vector<std::string> keys = updateKeys(p);
    if (keys.empty())
        filled.failure = "The page has no update key.";
    for (std::size_t i = 0; i < keys.size() && filled.failure.empty(); ++i) {
        const int place = columnPlace(record.columns, keys[i]);
        if (place < 0 || !record.row[static_cast<std::size_t>(place)]) {
            filled.failure = "The record has no value for the update key " + toUtf8(keys[i]) + ".";
            return;
        }
        filled.statement.text += (i == 0 ? " Where " : " And ") + quotedName(keys[i]) + " = ?";
        filled.statement.parameters.push_back(
            {record.row[static_cast<std::size_t>(place)], columnOf(record.tableColumns, keys[i]), false});
    }
}

} // namespace

std::string recordTable(const Page &p)
{
    std::string table = trimmed(connectPart(p, 3));
    for (std::int16_t i = 0; table.empty() && i < objectCount(p); ++i)
        table = tableName(objectAt(p, i).datacol);
    return table;
}

std::string tableName(std::string_view datacol)
{
    const std::size_t dot = datacol.rfind('.');
    return dot == std::string_view::npos ? std::string() : std::string(datacol.substr(0, dot));
}

std::string columnName(std::string_view datacol)
{
    return trimmed(datacol.substr(datacol.rfind('.') + 1)); // npos + 1 is the front
}

int columnPlace(const std::vector<SqlColumn> &columns, std::string_view name)
{
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&](const SqlColumn &c) { return sameText(fromUtf8Lossy(c.name), name); });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

SqlStatement describingStatement(const std::string &table)
{
    return {"Select * From " + quotedTable(table) + " Where 1 = 0", {}};
}

FilledStatement updateStatement(const Page &p, const ShownRecord &record, const ObjectValues &values)
{
    const Assignments assignments = assignmentsOf(p, record.tableColumns, values, &record);
    FilledStatement filled;
    filled.failure = assignments.failure;
    if (!filled.failure.empty() || assignments.list.empty())
        return filled;
    for (const Assignment &a : assignments.list) {
        filled.statement.text +=
            (filled.statement.text.empty() ? "Update " + quotedTable(recordTable(p)) + " Set " : ", ") + a.name +
            " = ?";
        filled.statement.parameters.push_back(a.parameter);
    }
    addCondition(p, record, filled);
    return filled;
}

FilledStatement deleteStatement(const Page &p, const ShownRecord &record)
{
    FilledStatement filled;
    filled.statement.text = "Delete From " + quotedTable(recordTable(p));
    addCondition(p, record, filled);
    return filled;
}

FilledStatement insertStatement(const Page &p, const std::vector<SqlColumn> &tableColumns, const ObjectValues &values)
{
    Assignments assignments = assignmentsOf(p, tableColumns, values, nullptr);
    std::erase_if(assignments.list, [](const Assignment &a) { return !a.parameter.value; });
    FilledStatement filled;
    filled.failure = assignments.failure;
    if (filled.failure.empty() && assignments.list.empty())
        filled.failure = "All fields are empty.";
    std::string names, marks;
    for (const Assignment &a : assignments.list) {
        names += (names.empty() ? "" : ", ") + a.name;
        marks += marks.empty() ? "?" : ", ?";
        filled.statement.parameters.push_back(a.parameter);
    }
    filled.statement.text = "Insert Into " + quotedTable(recordTable(p)) + " (" + names + ") Values (" + marks + ")";
    return filled;
}

} // namespace corvanta
