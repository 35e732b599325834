#include "actions/links.h"

#include "document/encoding.h"

namespace corvanta {

namespace {

using VisitAction = std::function<void(const Action &)>;

void visitAction(std::string_view text, const VisitAction &visit)
{
    if (ActionCode(text) != action::list)
        return visit(decodeAction(text));
    for (const ActionEntry &entry : heldActionEntries(text))
        visitAction(entry.action, visit);
}

std::string renamedIn(std::string_view text, const RenamePage &renamed);

std::string renamedInEntry(std::string_view entry, const RenamePage &renamed)
{
    const std::string own = decodeString(entry);
    return encodeString(renamedIn(own, renamed)).append(entry);
}

std::string renamedInList(std::string_view text, const RenamePage &renamed)
{
    constexpr std::size_t codeAndCount = 4;
    std::string result(text.substr(0, codeAndCount));
    decodeInt16(text);
    const std::int16_t count = decodeInt16(text);
    for (std::int16_t i = 0; i < count && !text.empty(); ++i)
        result += encodeString(renamedInEntry(decodeString(text), renamed));
    return result.append(text);
}

std::string renamedInParameters(std::string_view text, const RenamePage &renamed)
{
    Action decoded = decodeAction(text);
    const std::vector<std::size_t> places = pageParameters(decoded.code);
    if (places.empty())
        return std::string(text);
    const std::size_t known = encodeAction(decoded).size();
    for (const std::size_t place : places)
        decoded.values[place] = renamed(decoded.values[place]);
    return encodeAction(decoded).append(text.substr(std::min(known, text.size())));
}

// The text as it was where no name in it changes, whatever else is wrong with it.
std::string renamedIn(std::string_view text, const RenamePage &renamed)
{
    bool changes = false;
    visitAction(text, [&](const Action &action) {
        for (const std::size_t place : pageParameters(action.code))
            changes = changes || renamed(action.values[place]) != action.values[place];
    });
    if (!changes)
        return std::string(text);
    return ActionCode(text) == action::list ? renamedInList(text, renamed) : renamedInParameters(text, renamed);
}

bool rename(std::string &text, const RenamePage &renamed)
{
    std::string now = renamedIn(text, renamed);
    const bool changed = now != text;
    text = std::move(now);
    return changed;
}

// The entries of a List Box object; none for other kinds.
const std::vector<ListBoxEntry> *entriesOf(const Page &p, std::int16_t object)
{
    const auto i = static_cast<std::size_t>(object);
    if (kindOf(p.objects[i].kind) != Kind::ListBox)
        return nullptr;
    return &p.lbxextras[static_cast<std::size_t>(p.ctlindex[i])];
}

} // namespace

void eachAction(const Page &p, const std::function<void(std::int16_t, const Action &)> &visit)
{
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const auto visitOne = [&](const Action &action) { visit(i, action); };
        visitAction(p.objects[static_cast<std::size_t>(i)].actlist, visitOne);
        if (const auto *entries = entriesOf(p, i))
            for (const ListBoxEntry &entry : *entries)
                visitAction(entry.action, visitOne);
    }
}

std::vector<std::size_t> pageParameters(std::int16_t code)
{
    if (code == action::goToPage)
        return {0};
    if (code == action::submitSelect)
        return {1, 2};
    return {};
}

bool renamePageLinks(Page &p, const RenamePage &renamed)
{
    bool changed = false;
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        changed = rename(p.objects[static_cast<std::size_t>(i)].actlist, renamed) || changed;
        if (entriesOf(p, i) == nullptr)
            continue;
        for (ListBoxEntry &entry : p.lbxextras[static_cast<std::size_t>(p.ctlindex[static_cast<std::size_t>(i)])])
            changed = rename(entry.action, renamed) || changed;
    }
    return changed;
}

} // namespace corvanta
