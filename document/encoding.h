#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

// The four value encodings of every stored structure: little-endian numbers and counted strings.
namespace corvanta {

void appendInt16(std::string &bytes, std::int16_t value);
void appendInt32(std::string &bytes, std::int32_t value);
void appendSingle(std::string &bytes, float value);
// At most 32767 bytes; what is beyond is cut, since the length is a signed 16-bit value.
void appendString(std::string &bytes, std::string_view text);

// A counted string that is made in place: begins it and gives its mark, and ends it at what was appended since.
std::size_t beginString(std::string &bytes);
void endString(std::string &bytes, std::size_t mark);

// The same as values of their own.
std::string encodeInt16(std::int16_t value);
std::string encodeInt32(std::int32_t value);
std::string encodeSingle(float value);
std::string encodeString(std::string_view text);

// Decoders take what they read off the front of the text. Missing bytes read as 0 and missing
// characters as none. A negative string length ends the text: the string and the rest are empty.
// Inline: they are called once for every value of a page.
std::uint32_t takeRest(std::string_view &text); // fewer bytes than a value has

template <std::size_t Bytes> std::uint32_t takeLittleEndian(std::string_view &text)
{
    if (text.size() < Bytes)
        return takeRest(text);
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < Bytes; ++i)
        value |= std::uint32_t{static_cast<unsigned char>(text[i])} << (8 * i);
    text.remove_prefix(Bytes);
    return value;
}

inline std::int16_t decodeInt16(std::string_view &text) { return static_cast<std::int16_t>(takeLittleEndian<2>(text)); }

inline std::int32_t decodeInt32(std::string_view &text) { return static_cast<std::int32_t>(takeLittleEndian<4>(text)); }

inline float decodeSingle(std::string_view &text) { return std::bit_cast<float>(takeLittleEndian<4>(text)); }

// A counted string as a part of the text.
inline std::string_view takeString(std::string_view &text)
{
    const std::int16_t length = decodeInt16(text);
    if (length < 0)
        return text = {};
    const std::string_view taken = text.substr(0, static_cast<std::size_t>(length));
    text.remove_prefix(taken.size());
    return taken;
}

inline std::string decodeString(std::string_view &text) { return std::string(takeString(text)); }

} // namespace corvanta
