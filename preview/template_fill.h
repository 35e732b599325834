#pragma once

#include <map>
#include <string>
#include <vector>

// A template with the values of a record in the place of its placeholders, as a host fills it. Texts are UTF-8.
namespace corvanta {

struct TemplateValue {
    std::string name; // of the placeholder, without "@"
    std::string value;
};

// Fills placeholders in texts, in attributes that hold text and in addresses; values become neither markup nor an
// address with a scheme of their own choice. Elsewhere placeholders stay. The rows (HTML) of a Grid's table body go
// by the id of its element.
std::string fillTemplate(const std::string &html, const std::vector<TemplateValue> &values,
                         const std::map<std::string, std::string> &gridRows);

} // namespace corvanta
