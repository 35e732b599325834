#include "platform/text.h"

#include "platform/codepage.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <cwctype>
#include <limits>
#include <locale.h>

namespace corvanta {

namespace {

using CaseTable = std::array<char, 256>;

struct CaseTables {
    int codePage = 0;
    CaseTable upper, lower;
};

char32_t mappedCharacter(char32_t character, bool toUpper)
{
    static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    const auto wide = static_cast<wint_t>(character);
    if (unicode != nullptr)
        return static_cast<char32_t>(toUpper ? towupper_l(wide, unicode) : towlower_l(wide, unicode));
    return static_cast<char32_t>(toUpper ? std::towupper(wide) : std::towlower(wide));
}

CaseTable caseTable(bool toUpper)
{
    CaseTable table;
    for (unsigned i = 0; i < table.size(); ++i) {
        const auto byte = static_cast<unsigned char>(i);
        table[i] = static_cast<char>(byteOf(mappedCharacter(characterOf(byte), toUpper)).value_or(byte));
    }
    return table;
}

const CaseTables &caseTables()
{
    thread_local CaseTables tables;
    if (tables.codePage != codePageNumber())
        tables = {codePageNumber(), caseTable(true), caseTable(false)};
    return tables;
}

std::string mapped(std::string_view text, const CaseTable &table)
{
    std::string result(text);
    for (char &c : result)
        c = table[static_cast<unsigned char>(c)];
    return result;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// The nearest number that a double holds: 0 or the largest.
double outOfRangeNumber(const std::string &text)
{
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    return std::min(strtod_l(text.c_str(), nullptr, plain), std::numeric_limits<double>::max());
}

} // namespace

std::string trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') + 1 - first));
}

std::string upperCase(std::string_view text) { return mapped(text, caseTables().upper); }

std::string lowerCase(std::string_view text) { return mapped(text, caseTables().lower); }

bool sameText(std::string_view a, std::string_view b)
{
    const CaseTable &upper = caseTables().upper;
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](char x, char y) {
        return upper[static_cast<unsigned char>(x)] == upper[static_cast<unsigned char>(y)];
    });
}

std::string doubleAmpersands(std::string_view text)
{
    std::string result;
    for (const char c : text)
        result.append(c == '&' ? 2 : 1, c);
    return result;
}

std::string fileNamePart(std::string_view path) { return std::string(path.substr(path.find_last_of(":\\") + 1)); }

std::string directoryPart(std::string_view path) { return std::string(path.substr(0, path.rfind('\\') + 1)); }

std::string withoutTrailingBackslash(std::string_view directory)
{
    const bool driveRoot = directory.size() == 3 && directory[1] == ':';
    if (directory.ends_with('\\') && !driveRoot)
        directory.remove_suffix(1);
    return std::string(directory);
}

std::string withTrailingBackslash(std::string_view directory)
{
    std::string result(directory);
    if (!result.ends_with('\\'))
        result += '\\';
    return result;
}

double leadingNumber(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    if (text.empty() || (!isDigit(text.front()) && text.front() != '.'))
        return 0; // also "inf", "nan" and a second sign
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range)
        value = outOfRangeNumber(std::string(text.data(), end));
    return negative ? 0 - value : value;
}

std::string hexDigits(std::uint64_t value, std::size_t digits)
{
    std::string text(digits, '0');
    for (std::size_t i = digits; i-- > 0; value >>= 4)
        text[i] = "0123456789ABCDEF"[value & 0xF];
    return text;
}

} // namespace corvanta
