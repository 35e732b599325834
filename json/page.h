#pragma once

#include "document/page.h"
#include "json/values.h"

// Page and object files in JSON: the fields in file order, the page's grid column list before the objects.
namespace corvanta {

Json pageJson(const Page &p);
// Of an object file with the given version, whose object is the page's only one.
Json objectFileJson(const Page &p, std::int16_t version);

// The page that a JSON text describes; of an object file's JSON a page with just that object. Throws JsonError.
Page pageFromJson(const Json &json);

// The bytes of a page file, or of an object file when the JSON has an "object". Always of the current
// version. Throws JsonError.
std::string fileFromJson(const Json &json);

} // namespace corvanta
