#pragma once

#include "database/statement.h"
#include "document/page.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Statements of a page with the values of its objects in the place of their placeholders. A value never becomes part
// of the statement's text, except numbers and dates that are nothing else: it is bound as a parameter.
namespace corvanta {

// By object of a page: what its placeholder stands for, UTF-8; none where the object has no value.
using ObjectValues = std::vector<std::optional<std::string>>;

struct FilledStatement {
    SqlStatement statement;
    std::string failure; // why the statement cannot run, UTF-8
};

// Fills a statement (bytes of the code page). A text is bound with what stands around its placeholder between the
// apostrophes. An object that is another one's condition object gives an operator. Numbers and dates that were left
// empty are NULL. Fails for a value that is no number, no date or no operator, and for a placeholder in a name.
FilledStatement fillStatement(const Page &p, std::string_view statement, const ObjectValues &values);

// A text with the values in the place of placeholders, both as they are: for people to read. UTF-8.
std::string filledText(const Page &p, std::string_view text, const ObjectValues &values);

// Whether a statement is one SELECT and nothing behind it.
bool isOneSelect(std::string_view statement);

// A Text Box that hides what is typed.
bool isPasswordField(const Page &p, std::int16_t index);

// "-12.5", "1e3" and the like.
bool isNumber(std::string_view text);

// Nothing but digits and the marks of dates and times.
bool isDateText(std::string_view text);

} // namespace corvanta
