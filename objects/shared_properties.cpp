#include "objects/shared_properties.h"

#include "document/events.h"
#include "document/parse.h"
#include "platform/asking.h"

#include <algorithm>

namespace corvanta {

namespace {

bool always(Kind) { return true; }
bool placed(Kind kind) { return kind != Kind::Animation; }
bool aligned(Kind kind) { return kindRow(kind).hasAlignment; }
bool ordered(Kind kind) { return kindRow(kind).hasTabIndex; }
bool bound(Kind kind) { return kindRow(kind).hasBinding; }
bool written(Kind kind) { return !kindRow(kind).drawnOnPage && kind != Kind::Animation; }
bool excludable(Kind kind) { return kind == Kind::TextBox || kind == Kind::File; }
bool guarded(Kind kind) { return excludable(kind) || kind == Kind::ImageDb; }
bool multiLine(Kind kind) { return kind == Kind::TextBox; }
bool transparent(Kind kind) { return kind == Kind::Label; }
bool bordered(Kind kind) { return kind == Kind::Label || kind == Kind::Ticker; }
bool moving(Kind kind) { return kind == Kind::Animation; }
bool hovering(Kind kind)
{
    return kind == Kind::HotSpot || kind == Kind::Label || kind == Kind::Image || kind == Kind::Animation ||
           kind == Kind::Url;
}

SharedField text(const char *name, const char *label, bool (*has)(Kind), std::string PropertyFields::*member)
{
    return {name, label, has, member};
}

SharedField flag(const char *name, const char *label, bool (*has)(Kind), bool PropertyFields::*member)
{
    return {name, label, has, nullptr, nullptr, member};
}

bool equal(const SharedField &field, const PropertyFields &a, const PropertyFields &b)
{
    if (field.text)
        return a.*field.text == b.*field.text;
    if (field.choice)
        return a.*field.choice == b.*field.choice;
    return field.flag ? a.*field.flag == b.*field.flag : a.font == b.font;
}

void copy(const SharedField &field, const PropertyFields &from, PropertyFields &to)
{
    if (field.text)
        to.*field.text = from.*field.text;
    else if (field.choice)
        to.*field.choice = from.*field.choice;
    else if (field.flag)
        to.*field.flag = from.*field.flag;
    else
        to.font = from.font;
}

// A colour that is typed for many counts for those too whose own dialog would not let it be typed.
bool colourIsTyped(const SharedFields &touched)
{
    for (std::size_t i = 0; i < sharedFieldCount; ++i)
        if (touched[i] && sharedFields()[i].text == &PropertyFields::col)
            return true;
    return false;
}

std::optional<Kind> kindAt(std::int16_t index)
{
    return kindOf(page().objects.at(static_cast<std::size_t>(index)).kind);
}

} // namespace

std::span<const SharedField, sharedFieldCount> sharedFields()
{
    static const SharedField fields[sharedFieldCount] = {
        text("pheight", "&Height:", placed, &PropertyFields::pheight),
        text("pwidth", "&Width:", placed, &PropertyFields::pwidth),
        text("keyreq", "&Key Required:", always, &PropertyFields::keyreq),
        text("sptext", "&Status Panel Text:", always, &PropertyFields::sptext),
        text("condobjname", "C&ondition Object:", bound, &PropertyFields::condobjname),
        text("col", "&BackColor:", hasColour, &PropertyFields::col),
        {"font", "&Font...", written},
        {"alignment", "&Alignment:", aligned, nullptr, &PropertyFields::alignment},
        text("tbindex", "&Tab Index:", ordered, &PropertyFields::tbindex),
        flag("hover", "&Use special mouse pointer", hovering, &PropertyFields::hover),
        flag("readonly", "&Read Only", guarded, &PropertyFields::readonly),
        flag("exludesql", "&Exlude from SQL", excludable, &PropertyFields::exludesql),
        flag("invisible", "&Invisible", excludable, &PropertyFields::invisible),
        flag("multi", "&Multi Line", multiLine, &PropertyFields::multi),
        flag("trans", "T&ransparent Background", transparent, &PropertyFields::trans),
        flag("bstyle", "B&order", bordered, &PropertyFields::bstyle),
        flag("strictime", "Use stricter anim&ation timing", moving, &PropertyFields::strictime),
    };
    return fields;
}

SharedProperties LoadSharedProperties(const std::vector<std::int16_t> &indices)
{
    SharedProperties shared;
    if (indices.empty())
        return shared;
    shared.values = LoadProperties(indices.front());
    shared.common.set();
    for (const std::int16_t index : indices) {
        const PropertyFields values = LoadProperties(index);
        const auto kind = kindAt(index);
        for (std::size_t i = 0; i < sharedFieldCount; ++i) {
            const SharedField &field = sharedFields()[i];
            if (!kind || !field.hasField(*kind))
                shared.common.reset(i);
            else if (!equal(field, values, shared.values))
                shared.different.set(i);
        }
    }
    shared.different &= shared.common;
    return shared;
}

Confirmation ConfirmSharedProperties(const std::vector<std::int16_t> &indices, const PropertyFields &values,
                                     SharedFields touched)
{
    touched &= LoadSharedProperties(indices).common;
    if (touched.none())
        return {true, ""};
    if (colourIsTyped(touched) && !CheckColourText(values.col, "Invalid \"BackColor\"."))
        return {false, "col"};
    std::vector<PropertyFields> changed;
    for (const std::int16_t index : indices) {
        changed.push_back(LoadProperties(index));
        for (std::size_t i = 0; i < sharedFieldCount; ++i)
            if (touched[i])
                copy(sharedFields()[i], values, changed.back());
        const Confirmation check = CheckProperties(index, changed.back());
        if (!check.stored)
            return check;
    }
    const CollectedMessages collected;
    for (std::size_t i = 0; i < indices.size(); ++i)
        StoreProperties(indices[i], changed[i]);
    pageEdited("Properties of " + std::to_string(indices.size()) + " objects");
    return {true, ""};
}

} // namespace corvanta
