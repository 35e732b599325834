#include "check/rules.h"

#include "platform/text.h"

namespace corvanta {

namespace {

constexpr CheckRule rules[] = {
    {"outside", "An object lies outside of the page", findOutside},
    {"zero-size", "An object has no width or no height", findZeroSize},
    {"covered", "An object is covered completely", findCovered},
    {"overlap", "Fields overlap", findOverlaps},
    {"text-fit", "A text does not fit its box", findTightTexts},
    {"contrast", "Text and background differ by less than 4.5:1", findLowContrast},
    {"tab-order", "The tab order is not the reading order", findTabOrder},
    {"page", "An action names a page that is not there, or spells it otherwise", findPages},
    {"media", "A picture, sound or text file is not there, or is spelled otherwise", findMedia},
    {"name-twice", "Two objects have one name", findTwins},
    {"placeholder", "A placeholder names no object", findPlaceholders},
    {"condition", "A condition object is not there", findConditions},
    {"no-name", "An object is bound to a column and has no name", findNameless},
    {"transfer", "A download or upload names no File or Image DB object", findTransfers},
    {"quoting", "Databases misread a column's name", findQuoting},
    {"password", "The page stores a password", findPassword},
    {"size", "The page is too large to be saved", findSize},
    {"unknown-kind", "An object is of an unknown kind", findUnknownKinds},
};

constexpr std::size_t longestTitle = 40; // characters

// A caption in one line, without the mark of its shortcut.
std::string titleFromCaption(const std::string &caption)
{
    std::string title;
    for (std::size_t i = 0; i < caption.size() && title.size() < longestTitle; ++i) {
        if (caption[i] == '&' && i + 1 < caption.size())
            ++i;
        title += static_cast<unsigned char>(caption[i]) < ' ' ? ' ' : caption[i];
    }
    return trimmed(title);
}

} // namespace

std::span<const CheckRule> checkRules() { return rules; }

std::vector<Finding> checkPage(const Checked &checked, const SkipRule &skip)
{
    std::vector<Finding> findings;
    for (const CheckRule &rule : rules)
        if (!skip || !skip(rule.name))
            rule.find(checked, [&](std::int16_t object, std::string text) {
                findings.push_back({object, rule.name, std::move(text)});
            });
    return findings;
}

const ObjectRecord &recordAt(const Page &p, std::int16_t index) { return p.objects[static_cast<std::size_t>(index)]; }

std::string objectTitle(const Page &p, std::int16_t index)
{
    const ObjectRecord &o = recordAt(p, index);
    const Element *e = elementOf(p, index);
    std::string name = o.ctlname;
    if (name.empty() && e != nullptr &&
        (kindOf(o.kind) == Kind::Button || kindOf(o.kind) == Kind::Label || kindOf(o.kind) == Kind::Url ||
         kindOf(o.kind) == Kind::Ticker))
        name = titleFromCaption(e->Caption);
    return name.empty() ? objectName(o.kind) : objectName(o.kind) + " " + name;
}

} // namespace corvanta
