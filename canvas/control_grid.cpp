#include "canvas/control_grid.h"

namespace corvanta {

namespace {

bool isPaintedSeparately(Kind kind)
{
    switch (kind) {
    case Kind::Button:
    case Kind::ListBox:
    case Kind::TextBox:
    case Kind::Ticker:
    case Kind::Grid: return true;
    case Kind::HotSpot:
    case Kind::Label:
    case Kind::Image:
    case Kind::Animation:
    case Kind::ImageDb:
    case Kind::ComboBox:
    case Kind::File:
    case Kind::Url: return false;
    }
    return false;
}

} // namespace

void ControlGrid::fill(const Page &p)
{
    cellWidth = std::max(1, (p.bkgwd + side - 1) / side);
    cellHeight = std::max(1, (p.bkght + side - 1) / side);
    for (auto &cell : cells)
        cell.clear();
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const ObjectRecord &o = p.objects[static_cast<std::size_t>(i)];
        const auto kind = kindOf(o.kind);
        if (!kind || !isPaintedSeparately(*kind))
            continue;
        const Control control{rectOf(o), spanOf(rectOf(o)), i};
        for (int row = control.span.top; row <= control.span.bottom; ++row)
            for (int column = control.span.left; column <= control.span.right; ++column)
                cells[cellIndex(column, row)].push_back(control);
    }
}

// What lies beside the page counts as lying in the cells at its edge.
ControlGrid::Span ControlGrid::spanOf(const Rect &r) const
{
    const auto column = [&](int x) { return std::clamp(x / cellWidth, 0, side - 1); };
    const auto row = [&](int y) { return std::clamp(y / cellHeight, 0, side - 1); };
    return {column(r.left), row(r.top), column(std::max(r.left, r.right() - 1)), row(std::max(r.top, r.bottom() - 1))};
}

} // namespace corvanta
