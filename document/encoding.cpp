#include "document/encoding.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr std::size_t longestString = 32767;

template <std::size_t Bytes> void appendLittleEndian(std::string &bytes, std::uint32_t value)
{
    char digits[Bytes];
    for (std::size_t i = 0; i < Bytes; ++i)
        digits[i] = static_cast<char>((value >> (8 * i)) & 0xFF);
    bytes.append(digits, Bytes);
}

} // namespace

void appendInt16(std::string &bytes, std::int16_t value)
{
    appendLittleEndian<2>(bytes, static_cast<std::uint16_t>(value));
}

void appendInt32(std::string &bytes, std::int32_t value)
{
    appendLittleEndian<4>(bytes, static_cast<std::uint32_t>(value));
}

void appendSingle(std::string &bytes, float value)
{
    appendLittleEndian<4>(bytes, std::bit_cast<std::uint32_t>(value));
}

void appendString(std::string &bytes, std::string_view text)
{
    text = text.substr(0, longestString);
    appendInt16(bytes, static_cast<std::int16_t>(text.size()));
    bytes.append(text);
}

std::size_t beginString(std::string &bytes)
{
    appendInt16(bytes, 0);
    return bytes.size();
}

void endString(std::string &bytes, std::size_t mark)
{
    const std::size_t length = std::min(bytes.size() - mark, longestString);
    bytes.resize(mark + length);
    bytes[mark - 2] = static_cast<char>(length & 0xFF);
    bytes[mark - 1] = static_cast<char>(length >> 8);
}

std::string encodeInt16(std::int16_t value)
{
    std::string bytes;
    appendInt16(bytes, value);
    return bytes;
}

std::string encodeInt32(std::int32_t value)
{
    std::string bytes;
    appendInt32(bytes, value);
    return bytes;
}

std::string encodeSingle(float value)
{
    std::string bytes;
    appendSingle(bytes, value);
    return bytes;
}

std::string encodeString(std::string_view text)
{
    std::string bytes;
    appendString(bytes, text);
    return bytes;
}

std::uint32_t takeRest(std::string_view &text)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
        value |= std::uint32_t{static_cast<unsigned char>(text[i])} << (8 * i);
    text = {};
    return value;
}

} // namespace corvanta
