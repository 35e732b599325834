#include "converter/css.h"
#include "converter/elements.h"
#include "converter/parts.h"
#include "converter/text.h"
#include "document/tablist.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr int twipsPerPixel = 15, usualColumn = 64; // pixels of a column without a width

std::string headerCell(const Template &t, const GridColumn &column)
{
    const std::string header = fieldAt(column.descriptor, 0);
    return isBlank(header) ? "<td></td>" : element("th", " scope=\"col\"", captionHtml(t, header));
}

// A row for the host to repeat. Its first cell acts for the row.
std::string modelRow(Template &t, std::int16_t index, const Target &target, std::size_t columns)
{
    std::string cells;
    for (std::size_t i = 0; i < columns; ++i) {
        const bool acting = i == 0 && target.kind != Target::Kind::None;
        cells += element(
            "td", "",
            acting ? control(t, index, target, "span", attribute("aria-label", spokenName(t, index, target)), "…")
                   : std::string());
    }
    return element("tr", "", cells);
}

void writeColumnRules(Template &t, std::int16_t index, std::size_t columns)
{
    int whole = 0;
    for (std::size_t i = 0; i < columns; ++i) {
        const int twips = t.page.gridcolumns[i].width;
        const int pixels = twips > 0 ? twips / twipsPerPixel : usualColumn;
        whole += pixels;
        t.style += "#" + idOf(index) + " tr>:nth-child(" + std::to_string(i + 1) + "){width:" + std::to_string(pixels) +
                   "px}\n";
    }
    t.style += "#" + idOf(index) + " table{width:" + std::to_string(whole) + "px}\n";
}

} // namespace

void writeGrid(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const Element &e = t.page.grd[elementNumber(t, index)];
    const Target target = targetOf(o.actlist, t.folder);
    const std::size_t columns = gridColumnCount(t.page);
    place(t, index, cssFont(e.font) + "background:" + cssColour(e.BackColor) + ";");
    std::string table;
    for (std::size_t i = 0; i < columns; ++i)
        table += headerCell(t, t.page.gridcolumns[i]);
    if (columns > 0) {
        writeColumnRules(t, index, columns);
        table = element("thead", "", element("tr", "", table));
    }
    table += element("tbody", "", modelRow(t, index, target, std::max<std::size_t>(columns, 1)));
    const std::string attributes = attribute("id", idOf(index)) + " class=\"grid\" role=\"group\" tabindex=\"0\"" +
                                   labelling(t, index) + optionalAttribute("title", o.sptext);
    t.objects += element("div", attributes, element("table", "", table)) + "\n";
}

} // namespace corvanta
