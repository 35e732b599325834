#include "database/catalogue_reason.h"

#include "platform/codepage.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <vector>

namespace corvanta {

namespace {

constexpr const char *mask = "***";
constexpr const char *notShown = "The driver's reason is not shown, since it holds the password.";

std::string lower(std::string_view text)
{
    std::string folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(),
                   [](unsigned char c) { return static_cast<char>(c < 0x80 ? std::tolower(c) : c); });
    return folded;
}

bool isWordByte(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || c == '_' || std::isalnum(byte) != 0;
}

bool isWholeWord(const std::string &text, std::size_t at, std::size_t length)
{
    const std::size_t end = at + length;
    return !(at > 0 && isWordByte(text[at - 1]) && isWordByte(text[at])) &&
           !(end < text.size() && isWordByte(text[end]) && isWordByte(text[end - 1]));
}

// A character written twice, as marks are within marks.
std::string doubled(const std::string &text, char mark)
{
    std::string twice;
    for (const char c : text)
        twice += c == mark ? std::string(2, c) : std::string(1, c);
    return twice;
}

std::string percentEncoded(const std::string &text)
{
    constexpr const char *digits = "0123456789abcdef";
    std::string encoded;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        encoded += std::isalnum(byte) != 0 && byte < 0x80 ? std::string(1, c)
                                                          : std::string{'%', digits[byte >> 4], digits[byte & 15]};
    }
    return encoded;
}

// How a driver may spell a password: as it is, between marks, in an address, or with the bytes taken for characters.
std::vector<std::string> spellings(const std::string &password)
{
    std::u16string widened;
    for (const char c : password)
        widened += static_cast<unsigned char>(c);
    std::vector<std::string> all{password, percentEncoded(password), utf8FromUtf16(widened)};
    for (const char twice : {'}', '\'', '"', '\\'})
        all.push_back(doubled(password, twice));
    return all;
}

// The length of the names in brackets before a reason, "[unixODBC][Driver Manager]": they are the same whatever the
// password.
std::size_t namesOfTellers(const std::string &text)
{
    std::size_t length = 0;
    while (length < text.size() && text[length] == '[' && text.find(']', length) != std::string::npos)
        length = text.find(']', length) + 1;
    return length;
}

struct KnownDriver {
    const char *part, *package; // part: of the name, in lower case
};
constexpr std::array<KnownDriver, 8> knownDrivers{{{"psqlodbc", "odbc-postgresql"},
                                                   {"postgres", "odbc-postgresql"},
                                                   {"maodbc", "odbc-mariadb"},
                                                   {"mariadb", "odbc-mariadb"},
                                                   {"mysql", "odbc-mariadb"},
                                                   {"sqlite", "libsqliteodbc"},
                                                   {"tds", "tdsodbc"},
                                                   {"mdb", "odbc-mdbtools"}}};

} // namespace

std::string withoutPassword(const std::string &text, const std::string &password)
{
    if (password.empty())
        return text;
    std::string masked;
    for (std::size_t at = 0; at < text.size();) {
        const bool whole = text.compare(at, password.size(), password) == 0 && isWholeWord(text, at, password.size());
        masked += whole ? std::string(mask) : text.substr(at, 1);
        at += whole ? password.size() : 1;
    }
    const std::string folded = lower(masked.substr(namesOfTellers(masked)));
    for (const std::string &spelling : spellings(password))
        if (folded.find(lower(spelling)) != std::string::npos)
            return notShown;
    return masked;
}

std::string driverPackage(std::string_view driver)
{
    const std::string name = lower(driver);
    for (const KnownDriver &known : knownDrivers)
        if (name.find(known.part) != std::string::npos)
            return known.package;
    return {};
}

} // namespace corvanta
