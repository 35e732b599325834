#include "converter/text.h"

#include "platform/codepage.h"
#include "platform/text.h"

#include <algorithm>
#include <cctype>

namespace corvanta {

namespace {

bool allowed(char byte)
{
    const char32_t c = characterOf(static_cast<unsigned char>(byte));
    if (c == '\n' || c == '\t')
        return true;
    const bool control = c < 0x20 || (c >= 0x7F && c < 0xA0);
    const bool privateUse = c >= 0xE000 && c <= 0xF8FF;
    return !control && !privateUse;
}

// "&name;" or "&#number;" at the front of a text.
bool isReference(std::string_view text)
{
    const std::size_t end = text.find(';');
    if (end == std::string_view::npos || end < 2)
        return false;
    const std::string_view name = text.substr(text[1] == '#' ? 2 : 1, end - (text[1] == '#' ? 2 : 1));
    return !name.empty() &&
           std::all_of(name.begin(), name.end(), [](unsigned char c) { return c < 0x80 && std::isalnum(c) != 0; });
}

bool startsCharacter(char utf8) { return (static_cast<unsigned char>(utf8) & 0xC0) != 0x80; }

} // namespace

std::string cleanText(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const char byte = bytes[i];
        if (byte >= ' ' && byte < 0x7F) // most of them
            text += byte;
        else if (byte == '\r')
            text += i + 1 == bytes.size() || bytes[i + 1] != '\n' ? "\n" : "";
        else if (allowed(byte))
            text += toUtf8(bytes.substr(i, 1));
    }
    return text;
}

std::string escapedUtf8(std::string_view utf8)
{
    std::string html;
    html.reserve(utf8.size());
    for (const char c : utf8) {
        switch (c) {
        case '&': html += "&amp;"; break;
        case '<': html += "&lt;"; break;
        case '>': html += "&gt;"; break;
        case '"': html += "&quot;"; break;
        case '\'': html += "&#39;"; break;
        case '\n': html += "&#10;"; break;
        default: html += c;
        }
    }
    return html;
}

std::string escaped(std::string_view bytes) { return escapedUtf8(cleanText(bytes)); }

std::string oneLine(std::string_view bytes, std::size_t characters)
{
    std::string text = cleanText(bytes);
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\t'; }, ' ');
    text = trimmed(text);
    std::size_t count = 0, cut = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!startsCharacter(text[i]))
            continue;
        if (++count == characters)
            cut = i;
    }
    return count > characters ? text.substr(0, cut) + "…" : text;
}

std::string attribute(std::string_view name, std::string_view bytes)
{
    return " " + std::string(name) + "=\"" + escaped(bytes) + "\"";
}

std::string attribute(std::string_view name, long value) { return attribute(name, std::to_string(value)); }

std::string optionalAttribute(std::string_view name, std::string_view bytes)
{
    return isBlank(bytes) ? std::string() : attribute(name, bytes);
}

std::string captionWithMnemonics(std::string_view caption, bool markup)
{
    const auto content = [markup](std::string_view bytes) { return markup ? cleanText(bytes) : escaped(bytes); };
    std::string html, plain;
    bool inTag = false;
    for (; !caption.empty(); caption.remove_prefix(1)) {
        inTag = markup && (caption.front() == '<' || (inTag && caption.front() != '>'));
        const bool mark = caption.front() == '&' && caption.size() > 1 && !inTag && !(markup && isReference(caption));
        if (mark)
            caption.remove_prefix(1);
        if (!mark || caption.front() == '&' || isBlank(caption.substr(0, 1))) {
            plain += caption.front();
            continue;
        }
        html += content(plain) + "<u>" + content(caption.substr(0, 1)) + "</u>";
        plain.clear();
    }
    return html + content(plain);
}

std::string mnemonicOf(std::string_view caption, bool markup)
{
    for (; caption.size() > 1; caption.remove_prefix(1)) {
        if (caption.front() != '&' || (markup && isReference(caption)))
            continue;
        const std::string key = lowerCase(caption.substr(1, 1));
        if (key != upperCase(key) || (key >= "0" && key <= "9"))
            return toUtf8(key);
        caption.remove_prefix(1); // "&&"
    }
    return {};
}

bool isBlank(std::string_view bytes)
{
    constexpr char32_t noBreakSpace = 0xA0, firstInvisible = 0x200B, lastInvisible = 0x200F;
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) {
        const char32_t c = characterOf(static_cast<unsigned char>(byte));
        return c == ' ' || c == '\n' || c == '\t' || c == noBreakSpace || (c >= firstInvisible && c <= lastInvisible) ||
               !allowed(byte);
    });
}

} // namespace corvanta
