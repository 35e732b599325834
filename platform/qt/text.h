#pragma once

#include <QString>

#include <optional>
#include <string>
#include <string_view>

// The one place where bytes of the code page become the toolkit's texts, and back.
namespace corvanta {

QString toQString(std::string_view bytes);

// A drive path as people read it: with the real names of files that the code page cannot spell.
QString shownPath(std::string_view drivePath);

// The first character of a text that the code page lacks; none when it has them all.
std::optional<char32_t> lackingCharacter(const QString &text);

// Characters that the code page lacks become "?".
std::string toBytes(const QString &text);

} // namespace corvanta
