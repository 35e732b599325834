#include "document/parse.h"

#include "document/page.h"
#include "platform/asking.h"
#include "platform/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

namespace corvanta {

namespace {

constexpr double largest16 = 32767, largest32 = 2147483647;

double clamped(double value, double limit) { return std::clamp(std::nearbyint(value), -limit, limit); }

// The leading hexadecimal digits as a 32-bit pattern; none when they do not fit.
std::optional<std::int32_t> hexadecimal(std::string_view digits)
{
    std::uint32_t value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (result.ec == std::errc::result_out_of_range)
        return std::nullopt;
    return static_cast<std::int32_t>(value);
}

bool hasHexPrefix(std::string_view text) { return sameText(text.substr(0, 2), "&H"); }

std::string colourDigits(std::string_view text)
{
    std::string digits = trimmed(text);
    digits.erase(0, hasHexPrefix(digits) ? 2 : digits.starts_with('#') ? 1 : 0);
    return digits;
}

} // namespace

std::int16_t ParseInt16Clamped(std::string_view text)
{
    return static_cast<std::int16_t>(clamped(leadingNumber(text), largest16));
}

std::int32_t ParseInt32Clamped(std::string_view text)
{
    const double value = hasHexPrefix(text) ? hexadecimal(text.substr(2)).value_or(0) : leadingNumber(text);
    return static_cast<std::int32_t>(clamped(value, largest32));
}

std::string changedText(std::string_view text, const std::string &before)
{
    return text == before ? before : trimmed(text);
}

std::int16_t changedInt16(std::string_view text, std::int16_t before)
{
    return text == std::to_string(before) ? before : ParseInt16Clamped(text);
}

std::int32_t ParseColourText(std::string_view text)
{
    if (!hexadecimal(trimmed(text)) && editing().msgflag)
        showMessage({"Overflow", "Long conversion Error", Icon::Information, Buttons::Ok});
    return ParseInt32Clamped("&H" + trimmed(text));
}

std::int32_t colourShown(std::string_view text) { return ParseInt32Clamped("&H" + colourDigits(text)); }

bool isColourText(std::string_view text)
{
    const std::string digits = colourDigits(text);
    const bool hexadecimalOnly = digits.find_first_not_of("0123456789ABCDEFabcdef") == std::string::npos;
    return !digits.empty() && hexadecimalOnly && hexadecimal(digits);
}

bool CheckColourText(std::string_view text, std::string_view message)
{
    const bool valid = isColourText(text);
    if (!valid)
        showExclamation(std::string(message) + "  A color is one to eight hexadecimal digits.", "Properties Error");
    return valid;
}

std::int32_t changedColour(std::string_view text, std::int32_t before)
{
    const bool same = upperCase(colourDigits(text)) == colourText(before);
    return same || !isColourText(text) ? before : ParseColourText(colourDigits(text));
}

std::string colourText(std::int32_t colour)
{
    char digits[8];
    const auto end = std::to_chars(digits, digits + sizeof digits, static_cast<std::uint32_t>(colour), 16).ptr;
    return upperCase(std::string_view(digits, static_cast<std::size_t>(end - digits)));
}

} // namespace corvanta
