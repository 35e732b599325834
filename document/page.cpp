#include "document/page.h"

#include "document/tablist.h"
#include "platform/text.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr std::int32_t lightGrey = 0xC0C0C0, white = 0xFFFFFF, blue = 0xFF0000;

Element templateElement(std::string caption, std::int16_t width, std::int16_t height, std::int32_t backColour)
{
    Element e;
    e.Caption = std::move(caption);
    e.width = width;
    e.height = height;
    e.BackColor = backColour;
    return e;
}

Element linkTemplate()
{
    Element e = templateElement("Url", 80, 20, lightGrey);
    e.BackStyle = 0;
    e.font.ForeColor = blue;
    e.font.FontUnderline = true;
    return e;
}

Element borderedTemplate(std::string caption, std::int16_t width, std::int16_t height, std::int32_t backColour)
{
    Element e = templateElement(std::move(caption), width, height, backColour);
    e.BorderStyle = 1;
    return e;
}

} // namespace

Page::Page()
    : but{templateElement("Button", 85, 25, lightGrey)},
      lbl{templateElement("Label", 80, 20, lightGrey)},
      tbx{templateElement("Text", 120, 24, white)},
      lbx{templateElement("", 120, 80, white)},
      cbx{templateElement("Combo", 120, 24, white)},
      grd{templateElement("", 85, 25, white)},
      fbx{templateElement("File", 120, 24, white)},
      url{linkTemplate()},
      ani{borderedTemplate("", 64, 64, lightGrey)},
      butextras(1),
      tbxextras(1),
      lbxextras(1),
      cbxextras(1),
      tkrextras(maxTickers + 1, 1),
      aniextras(1)
{
    for (int i = 0; i <= maxTickers; ++i)
        tkr.push_back(borderedTemplate("Ticker" + (i ? std::to_string(i) : ""), 200, 26, white));
}

Page &page()
{
    static Page thePage;
    return thePage;
}

EditingState &editing()
{
    static EditingState state;
    return state;
}

std::vector<Element> *elementsOf(Page &p, Kind kind)
{
    switch (kind) {
    case Kind::Button: return &p.but;
    case Kind::ListBox: return &p.lbx;
    case Kind::Label: return &p.lbl;
    case Kind::TextBox: return &p.tbx;
    case Kind::Ticker: return &p.tkr;
    case Kind::Animation: return &p.ani;
    case Kind::Grid: return &p.grd;
    case Kind::ComboBox: return &p.cbx;
    case Kind::File: return &p.fbx;
    case Kind::Url: return &p.url;
    case Kind::HotSpot:
    case Kind::Image:
    case Kind::ImageDb: return nullptr;
    }
    return nullptr;
}

Element *elementOf(Page &p, std::int16_t index)
{
    if (!hasObject(p, index))
        return nullptr;
    const auto i = static_cast<std::size_t>(index);
    const auto kind = kindOf(p.objects[i].kind);
    auto *elements = kind ? elementsOf(p, *kind) : nullptr;
    return elements ? &elements->at(static_cast<std::size_t>(p.ctlindex[i])) : nullptr;
}

const Element *elementOf(const Page &p, std::int16_t index) { return elementOf(const_cast<Page &>(p), index); }

std::string connectPart(const Page &p, int part) { return fieldAt(p.dbconnect, part); }

std::vector<int> frameNumbers(const Page &p, std::int16_t element)
{
    std::vector<int> numbers;
    const std::string &list = p.aniextras.at(static_cast<std::size_t>(element)).frames;
    for (std::string_view left = list; !left.empty();) {
        const std::string_view field = left.substr(0, left.find('\t'));
        left.remove_prefix(std::min(left.size(), field.size() + 1));
        const double number = leadingNumber(field);
        if (number >= 1 && number < static_cast<double>(p.frames.size()))
            numbers.push_back(static_cast<int>(number));
    }
    return numbers;
}

int takeFrame(Page &p, Frame frame)
{
    frame.used = true;
    auto slot = std::find_if(p.frames.begin() + 1, p.frames.end(), [](const Frame &f) { return !f.used; });
    if (slot == p.frames.end())
        slot = p.frames.emplace(slot);
    *slot = std::move(frame);
    return static_cast<int>(slot - p.frames.begin());
}

void releaseFrames(Page &p, std::int16_t element)
{
    for (const int number : frameNumbers(p, element))
        p.frames[static_cast<std::size_t>(number)] = Frame{};
    p.aniextras[static_cast<std::size_t>(element)].frames.clear();
}

} // namespace corvanta
