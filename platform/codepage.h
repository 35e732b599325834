#pragma once

#include <optional>
#include <string>
#include <string_view>

// The system's ANSI code page: a table of 256 characters and its reverse. Bytes that the code
// page leaves undefined stand for U+0080 to U+009F (or a private character), so that every byte
// survives a round trip through Unicode.
namespace corvanta {

// Makes a Windows code page current (874, 1250 to 1258). False, and nothing changes, when unknown.
bool setCodePage(int number);

int codePageNumber();

struct CodePage;

// A code page for the thread that makes it, as long as it lives; other threads keep theirs.
class CodePageOfThread {
public:
    explicit CodePageOfThread(int number);
    ~CodePageOfThread();
    CodePageOfThread(const CodePageOfThread &) = delete;
    CodePageOfThread &operator=(const CodePageOfThread &) = delete;

    explicit operator bool() const { return known; } // false for an unknown number: nothing has changed

private:
    const CodePage *former;
    bool known;
};

// The code page of a user's language, from a locale name such as "de_DE.UTF-8"; 1252 when unknown.
int codePageOfLocale(std::string_view locale);

// The code page of the language that the environment names (LC_ALL, LC_CTYPE or LANG).
int codePageOfEnvironment();

// The Unicode character of a byte.
char32_t characterOf(unsigned char byte);

// The byte of a Unicode character; none when the code page lacks it.
std::optional<unsigned char> byteOf(char32_t character);

// Bytes of the code page as UTF-8.
std::string toUtf8(std::string_view bytes);

// UTF-8 as bytes of the code page; none when a character is lacking or the UTF-8 is malformed.
std::optional<std::string> fromUtf8(std::string_view utf8);

// UTF-8 as bytes of the code page with "?" for what it lacks and for malformed bytes.
std::string fromUtf8Lossy(std::string_view utf8);

// UTF-8 as UTF-16 and back, with U+FFFD for what is malformed.
std::u16string utf16FromUtf8(std::string_view utf8);
std::string utf8FromUtf16(std::u16string_view text);

} // namespace corvanta
