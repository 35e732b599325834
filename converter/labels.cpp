#include "converter/labels.h"

#include "actions/action.h"
#include "converter/css.h"
#include "converter/text.h"
#include "platform/text.h"

#include <algorithm>
#include <limits>
#include <set>

namespace corvanta {

namespace {

constexpr int overlap = 8; // pixels that a label may reach into its field
constexpr int farAway = std::numeric_limits<int>::max();
constexpr double labelReach = 1.8, headingSize = 1.3; // of a font's pixels

struct Box {
    int left, top, right, bottom;
};

Box boxOf(const ObjectRecord &o) { return {o.pleft, o.ptop, o.pleft + o.pwidth, o.ptop + o.pheight}; }

const ObjectRecord &recordOf(const Page &p, std::int16_t index) { return p.objects[static_cast<std::size_t>(index)]; }

int gap(int from, int to) { return to - from < -overlap ? farAway : std::max(0, to - from); }

int sideDistance(const Box &label, const Box &field, bool rightToLeft)
{
    if (label.top >= field.bottom || label.bottom <= field.top)
        return farAway;
    const int left = label.left < field.left ? gap(label.right, field.left) : farAway;
    const int right = rightToLeft && label.right > field.right ? gap(field.right, label.left) : farAway;
    return std::min(left, right);
}

int distanceAbove(const Box &label, const Box &field)
{
    if (label.left >= field.right || label.right <= field.left || label.top >= field.top)
        return farAway;
    return gap(label.bottom, field.top);
}

// Twice the pixels, and one more above: at the same distance the label beside the field is taken.
int distance(const Page &p, std::int16_t label, std::int16_t index)
{
    const Box l = boxOf(recordOf(p, label)), f = boxOf(recordOf(p, index));
    const int side = sideDistance(l, f, (p.pgflags & rtlFlag) != 0), above = distanceAbove(l, f);
    if (side == farAway && above == farAway)
        return farAway;
    return side <= above ? side * 2 : above * 2 + 1;
}

std::vector<std::int16_t> labelsOf(const Page &p)
{
    std::vector<std::int16_t> labels;
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        if (kindOf(recordOf(p, i).kind) == Kind::Label && !isBlank(elementOf(p, i)->Caption))
            labels.push_back(i);
    return labels;
}

double letterSize(const Page &p, std::int16_t index)
{
    const Element *element = elementOf(p, index);
    return fontPixels(element ? element->font : FontBlock{});
}

// The distance of a label that may name an object.
int labelDistance(const Page &p, std::int16_t label, std::int16_t index)
{
    const int d = distance(p, label, index);
    if (d == farAway)
        return farAway;
    const double letters = letterSize(p, label);
    const bool heading = letters > letterSize(p, index) * headingSize;
    return !heading && d <= 2 * letters * labelReach ? d : farAway;
}

std::int16_t nearestOf(const std::vector<std::int16_t> &labels, const Page &p, std::int16_t index)
{
    std::int16_t nearest = noObject;
    int least = farAway;
    for (const std::int16_t label : labels) {
        const int d = label == index ? farAway : labelDistance(p, label, index);
        if (d < least) {
            least = d;
            nearest = label;
        }
    }
    return nearest;
}

bool isField(Kind kind)
{
    return kind == Kind::TextBox || kind == Kind::ComboBox || kind == Kind::File || kind == Kind::ListBox;
}

bool hasTabIndex(const ObjectRecord &record)
{
    const auto kind = kindOf(record.kind);
    return kind && kindRow(*kind).hasTabIndex;
}

std::string uniqueName(const ObjectRecord &record, std::int16_t index, std::set<std::string> &taken)
{
    const std::string number = std::to_string(index);
    std::string name = oneLine(record.ctlname, std::string::npos);
    if (name.empty())
        name = "object-" + number;
    while (!taken.insert(name).second)
        name += "-" + number;
    return name;
}

} // namespace

std::vector<std::int16_t> documentOrder(const Page &p)
{
    std::vector<std::int16_t> order, tabbed;
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        if (!kindOf(recordOf(p, i).kind))
            continue;
        order.push_back(i);
        if (hasTabIndex(recordOf(p, i)))
            tabbed.push_back(i);
    }
    std::stable_sort(tabbed.begin(), tabbed.end(),
                     [&p](std::int16_t a, std::int16_t b) { return recordOf(p, a).tbindex < recordOf(p, b).tbindex; });
    auto next = tabbed.begin();
    for (std::int16_t &i : order)
        if (hasTabIndex(recordOf(p, i)))
            i = *next++;
    return order;
}

bool actsByEntry(const Page &p, std::int16_t index)
{
    if (kindOf(recordOf(p, index).kind) != Kind::ListBox)
        return false;
    const auto &entries = p.lbxextras[static_cast<std::size_t>(p.ctlindex[static_cast<std::size_t>(index)])];
    return std::any_of(entries.begin(), entries.end(),
                       [](const ListBoxEntry &entry) { return ActionCode(entry.action) != action::none; });
}

bool isShownField(const Page &p, std::int16_t index)
{
    const ObjectRecord &record = recordOf(p, index);
    const auto kind = kindOf(record.kind);
    if (!kind || !isField(*kind) || actsByEntry(p, index))
        return false;
    const bool canHide = *kind == Kind::TextBox || *kind == Kind::File;
    return !(canHide && record.has(invisibleFlag));
}

std::int16_t nearestLabel(const Page &p, std::int16_t index) { return nearestOf(labelsOf(p), p, index); }

FieldLabels fieldLabels(const Page &p)
{
    FieldLabels labels{std::vector<std::int16_t>(p.objects.size(), noObject),
                       std::vector<std::int16_t>(p.objects.size(), noObject)};
    const std::vector<std::int16_t> all = labelsOf(p);
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const std::int16_t label = nearestOf(all, p, i);
        labels.labelOf[static_cast<std::size_t>(i)] = label;
        const bool plain = label != noObject && ActionCode(recordOf(p, label).actlist) == action::none;
        if (!plain || !isShownField(p, i))
            continue;
        std::int16_t &field = labels.fieldOf[static_cast<std::size_t>(label)];
        if (field == noObject || distance(p, label, i) < distance(p, label, field))
            field = i;
    }
    return labels;
}

std::vector<std::string> fieldNames(const Page &p)
{
    std::set<std::string> taken{"object", "isindex", "_charset_"};
    std::vector<std::string> names(p.objects.size());
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const auto kind = kindOf(recordOf(p, i).kind);
        if (kind && isField(*kind))
            names[static_cast<std::size_t>(i)] = uniqueName(recordOf(p, i), i, taken);
    }
    return names;
}

} // namespace corvanta
