#include "converter/css.h"
#include "converter/elements.h"
#include "converter/parts.h"
#include "converter/text.h"
#include "document/tablist.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr int twipsPerPixel = 15, narrowestColumn = 4, rowPadding = 5, narrowestPadded = 9; // pixels

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

int columnWidth(const GridColumn &column) { return std::max(narrowestColumn, column.width / twipsPerPixel); }

// The lines of empty rows and columns, as the canvas shows them; rows of the host lie above.
std::string lines(const Page &p, std::size_t columns, int row)
{
    std::string verticals;
    int whole = 0;
    for (std::size_t i = 0; i < columns; ++i) {
        whole += columnWidth(p.gridcolumns[i]);
        verticals += "linear-gradient(#c0c0c0,#c0c0c0) " + std::to_string(whole) + "px 1px/1px 100% no-repeat local,";
    }
    const std::string height = std::to_string(row) + "px", width = columns > 0 ? std::to_string(whole) + "px" : "100%";
    return "background:" + verticals + "repeating-linear-gradient(transparent 0 calc(" + height + " - 1px),#c0c0c0 0 " +
           height + ") 1px 1px/" + width + " 100% no-repeat local ";
}

void writeTableRules(Template &t, std::int16_t index, std::size_t columns, int row)
{
    const std::string id = "#" + idOf(index);
    int whole = 0;
    for (std::size_t i = 0; i < columns; ++i) {
        const int pixels = columnWidth(t.page.gridcolumns[i]);
        whole += pixels;
        t.style += id + " tr>:nth-child(" + std::to_string(i + 1) + "){width:" + std::to_string(pixels) +
                   (pixels < narrowestPadded ? "px;padding:0}\n" : "px}\n");
    }
    t.style += id + " tr>*{height:" + std::to_string(row) + "px}\n";
    t.style += id + " table{width:" + (columns > 0 ? std::to_string(whole) + "px" : "100%") + "}\n";
}

} // namespace

void writeGrid(Template &t, std::int16_t index)
{
    const ObjectRecord &o = recordOf(t, index);
    const Element &e = t.page.grd[elementNumber(t, index)];
    const Target target = targetOf(o.actlist, t.folder);
    const std::size_t columns = gridColumnCount(t.page);
    const int row = lineHeight(e.font) + rowPadding;
    place(t, index, cssFont(e.font) + lines(t.page, columns, row) + cssColour(e.BackColor) + ";");
    writeTableRules(t, index, columns, row);
    std::string table;
    for (std::size_t i = 0; i < columns; ++i)
        table += headerCell(t, t.page.gridcolumns[i]);
    table = element("thead", "", element("tr", "", columns > 0 ? table : "<td></td>"));
    table += element("tbody", "", modelRow(t, index, target, std::max<std::size_t>(columns, 1)));
    const std::string attributes = attribute("id", idOf(index)) + " class=\"grid\" role=\"group\" tabindex=\"0\"" +
                                   labelling(t, index) + optionalAttribute("title", o.sptext);
    t.objects += element("div", attributes, element("table", "", table)) + "\n";
}

} // namespace corvanta
