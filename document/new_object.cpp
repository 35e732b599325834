#include "document/new_object.h"

#include <cmath>

namespace corvanta {

namespace {

// Halves to even, as every rounding to an integer in the page's data.
std::int16_t rounded(double value) { return static_cast<std::int16_t>(std::nearbyint(value)); }

void centreElement(const Page &p, Element &e)
{
    e.top = static_cast<std::int16_t>(p.bkght / 2.0 - e.height / 2.0);
    e.left = static_cast<std::int16_t>(p.bkgwd / 2.0 - e.width / 2.0);
}

// Of a page-drawn object: a part of the page, in its middle.
void centreRecord(const Page &p, ObjectRecord &o, double divisor)
{
    o.pheight = rounded(p.bkght / divisor);
    o.pwidth = rounded(p.bkgwd / divisor);
    o.ptop = rounded(p.bkght / 2.0 - o.pheight / 2.0);
    o.pleft = rounded(p.bkgwd / 2.0 - o.pwidth / 2.0);
}

void setElementDefaults(const Page &p, ObjectRecord &o, Element &e)
{
    centreElement(p, e);
    o.ptop = e.top;
    o.pleft = e.left;
    o.pheight = e.height;
    o.pwidth = e.width;
}

} // namespace

void setDefaults(Page &p, std::int16_t index, Kind kind, std::int16_t n)
{
    ObjectRecord &o = p.objects[static_cast<std::size_t>(index)];
    switch (kind) {
    case Kind::Button:
    case Kind::Label:
    case Kind::Url: elementOf(p, index)->Caption += std::to_string(n); break;
    case Kind::Ticker: elementOf(p, index)->Caption = "Ticker"; break;
    case Kind::HotSpot:
        o.sptext = "HotSpot" + std::to_string(n);
        o.objflags = hoverFlag;
        return centreRecord(p, o, 3);
    case Kind::Image:
    case Kind::ImageDb: return centreRecord(p, o, 2);
    case Kind::ListBox:
    case Kind::TextBox:
    case Kind::Animation:
    case Kind::Grid:
    case Kind::ComboBox:
    case Kind::File: break;
    }
    setElementDefaults(p, o, *elementOf(p, index));
}

} // namespace corvanta
