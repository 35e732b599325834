#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

// JSON as the tools read and print it. Strings are UTF-8 in JSON and bytes of the code page in records.
// Paths name a value from the root "$", e.g. "$.objects[3].ptop".
namespace corvanta {

using Json = nlohmann::ordered_json;

// A refused JSON text; what() is the path of the value, a colon and the reason.
class JsonError : public std::runtime_error {
public:
    JsonError(const std::string &path, const std::string &reason) : std::runtime_error(path + ": " + reason) {}
};

std::string keyPath(const std::string &path, std::string_view key);
std::string itemPath(const std::string &path, std::size_t item);

// Parses a whole text. Throws JsonError for malformed JSON, duplicate keys, more than 1000 levels,
// more than 100 keys in one object or more than a million values.
Json parseJson(std::string_view text);
// With one blank per level and a new line at the end.
std::string printJson(const Json &json);

// The value as a record holds it. They throw JsonError for a value of another type, a number outside its
// width, a character that the code page lacks and a text that no file could hold.
std::int16_t int16Of(const Json &value, const std::string &path);
std::int32_t int32Of(const Json &value, const std::string &path);
float singleOf(const Json &value, const std::string &path);
bool truthOf(const Json &value, const std::string &path);
std::string textOf(const Json &value, const std::string &path);
// Bytes from a string of hexadecimal digits, and back.
std::string bytesOf(const Json &value, const std::string &path);
std::string hexadecimal(std::string_view bytes);

} // namespace corvanta
