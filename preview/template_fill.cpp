#include "preview/template_fill.h"

#include "converter/address.h"
#include "converter/text.h"
#include "platform/codepage.h"
#include "platform/text.h"

#include <algorithm>
#include <string_view>

namespace corvanta {

namespace {

enum class Context { Text, Attribute, AddressStart, AddressInside };

// "@name@" in each spelling that a template has for it.
struct Spelling {
    std::string placeholder;
    const TemplateValue *value;
};

bool isAddress(std::string_view attribute) { return attribute == "href" || attribute == "src"; }

bool holdsText(std::string_view attribute)
{
    constexpr std::string_view names[] = {"value", "title", "alt", "aria-label", "placeholder"};
    return std::find(std::begin(names), std::end(names), attribute) != std::end(names);
}

std::string lowered(std::string_view ascii)
{
    std::string text(ascii);
    for (char &c : text)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    return text;
}

class TemplateFiller {
public:
    TemplateFiller(const std::string &document, const std::vector<TemplateValue> &values,
                   const std::map<std::string, std::string> &rows)
        : html(document), gridRows(rows)
    {
        for (const TemplateValue &v : values) {
            const std::string bytes = fromUtf8Lossy(v.name);
            texts.push_back({"@" + escapedUtf8(v.name) + "@", &v});
            addresses.push_back({imageAddress({}, bytes), &v});
            if (const auto address = safeAddress("@" + bytes + "@"))
                addresses.push_back({*address, &v});
        }
    }

    std::string fill()
    {
        while (at < html.size()) {
            const std::size_t tag = std::min(html.find('<', at), html.size());
            fillSpan(tag, Context::Text);
            if (at < html.size())
                element();
        }
        return std::move(out);
    }

private:
    const std::string &html;
    const std::map<std::string, std::string> &gridRows;
    std::vector<Spelling> texts, addresses;
    std::string out;
    std::size_t at = 0;
    std::string lastTag, grid; // the id of the Grid that we are in

    void copyTo(std::size_t end)
    {
        out.append(html, at, end - at);
        at = end;
    }

    const Spelling *spellingHere(const std::vector<Spelling> &spellings, std::size_t end) const
    {
        const std::string_view rest = std::string_view(html).substr(at, end - at);
        for (const Spelling &s : spellings)
            if (rest.starts_with(s.placeholder))
                return &s;
        return nullptr;
    }

    // What a value is in a context.
    std::string shown(const std::string &value, Context context) const
    {
        switch (context) {
        case Context::Text: // the parser drops the first line feed of a field
            return (lastTag == "textarea" && value.starts_with('\n') ? "&#10;" : "") + escapedUtf8(value);
        case Context::Attribute: return escapedUtf8(value);
        case Context::AddressStart: return escapedUtf8(safeAddress(fromUtf8Lossy(value)).value_or(""));
        case Context::AddressInside: return escapedUtf8(mediaAddress(fromUtf8Lossy(value)));
        }
        return {};
    }

    void fillSpan(std::size_t end, Context context)
    {
        const bool address = context == Context::AddressStart || context == Context::AddressInside;
        for (const std::size_t start = at; at < end;) {
            const std::size_t mark = std::min(html.find('@', at), end);
            copyTo(mark);
            if (at == end)
                return;
            const Spelling *found = spellingHere(address ? addresses : texts, end);
            if (!found) {
                copyTo(at + 1);
                continue;
            }
            out += shown(found->value->value, address && at > start ? Context::AddressInside : context);
            at += found->placeholder.size();
        }
    }

    // From "<" to behind ">"; scripts, styles and comments as they are.
    void element()
    {
        if (html.compare(at, 4, "<!--") == 0)
            return copyTo(behind("-->"));
        std::size_t nameEnd = html.find_first_of(" \t\r\n/>", at + 1);
        const bool endTag = html.compare(at, 2, "</") == 0;
        if (endTag)
            nameEnd = html.find('>', at);
        nameEnd = std::min(nameEnd, html.size());
        lastTag = endTag ? std::string() : lowered(std::string_view(html).substr(at + 1, nameEnd - at - 1));
        copyTo(nameEnd);
        while (at < html.size() && html[at] != '>')
            attribute();
        copyTo(std::min(at + 1, html.size()));
        if (lastTag == "style" || lastTag == "script")
            copyTo(std::min(html.find("</" + lastTag, at), html.size()));
        if (lastTag == "tbody" && gridRows.contains(grid)) {
            out += gridRows.at(grid);
            at = std::min(html.find("</tbody>", at), html.size());
            grid.clear();
        }
    }

    std::size_t behind(std::string_view mark) const
    {
        const std::size_t found = html.find(mark, at);
        return found == std::string::npos ? html.size() : found + mark.size();
    }

    void attribute()
    {
        const std::size_t start = html.find_first_not_of(" \t\r\n/", at);
        const std::size_t end = std::min(html.find_first_of(" \t\r\n/>=", start), html.size());
        if (start == std::string::npos || start == end)
            return copyTo(start == end && end < html.size() && html[end] == '>' ? end : std::min(at + 1, html.size()));
        const std::string name = lowered(std::string_view(html).substr(start, end - start));
        copyTo(end);
        if (at + 1 >= html.size() || html[at] != '=')
            return;
        copyTo(at + 1);
        if (html[at] == '"' || html[at] == '\'')
            return quotedValue(name);
        copyTo(std::min(html.find_first_of(" \t\r\n>", at), html.size()));
    }

    void quotedValue(const std::string &name)
    {
        const std::size_t end = std::min(html.find(html[at], at + 1), html.size());
        copyTo(at + 1);
        if (name == "id" && gridRows.contains(html.substr(at, end - at)))
            grid = html.substr(at, end - at);
        if (isAddress(name))
            fillSpan(end, Context::AddressStart);
        else if (holdsText(name))
            fillSpan(end, Context::Attribute);
        copyTo(std::min(end + 1, html.size()));
    }
};

} // namespace

std::string fillTemplate(const std::string &html, const std::vector<TemplateValue> &values,
                         const std::map<std::string, std::string> &gridRows)
{
    return TemplateFiller(html, values, gridRows).fill();
}

} // namespace corvanta
