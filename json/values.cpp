#include "json/values.h"

#include "document/page.h"
#include "platform/codepage.h"

#include <cmath>
#include <limits>

namespace corvanta {

namespace {

template <class Integer> Integer integerOf(const Json &value, const std::string &path)
{
    using Limits = std::numeric_limits<Integer>;
    if (!value.is_number_integer())
        throw JsonError(path, "a whole number is expected");
    const bool tooLarge = value.is_number_unsigned() && value.get<std::uint64_t>() > std::uint64_t{Limits::max()};
    const auto number = tooLarge ? 0 : value.get<std::int64_t>();
    if (tooLarge || number < Limits::min() || number > Limits::max())
        throw JsonError(path, value.dump() + " is outside " + std::to_string(Limits::min()) + " to " +
                                  std::to_string(Limits::max()));
    return static_cast<Integer>(number);
}

const std::string &stringOf(const Json &value, const std::string &path)
{
    if (!value.is_string())
        throw JsonError(path, "a string is expected");
    return value.get_ref<const std::string &>();
}

void refuseTooLong(const std::string &bytes, const std::string &path)
{
    if (bytes.size() > fileLimit)
        throw JsonError(path, std::to_string(bytes.size()) + " bytes are more than the " + std::to_string(fileLimit) +
                                  " of a file");
}

int digitOf(char c)
{
    const std::size_t at = std::string_view("0123456789abcdefABCDEF").find(c);
    if (at == std::string_view::npos)
        return -1;
    return static_cast<int>(at < 16 ? at : at - 6);
}

} // namespace

std::int16_t int16Of(const Json &value, const std::string &path) { return integerOf<std::int16_t>(value, path); }

std::int32_t int32Of(const Json &value, const std::string &path) { return integerOf<std::int32_t>(value, path); }

float singleOf(const Json &value, const std::string &path)
{
    if (!value.is_number())
        throw JsonError(path, "a number is expected");
    const auto number = value.get<double>();
    if (!(std::fabs(number) <= std::numeric_limits<float>::max()))
        throw JsonError(path, value.dump() + " is outside single precision");
    return static_cast<float>(number);
}

bool truthOf(const Json &value, const std::string &path)
{
    if (!value.is_boolean())
        throw JsonError(path, "true or false is expected");
    return value.get<bool>();
}

std::string textOf(const Json &value, const std::string &path)
{
    std::optional<std::string> bytes = fromUtf8(stringOf(value, path));
    if (!bytes)
        throw JsonError(path, "a character is not in code page " + std::to_string(codePageNumber()));
    refuseTooLong(*bytes, path);
    return *std::move(bytes);
}

std::string bytesOf(const Json &value, const std::string &path)
{
    const std::string &digits = stringOf(value, path);
    if (digits.size() % 2 != 0)
        throw JsonError(path, "an even number of hexadecimal digits is expected");
    std::string bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        const int high = digitOf(digits[i]), low = digitOf(digits[i + 1]);
        if (high < 0 || low < 0)
            throw JsonError(path, "hexadecimal digits are expected");
        bytes += static_cast<char>(high * 16 + low);
    }
    refuseTooLong(bytes, path);
    return bytes;
}

std::string hexadecimal(std::string_view bytes)
{
    constexpr const char *digits = "0123456789abcdef";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

} // namespace corvanta
