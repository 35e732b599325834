#include "document/page_damage.h"

#include "document/encoding.h"
#include "document/objects.h"
#include "document/page_file.h"

namespace corvanta {

namespace {

constexpr std::int16_t lastPageKind = static_cast<std::int16_t>(PageKind::QueryView);

// Takes a counted string off the front; cut tells that fewer bytes are left than its length says.
std::string_view takeBlock(std::string_view &text, bool &cut)
{
    const std::int16_t length = decodeInt16(text);
    cut = cut || length < 0 || static_cast<std::size_t>(length) > text.size();
    const std::string_view block = text.substr(0, length < 0 ? text.size() : static_cast<std::size_t>(length));
    text.remove_prefix(block.size());
    return block;
}

std::string lost(const std::string &what, std::size_t bytes)
{
    return what + ": " + std::to_string(bytes) + (bytes == 1 ? " byte is" : " bytes are") + " not understood";
}

// The object that a block holds, alone on a page; what of the block it does not take up is lost.
void lookAtObject(std::string_view block, std::int16_t version, int &tickers, const std::string &name,
                  PageDamage &damage)
{
    Page p;
    p.pgversion = version;
    const std::int16_t index = createVisual(p, block);
    const auto kind = index == noObject ? std::nullopt : kindOf(p.objects.front().kind);
    tickers += kind == Kind::Ticker ? 1 : 0;
    if (tickers > maxTickers && kind == Kind::Ticker) {
        damage.lines.push_back(name + ": one ticker too many, it is left out");
        return;
    }
    const std::size_t saved = serialiseObject(p, 0).size() - 2; // less its length
    if (!kind)
        damage.lines.push_back(name + ": of an unknown kind");
    if (saved < block.size())
        damage.lines.push_back(lost(name, block.size() - saved));
}

} // namespace

PageDamage damageOf(std::string_view bytes)
{
    PageDamage damage;
    Page p;
    bool cut = false;
    std::string_view text = bytes;
    const std::string_view header = takeBlock(text, cut);
    parsePage(p, bytes.substr(0, bytes.size() - text.size()));
    if (header.size() < 2 || p.pgversion < 0 || p.pgversion > currentVersion || p.PageType < 0 ||
        p.PageType > lastPageKind)
        return {"This file is no page: saving would replace it by what could be made of it.",
                {"Its first bytes are not those of a page."}};
    const std::size_t savedHeader = serialisePage(p).size() - 2;
    if (savedHeader < header.size())
        damage.lines.push_back(lost("Page", header.size() - savedHeader));
    int number = 0, tickers = 0;
    while (!text.empty()) {
        ++number;
        const std::string name = "Object " + std::to_string(number);
        if (text.size() < 2) {
            damage.lines.push_back(lost("After the last object", text.size()));
            break;
        }
        lookAtObject(takeBlock(text, cut), p.pgversion, tickers, name, damage);
    }
    if (cut)
        damage.lines.push_back("The file is cut short: its last part is missing.");
    if (!damage.lines.empty())
        damage.summary = "Damaged file, read as far as it goes: saving would lose something. Click here for details.";
    return damage;
}

} // namespace corvanta
