#include "document/encoding.h"

#include <algorithm>
#include <bit>

namespace corvanta {

namespace {

constexpr std::size_t longestString = 32767;

std::string littleEndian(std::uint32_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>((value >> (8 * i)) & 0xFF);
    return text;
}

std::uint32_t takeLittleEndian(std::string_view &text, std::size_t bytes)
{
    const std::size_t present = std::min(bytes, text.size());
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < present; ++i)
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(text[i])) << (8 * i);
    text.remove_prefix(present);
    return value;
}

} // namespace

std::string encodeInt16(std::int16_t value) { return littleEndian(static_cast<std::uint16_t>(value), 2); }

std::string encodeInt32(std::int32_t value) { return littleEndian(static_cast<std::uint32_t>(value), 4); }

std::string encodeSingle(float value) { return littleEndian(std::bit_cast<std::uint32_t>(value), 4); }

std::string encodeString(std::string_view text)
{
    text = text.substr(0, longestString);
    return encodeInt16(static_cast<std::int16_t>(text.size())).append(text);
}

std::int16_t decodeInt16(std::string_view &text) { return static_cast<std::int16_t>(takeLittleEndian(text, 2)); }

std::int32_t decodeInt32(std::string_view &text) { return static_cast<std::int32_t>(takeLittleEndian(text, 4)); }

float decodeSingle(std::string_view &text) { return std::bit_cast<float>(takeLittleEndian(text, 4)); }

std::string decodeString(std::string_view &text)
{
    const std::int16_t length = decodeInt16(text);
    if (length < 0) {
        text = {};
        return {};
    }
    const std::string_view taken = text.substr(0, static_cast<std::size_t>(length));
    text.remove_prefix(taken.size());
    return std::string(taken);
}

} // namespace corvanta
