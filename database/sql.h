#pragma once

#include "document/page.h"

#include <string>
#include <string_view>

// SELECT statements from the page's default table and its bound objects. A placeholder is "@", the object's
// name, "@"; nothing is validated or escaped in it.
namespace corvanta {

// Operator and quoting of a bound object's value.
enum class ValueClass { Text, Number, Date };
ValueClass valueClass(const Page &p, std::int16_t index);

// Whether no database takes the word as a name without quotes.
bool isReservedWord(std::string_view word);

// A name as it stands in a statement: in double quotes when it holds a blank.
std::string quotedIfBlank(std::string_view name);

// A text, or the message that the user is to be shown and why there is none.
struct SqlText {
    std::string text;
    std::string error; // empty on success
};

// The new statement for a statement (trimmed), which keeps its column list and ORDER BY. On failure the text is
// the statement as it was, and the message belongs under the title "Error".
SqlText GenerateSelect(const Page &p, std::string_view statement);

// "Where " and the conditions of all bound objects; with an empty text when one has no name.
SqlText BuildWhereClause(const Page &p);

// The condition of one bound object.
SqlText BuildCondition(const Page &p, std::int16_t index);

// The text between "select" and "from"; empty when one is missing.
std::string ExtractColumnList(std::string_view statement);

// A blank and everything from "order by" on; empty when there is none.
std::string ExtractOrderBy(std::string_view statement);

// "*" for an empty column list, else the list.
std::string DefaultColumns(std::string_view columns);

// "Select * From " and the table. An empty table's message belongs under the title "Properties Error".
SqlText selectWholeTable(std::string_view table);

} // namespace corvanta
