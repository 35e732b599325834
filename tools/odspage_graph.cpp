#include "platform/codepage.h"
#include "platform/text.h"
#include "tools/odspage_check.h"
#include "tools/odspage_pages.h"

#include <algorithm>
#include <memory>
#include <set>

namespace corvanta {

namespace {

struct GraphArguments {
    std::string folder;
    bool svg = false;
};

// Indices of the map's pages; a page that is not there is a target of -1.
struct Arrow {
    std::size_t from;
    int to;
    std::string name; // of the target, upper case
    bool operator<(const Arrow &other) const { return std::tie(from, name) < std::tie(other.from, other.name); }
};

std::set<Arrow> arrowsOf(const PageMap &map)
{
    std::set<Arrow> arrows;
    for (std::size_t i = 0; i < map.pages().size(); ++i)
        for (const PageLink &link : map.pages()[i].links) {
            const PageMap::Entry *target = map.find(link.page);
            const int to = target == nullptr ? -1 : static_cast<int>(target - map.pages().data());
            arrows.insert({i, to, upperCase(target == nullptr ? link.page : target->name)});
        }
    return arrows;
}

std::string quoted(const std::string &bytes)
{
    std::string text = "\"";
    for (const char c : oneLine(toUtf8(bytes)))
        (c == '"' || c == '\\' ? text.append(1, '\\') : text).append(1, c);
    return text + "\"";
}

std::string marked(const std::string &bytes)
{
    std::string text;
    for (const char c : oneLine(toUtf8(bytes)))
        text += c == '&' ? "&amp;" : c == '<' ? "&lt;" : c == '>' ? "&gt;" : std::string(1, c);
    return text;
}

void printDot(ToolRun &run, const PageMap &map)
{
    run.out << "digraph pages {\n rankdir=LR;\n node [shape=box];\n";
    for (const PageMap::Entry &page : map.pages())
        run.out << " " << quoted(upperCase(page.name)) << " [tooltip=" << quoted(page.caption)
                << (sameText(page.name, map.start()) ? ", style=bold" : "") << "];\n";
    for (const Arrow &arrow : arrowsOf(map)) {
        if (arrow.to < 0)
            run.out << " " << quoted(arrow.name) << " [style=dashed];\n";
        run.out << " " << quoted(upperCase(map.pages()[arrow.from].name)) << " -> " << quoted(arrow.name) << ";\n";
    }
    run.out << "}\n";
}

// Steps from the start page; pages that no way leads to stand in a column of their own at the end.
std::vector<int> columnsOf(const PageMap &map, const std::set<Arrow> &arrows)
{
    std::vector<int> columns(map.pages().size(), -1);
    std::vector<std::size_t> reached;
    if (const PageMap::Entry *start = map.find(map.start()))
        reached.push_back(static_cast<std::size_t>(start - map.pages().data()));
    for (const std::size_t page : reached)
        columns[page] = 0;
    int last = 0;
    for (std::size_t i = 0; i < reached.size(); ++i)
        for (auto arrow = arrows.lower_bound({reached[i], 0, {}}); arrow != arrows.end() && arrow->from == reached[i];
             ++arrow)
            if (arrow->to >= 0 && columns[static_cast<std::size_t>(arrow->to)] < 0) {
                last = columns[static_cast<std::size_t>(arrow->to)] = columns[reached[i]] + 1;
                reached.push_back(static_cast<std::size_t>(arrow->to));
            }
    std::replace(columns.begin(), columns.end(), -1, last + 1);
    return columns;
}

void printSvg(ToolRun &run, const PageMap &map)
{
    constexpr int width = 160, height = 36, acrossGap = 80, downGap = 18, margin = 12; // pixels
    const std::set<Arrow> arrows = arrowsOf(map);
    const std::vector<int> columns = columnsOf(map, arrows);
    std::map<int, int> used;
    std::vector<std::pair<int, int>> corners;
    int right = 0, bottom = 0;
    for (const int column : columns) {
        corners.emplace_back(margin + column * (width + acrossGap), margin + used[column]++ * (height + downGap));
        right = std::max(right, corners.back().first + width + margin);
        bottom = std::max(bottom, corners.back().second + height + margin);
    }
    run.out
        << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << right << "\" height=\"" << bottom
        << "\" font-family=\"sans-serif\" font-size=\"12\">\n<defs><marker id=\"to\" viewBox=\"0 0 8 8\" refX=\"8\" "
           "refY=\"4\" markerWidth=\"8\" markerHeight=\"8\" orient=\"auto\"><path d=\"M0 0 8 4 0 "
           "8z\"/></marker></defs>\n"
           "<rect width=\"100%\" height=\"100%\" fill=\"#fff\"/>\n";
    for (const Arrow &arrow : arrows) {
        if (arrow.to < 0 || static_cast<std::size_t>(arrow.to) == arrow.from)
            continue;
        const auto &[x1, y1] = corners[arrow.from];
        const auto &[x2, y2] = corners[static_cast<std::size_t>(arrow.to)];
        const bool onwards = x2 > x1, back = x2 < x1;
        const int startX = onwards ? x1 + width : back ? x1 : x1 + width, endX = onwards ? x2 : x2 + width;
        const int bend = onwards ? acrossGap / 2 : back ? -acrossGap / 2 : acrossGap / 2;
        const int startY = y1 + height / 2 + (back ? 6 : 0), endY = y2 + height / 2 + (back ? 6 : 0);
        run.out << "<path d=\"M" << startX << " " << startY << "C" << startX + bend << " " << startY << " "
                << endX + (onwards ? -bend : acrossGap / 2) << " " << endY << " " << endX << " " << endY
                << "\" fill=\"none\" stroke=\"#555\" marker-end=\"url(#to)\"/>\n";
    }
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const PageMap::Entry &page = map.pages()[i];
        const auto &[x, y] = corners[i];
        const char *stroke = sameText(page.name, map.start()) ? "2.5" : "1";
        run.out << "<g><title>" << marked(page.caption) << "</title><rect x=\"" << x << "\" y=\"" << y << "\" width=\""
                << width << "\" height=\"" << height << "\" rx=\"4\" fill=\"#eef3fa\" stroke=\"#234\" stroke-width=\""
                << stroke << "\"/><text x=\"" << x + width / 2 << "\" y=\"" << y + height / 2 + 4
                << "\" text-anchor=\"middle\">" << marked(upperCase(page.name).substr(0, 22)) << "</text></g>\n";
    }
    run.out << "</svg>\n";
}

int graph(ToolRun &run, const GraphArguments &arguments)
{
    PageMap map;
    for (const PageOfFolder &page : readPages(run, arguments.folder))
        map.add(page.file, page.page);
    if (map.pages().empty())
        return 1;
    (arguments.svg ? printSvg : printDot)(run, map);
    return run.exitCode;
}

} // namespace

void addGraphCommand(CLI::App &app, ToolRun &run)
{
    CLI::App *command = app.add_subcommand("graph", "Print which pages of a directory lead where, as DOT");
    const auto arguments = std::make_shared<GraphArguments>();
    command->add_option("DIR", arguments->folder, "directory of pages")->required()->check(CLI::ExistingDirectory);
    command->add_flag("--svg", arguments->svg, "print a drawing as SVG");
    command->callback([&run, arguments] { run.exitCode = graph(run, *arguments); });
}

} // namespace corvanta
