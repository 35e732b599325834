#pragma once

#include "actions/action.h"
#include "converter/html_template.h"
#include "document/objects.h"

#include <string>
#include <utility>

// Pages for the tests of the converter, built object by object.
namespace corvanta {

// An object with geometry; returns its index.
inline std::int16_t addTo(Page &p, Kind kind, int left = 0, int top = 0, int width = 100, int height = 20)
{
    ObjectRecord record;
    record.kind = static_cast<std::int16_t>(kind);
    record.pleft = static_cast<std::int16_t>(left);
    record.ptop = static_cast<std::int16_t>(top);
    record.pwidth = static_cast<std::int16_t>(width);
    record.pheight = static_cast<std::int16_t>(height);
    return appendObject(p, std::move(record));
}

inline ObjectRecord &recordAt(Page &p, std::int16_t index) { return p.objects.at(static_cast<std::size_t>(index)); }

inline std::int16_t addCaptioned(Page &p, Kind kind, const std::string &caption, int left = 0, int top = 0)
{
    const std::int16_t index = addTo(p, kind, left, top);
    elementOf(p, index)->Caption = caption;
    return index;
}

inline Frame frameAt(std::int16_t top, std::int16_t left, std::int16_t duration)
{
    return {true, top, left, duration, {}, {}, {}};
}

// The line of the template that holds an object's element.
inline std::string elementLine(const std::string &html, std::int16_t index)
{
    const std::size_t at = html.find(" id=\"o" + std::to_string(index) + "\"");
    if (at == std::string::npos)
        return {};
    const std::size_t start = html.rfind('\n', at) + 1;
    return html.substr(start, html.find('\n', at) - start);
}

inline std::string elementLine(const Page &p, std::int16_t index) { return elementLine(htmlTemplate(p), index); }

inline bool holds(const std::string &text, const std::string &part) { return text.find(part) != std::string::npos; }

} // namespace corvanta
