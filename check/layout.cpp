#include "check/rules.h"
#include "converter/css.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <sstream>

namespace corvanta {

namespace {

constexpr double narrowCharacter = 0.42, lineHeight = 1.1; // of a font's pixels; low, so that no text is blamed wrongly
constexpr double leastContrast = 4.5;

struct Box {
    int left, top, right, bottom;
    bool empty() const { return right <= left || bottom <= top; }
};

Box boxOf(const ObjectRecord &o) { return {o.pleft, o.ptop, o.pleft + o.pwidth, o.ptop + o.pheight}; }

bool contains(const Box &outer, const Box &inner)
{
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

bool intersect(const Box &a, const Box &b)
{
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool isShown(const ObjectRecord &o) { return kindOf(o.kind) && !o.has(invisibleFlag) && !boxOf(o).empty(); }

bool drawnOnPage(const ObjectRecord &o) { return kindRow(*kindOf(o.kind)).drawnOnPage; }

bool isOpaque(const Page &p, std::int16_t index)
{
    switch (*kindOf(recordAt(p, index).kind)) {
    case Kind::Button:
    case Kind::ListBox:
    case Kind::TextBox:
    case Kind::Ticker:
    case Kind::Grid:
    case Kind::ComboBox:
    case Kind::File: return true;
    case Kind::Label:
    case Kind::Url: return elementOf(p, index)->BackStyle == 1;
    case Kind::HotSpot:
    case Kind::Image:
    case Kind::Animation:
    case Kind::ImageDb: return false;
    }
    return false;
}

// Controls lie over what is drawn on the page, later ones over earlier ones.
bool liesOver(const Page &p, std::int16_t upper, std::int16_t lower)
{
    const bool upperOnPage = drawnOnPage(recordAt(p, upper)), lowerOnPage = drawnOnPage(recordAt(p, lower));
    return upperOnPage == lowerOnPage ? upper > lower : lowerOnPage;
}

bool isField(const ObjectRecord &o)
{
    const auto kind = kindOf(o.kind);
    return isShown(o) && (kindRow(*kind).hasTabIndex || kind == Kind::File || kind == Kind::Url);
}

// The text that an object shows; none for kinds without one.
const std::string *captionOf(const Page &p, std::int16_t index)
{
    const auto kind = kindOf(recordAt(p, index).kind);
    if (kind != Kind::Button && kind != Kind::Label && kind != Kind::Url)
        return nullptr;
    return &elementOf(p, index)->Caption;
}

int linesNeeded(const std::string &text, double characterWidth, int width)
{
    int lines = 0;
    std::istringstream paragraphs(text);
    for (std::string paragraph; std::getline(paragraphs, paragraph);)
        lines +=
            std::max(1, static_cast<int>(std::ceil(static_cast<double>(paragraph.size()) * characterWidth / width)));
    return std::max(lines, 1);
}

bool fits(const Page &p, std::int16_t index, const std::string &text)
{
    const ObjectRecord &o = recordAt(p, index);
    const double pixels = fontPixels(elementOf(p, index)->font);
    const int lines = linesNeeded(text, pixels * narrowCharacter, o.pwidth);
    const bool picture = kindOf(o.kind) == Kind::Button && !o.srcfile.empty();
    return picture || (lines == 1 ? pixels : lines * pixels * lineHeight) <= o.pheight;
}

// Red, green and blue of what CSS would show; none for colours that the reader's system chooses.
std::optional<double> luminance(std::int32_t colour)
{
    const std::string css = cssColour(colour);
    if (css.front() != '#')
        return std::nullopt;
    constexpr double shares[] = {0.2126, 0.7152, 0.0722};
    double sum = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        const double part = std::stoi(css.substr(1 + 2 * i, 2), nullptr, 16) / 255.0;
        sum += shares[i] * (part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
    }
    return sum;
}

std::optional<double> contrast(std::int32_t a, std::int32_t b)
{
    const auto first = luminance(a), second = luminance(b);
    if (!first || !second)
        return std::nullopt;
    const auto [low, high] = std::minmax(*first, *second);
    return (high + 0.05) / (low + 0.05);
}

bool overPicture(const Page &p, std::int16_t index)
{
    if (!p.bkgfile.empty())
        return true;
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const auto kind = kindOf(recordAt(p, i).kind);
        if (i != index && kind && (*kind == Kind::Image || liesOver(p, index, i)) &&
            intersect(boxOf(recordAt(p, i)), boxOf(recordAt(p, index))))
            return true;
    }
    return false;
}

// The colour behind an object's text; none where it is not one known colour.
std::optional<std::int32_t> backColour(const Page &p, std::int16_t index)
{
    const auto kind = kindOf(recordAt(p, index).kind);
    const Element *e = elementOf(p, index);
    if (!kind || e == nullptr || kind == Kind::Animation || kind == Kind::Button)
        return std::nullopt;
    if ((kind == Kind::Label || kind == Kind::Url) && (e->BackStyle == 0 || e->Caption.empty())) {
        if (e->Caption.empty() || overPicture(p, index))
            return std::nullopt;
        return p.bkgcol;
    }
    return e->BackColor;
}

} // namespace

void findOutside(const Checked &checked, const Report &report)
{
    const Page &p = checked.page;
    if (p.bkgwd <= 0 || p.bkght <= 0)
        return;
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const Box box = boxOf(recordAt(p, i));
        if (isShown(recordAt(p, i)) && !contains({0, 0, p.bkgwd, p.bkght}, box))
            report(i, intersect({0, 0, p.bkgwd, p.bkght}, box) ? "partly outside of the page" : "outside of the page");
    }
}

void findZeroSize(const Checked &checked, const Report &report)
{
    for (std::int16_t i = 0; i < objectCount(checked.page); ++i) {
        const ObjectRecord &o = recordAt(checked.page, i);
        if (kindOf(o.kind) && boxOf(o).empty())
            report(i, "no size: " + std::to_string(o.pwidth) + " x " + std::to_string(o.pheight) + " pixels");
    }
}

void findCovered(const Checked &checked, const Report &report)
{
    const Page &p = checked.page;
    for (std::int16_t lower = 0; lower < objectCount(p); ++lower) {
        if (!isShown(recordAt(p, lower)))
            continue;
        for (std::int16_t upper = 0; upper < objectCount(p); ++upper)
            if (upper != lower && isShown(recordAt(p, upper)) && isOpaque(p, upper) && liesOver(p, upper, lower) &&
                contains(boxOf(recordAt(p, upper)), boxOf(recordAt(p, lower)))) {
                report(lower,
                       "covered completely by object " + std::to_string(upper) + " (" + objectTitle(p, upper) + ")");
                break;
            }
    }
}

void findOverlaps(const Checked &checked, const Report &report)
{
    const Page &p = checked.page;
    for (std::int16_t later = 0; later < objectCount(p); ++later) {
        if (!isField(recordAt(p, later)))
            continue;
        for (std::int16_t i = 0; i < later; ++i) {
            const Box a = boxOf(recordAt(p, i)), b = boxOf(recordAt(p, later));
            const bool covers = isOpaque(p, later) && contains(b, a);
            if (isField(recordAt(p, i)) && intersect(a, b) && !covers) {
                report(later, "overlaps object " + std::to_string(i) + " (" + objectTitle(p, i) + ")");
                break;
            }
        }
    }
}

void findTightTexts(const Checked &checked, const Report &report)
{
    const Page &p = checked.page;
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        if (!isShown(recordAt(p, i)))
            continue;
        const std::string *text = captionOf(p, i);
        if (text != nullptr && !text->empty() && !fits(p, i, *text))
            report(i, "the text does not fit " + std::to_string(recordAt(p, i).pwidth) + " x " +
                          std::to_string(recordAt(p, i).pheight) + " pixels");
    }
}

void findLowContrast(const Checked &checked, const Report &report)
{
    const Page &p = checked.page;
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        if (!isShown(recordAt(p, i)))
            continue;
        const auto back = backColour(p, i);
        const auto ratio = back ? contrast(elementOf(p, i)->font.ForeColor, *back) : std::nullopt;
        if (ratio && *ratio < leastContrast)
            report(i, "contrast of text and background is " + cssNumber(*ratio) + ":1");
    }
}

} // namespace corvanta
