#include "document/kinds.h"

#include "platform/text.h"

#include <algorithm>

namespace corvanta {

namespace {

//                                                                   page   align  tab    bind   tail
constexpr std::array<KindRow, lastKind> kindRows{{
    {Kind::Button, "but", "Button", "&Button", false, true, true, false, true},
    {Kind::HotSpot, "hot", "Hot Spot", "&Hot Spot", true, false, false, false, false},
    {Kind::ListBox, "lbx", "List Box", "", false, true, true, false, true},
    {Kind::Label, "lbl", "Label", "&Label", false, true, false, false, true},
    {Kind::TextBox, "tbx", "Text Box", "&Text Box", false, true, true, true, true},
    {Kind::Image, "img", "Image", "&Image", true, false, false, false, false},
    {Kind::Ticker, "tkr", "Ticker", "", false, false, false, false, true},
    {Kind::Animation, "ani", "Animation", "", false, false, false, false, true},
    {Kind::Grid, "grd", "Grid", "&Grid", false, false, true, false, true},
    {Kind::ImageDb, "imgdb", "Image DB", "&Image &DB", true, false, true, true, false},
    {Kind::ComboBox, "cbx", "Combo Box", "Combo &Box", false, true, true, true, true},
    {Kind::File, "fbx", "File", "&File", false, false, false, true, true},
    {Kind::Url, "url", "Url", "&Url", false, false, false, true, true},
}};

const RegisteredKind &registered(std::int16_t code)
{
    static const RegisteredKind empty;
    const auto &registry = kindRegistry();
    const bool known = code >= 0 && static_cast<std::size_t>(code) < registry.size();
    return known ? registry[static_cast<std::size_t>(code)] : empty;
}

} // namespace

const KindRow &kindRow(Kind kind) { return kindRows[static_cast<std::size_t>(kind) - 1]; }

std::vector<RegisteredKind> &kindRegistry()
{
    static std::vector<RegisteredKind> registry(1);
    return registry;
}

void registerKind(std::int16_t code, std::string_view displayName, std::string_view menuCaption)
{
    if (code < 0)
        return;
    const auto slot = static_cast<std::size_t>(code);
    auto &registry = kindRegistry();
    if (slot + 1 >= registry.size())
        registry.resize(slot + 2);
    registry[slot] = {code, 0, std::string(displayName), std::string(menuCaption)};
}

void buildKindRegistry()
{
    kindRegistry().assign(1, {});
    for (const KindRow &row : kindRows)
        if (*row.menuCaption)
            registerKind(static_cast<std::int16_t>(row.kind), row.displayName, row.menuCaption);
}

std::string objectName(std::int16_t code)
{
    const auto kind = kindOf(code);
    return kind ? kindRow(*kind).displayName : "object";
}

std::string kindDisplayName(std::int16_t code) { return registered(code).displayName; }

std::string kindMenuCaption(std::int16_t code) { return registered(code).menuCaption; }

std::vector<RegisteredKind> orderedAddMenu()
{
    std::vector<RegisteredKind> offered;
    for (const RegisteredKind &entry : kindRegistry())
        if (!entry.displayName.empty())
            offered.push_back(entry);
    std::stable_sort(offered.begin(), offered.end(),
                     [](const auto &a, const auto &b) { return upperCase(a.displayName) < upperCase(b.displayName); });
    std::int16_t index = 0;
    for (RegisteredKind &entry : offered) {
        entry.menuIndex = ++index;
        kindRegistry()[static_cast<std::size_t>(entry.code)].menuIndex = index;
    }
    return offered;
}

} // namespace corvanta
