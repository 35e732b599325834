#pragma once

#include <string>
#include <string_view>

// Texts of the page (bytes of the code page) as UTF-8 texts of an HTML document.
namespace corvanta {

// The text without characters that HTML does not allow (control characters, the private characters of
// undefined bytes), line ends as line feeds.
std::string cleanText(std::string_view bytes);

// The text for element content and for attribute values in double quotes: markup is harmless.
std::string escaped(std::string_view bytes);

// One line of at most a number of characters, "…" at a cut end, not escaped.
std::string oneLine(std::string_view bytes, std::size_t characters);

// UTF-8 with the characters that are special in HTML as references.
std::string escapedUtf8(std::string_view utf8);

// An attribute with a blank before it, its value escaped.
std::string attribute(std::string_view name, std::string_view bytes);
std::string attribute(std::string_view name, long value);

// The same; nothing when the value is blank.
std::string optionalAttribute(std::string_view name, std::string_view bytes);

// A caption as content, its mnemonics underlined: "&&" stands for "&". With markup the author's own elements and
// character references stay, else everything is escaped.
std::string captionWithMnemonics(std::string_view caption, bool markup);

// The character after the first mnemonic mark, in lower case; empty when it is no letter or digit.
std::string mnemonicOf(std::string_view caption, bool markup);

// True when nothing of the text can be seen.
bool isBlank(std::string_view bytes);

} // namespace corvanta
