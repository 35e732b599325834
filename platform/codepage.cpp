#include "platform/codepage.h"

#include "platform/codepage_tables.h"
#include "platform/environment.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <utility>
#include <vector>

namespace corvanta {

struct CodePage {
    const CodePageTable *table;
    std::array<std::pair<char16_t, unsigned char>, 128> reverse; // sorted by character

    explicit CodePage(const CodePageTable &ofNumber) : table(&ofNumber)
    {
        for (unsigned i = 0; i < reverse.size(); ++i)
            reverse[i] = {table->upperHalf[i], static_cast<unsigned char>(0x80 + i)};
        std::sort(reverse.begin(), reverse.end());
    }
};

namespace {

constexpr char32_t malformed = 0xFFFFFFFF, replacement = 0xFFFD;

// All of them are made once and only read from then on, by any thread.
const std::vector<CodePage> &codePages()
{
    static const std::vector<CodePage> pages(codePageTables().begin(), codePageTables().end());
    return pages;
}

const CodePage *findCodePage(int number)
{
    for (const CodePage &page : codePages())
        if (page.table->number == number)
            return &page;
    return nullptr;
}

std::atomic<const CodePage *> ofProcess = nullptr;
thread_local const CodePage *ofThread = nullptr;

const CodePage &current()
{
    if (ofThread)
        return *ofThread;
    const CodePage *page = ofProcess.load(std::memory_order_relaxed);
    return page ? *page : codePages().front();
}

struct LanguageCodePage {
    std::string_view languages; // each between blanks
    int codePage;
};

constexpr LanguageCodePage languageCodePages[] = {
    {" th ", 874},
    {" bs cs hr hu pl ro sk sl sq ", 1250},
    {" be bg kk ky mk mn ru sr tg tt uk ", 1251},
    {" el ", 1253},
    {" az tr uz ", 1254},
    {" he iw yi ", 1255},
    {" ar fa ps sd ug ur ", 1256},
    {" et lt lv ", 1257},
    {" vi ", 1258},
};

void appendUtf8(std::string &utf8, char32_t character)
{
    const auto continuation = [&](int shift) { return static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        utf8 += static_cast<char>(character);
    } else if (character < 0x800) {
        utf8 += static_cast<char>(0xC0 | (character >> 6));
        utf8 += continuation(0);
    } else {
        if (character < 0x10000) {
            utf8 += static_cast<char>(0xE0 | (character >> 12));
        } else {
            utf8 += static_cast<char>(0xF0 | (character >> 18));
            utf8 += continuation(12);
        }
        utf8 += continuation(6);
        utf8 += continuation(0);
    }
}

std::size_t sequenceLength(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead < 0xE0)
        return 2;
    if (lead >= 0xE0 && lead < 0xF0)
        return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

// Takes the first character off; of a malformed sequence only the first byte.
char32_t takeCharacter(std::string_view &utf8)
{
    const auto lead = static_cast<unsigned char>(utf8.front());
    const std::size_t length = sequenceLength(lead);
    const std::string_view rest = utf8.substr(1, length == 0 ? 0 : length - 1);
    utf8.remove_prefix(1);
    if (length == 0 || rest.size() + 1 < length)
        return malformed;
    char32_t character = length == 1 ? lead : lead & (0x7Fu >> length);
    for (const char c : rest) {
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)
            return malformed;
        character = (character << 6) | (static_cast<unsigned char>(c) & 0x3Fu);
    }
    const bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    if (overlong || surrogate || character > 0x10FFFF)
        return malformed;
    utf8.remove_prefix(rest.size());
    return character;
}

} // namespace

bool setCodePage(int number)
{
    const CodePage *page = findCodePage(number);
    if (page)
        ofProcess = page;
    return page != nullptr;
}

CodePageOfThread::CodePageOfThread(int number) : former(ofThread)
{
    const CodePage *page = findCodePage(number);
    known = page != nullptr;
    if (page)
        ofThread = page;
}

CodePageOfThread::~CodePageOfThread() { ofThread = former; }

int codePageNumber() { return current().table->number; }

int codePageOfLocale(std::string_view locale)
{
    const std::string language = " " + std::string(locale.substr(0, locale.find_first_of("_-.@"))) + " ";
    const bool latin = locale.find("@latin") != std::string_view::npos;
    const bool cyrillic = locale.find("@cyrillic") != std::string_view::npos;
    for (const auto &[languages, codePage] : languageCodePages) {
        if (languages.find(language) == std::string_view::npos)
            continue;
        if (latin && codePage == 1251)
            return 1250;
        return cyrillic ? 1251 : codePage;
    }
    return 1252;
}

int codePageOfEnvironment()
{
    for (const char *variable : {"LC_ALL", "LC_CTYPE", "LANG"})
        if (const std::string value = environmentValue(variable); !value.empty())
            return codePageOfLocale(value);
    return codePageOfLocale("");
}

char32_t characterOf(unsigned char byte) { return byte < 0x80 ? byte : current().table->upperHalf[byte - 0x80]; }

std::optional<unsigned char> byteOf(char32_t character)
{
    if (character < 0x80)
        return static_cast<unsigned char>(character);
    const auto &reverse = current().reverse;
    const auto found = std::lower_bound(reverse.begin(), reverse.end(), character,
                                        [](const auto &entry, char32_t c) { return entry.first < c; });
    if (found == reverse.end() || found->first != character)
        return std::nullopt;
    return found->second;
}

std::string toUtf8(std::string_view bytes)
{
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char c : bytes)
        appendUtf8(utf8, characterOf(static_cast<unsigned char>(c)));
    return utf8;
}

std::optional<std::string> fromUtf8(std::string_view utf8)
{
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto byte = byteOf(takeCharacter(utf8));
        if (!byte)
            return std::nullopt;
        bytes += static_cast<char>(*byte);
    }
    return bytes;
}

std::string fromUtf8Lossy(std::string_view utf8)
{
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty())
        bytes += static_cast<char>(byteOf(takeCharacter(utf8)).value_or('?'));
    return bytes;
}

std::u16string utf16FromUtf8(std::string_view utf8)
{
    std::u16string text;
    while (!utf8.empty()) {
        const char32_t taken = takeCharacter(utf8), c = taken == malformed ? replacement : taken;
        if (c < 0x10000) {
            text += static_cast<char16_t>(c);
        } else {
            text += static_cast<char16_t>(0xD7C0 + (c >> 10));
            text += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
        }
    }
    return text;
}

std::string utf8FromUtf16(std::u16string_view text)
{
    std::string utf8;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t unit = text[i], next = i + 1 < text.size() ? text[i + 1] : 0;
        const bool high = unit >= 0xD800 && unit < 0xDC00, low = next >= 0xDC00 && next < 0xE000;
        if (high && low)
            ++i;
        const bool lone = unit >= 0xD800 && unit < 0xE000 && !(high && low);
        appendUtf8(utf8, high && low ? 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00) : lone ? replacement : unit);
    }
    return utf8;
}

} // namespace corvanta
