#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The four value encodings of every stored structure: little-endian numbers and counted strings.
namespace corvanta {

std::string encodeInt16(std::int16_t value);
std::string encodeInt32(std::int32_t value);
std::string encodeSingle(float value);
// At most 32767 bytes; what is beyond is cut, since the length is a signed 16-bit value.
std::string encodeString(std::string_view text);

// Decoders take what they read off the front of the text. Missing bytes read as 0 and missing
// characters as none. A negative string length ends the text: the string and the rest are empty.
std::int16_t decodeInt16(std::string_view &text);
std::int32_t decodeInt32(std::string_view &text);
float decodeSingle(std::string_view &text);
std::string decodeString(std::string_view &text);

} // namespace corvanta
