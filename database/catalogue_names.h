#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The names that the catalogue lists and what of them is dropped into pages.
namespace corvanta {

// In the code page, with "?" for what it lacks.
std::string bytesOfUtf16(std::u16string_view text);

// A name that is listed, and no other like it.
struct ListedName {
    std::string name;  // in the code page, short enough for the name buffer
    std::string shown; // the same for people, in UTF-8: with the true spelling of what the code page lacks
};

// A table as the driver names it.
struct DriverTable {
    std::u16string qualifier, name; // qualifier: the schema; empty where there is only one
};

// How a database reads names in SQL.
struct NameRules {
    std::u16string firstSchema;   // of the search path
    std::u16string quote = u"\""; // around a name; a blank or nothing: there are no quotes
    enum class Folding { None, Upper, Lower } folding = Folding::None; // of names without quotes
    bool escapes = false;                                              // U&"\8868" for characters beyond the code page
};

struct TableName {
    ListedName listed;
    std::string dropped; // the name in SQL, in the code page; empty when no text of the code page reaches the table
};

// Parallel to the tables. Those of the first schema have their own names; where names are equal otherwise, the schema
// or the driver's spelling stands behind them.
std::vector<TableName> tableNames(const std::vector<DriverTable> &tables, const NameRules &rules);

// The name in marks, with its qualifier, whatever it is made of.
std::u16string trueName(const DriverTable &table, const NameRules &rules);
std::u16string quotedName(const std::u16string &name, const std::u16string &mark);

// Parallel to the spellings, which are unlike each other.
std::vector<ListedName> listedNames(const std::vector<std::u16string> &spellings);

} // namespace corvanta
