#include "actions/action.h"
#include "compare/compare.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "tests/rules/odspage_files.h"

#include <random>
#include <set>

namespace corvanta {

namespace {

const std::string sampleFolder = CORVANTA_SOURCE "/samples/";

Page samplePage(const std::string &name)
{
    Page p;
    parsePage(p, hostBytes(sampleFolder + name));
    return p;
}

Page copyOf(const Page &p)
{
    Page copy;
    parsePage(copy, serialisePage(p));
    return copy;
}

TEST(Compare, PagesComeBackFromTheirValues)
{
    for (const std::string &name : samples::currentPages()) {
        Page p;
        parsePage(p, sample(name));
        std::vector<std::size_t> refused;
        EXPECT_TRUE(serialisePage(putTogether(takenApart(p), refused)) == sample(name)) << name;
        EXPECT_TRUE(differences(p, p).empty()) << name;
    }
}

TEST(Compare, ToldInTheAuthorsWords)
{
    const ScratchFolder scratch;
    Page p = samplePage("query.ods");
    p.objects[1].pleft = 60;
    p.lbl[2].font.FontSize = 12;
    p.pgcaption = "Search";
    const std::string without = serialisePage(p).substr(0, serialisePage(p).size() - serialiseObject(p, 12).size());
    const std::string after = scratch.write("after.ods", without);
    const ToolResult result = odspage({"diff", sampleFolder + "query.ods", after});
    EXPECT_EQ(result.out, "Page: caption \"Customer search\" -> \"Search\"\n"
                          "Label \"Name:\": left 20 -> 60\n"
                          "Label \"Name:\": font size 8.25 -> 12\n"
                          "Button \"&Reset\": removed\n");
    EXPECT_EQ(parseJson(odspage({"diff", "--json", sampleFolder + "query.ods", after}).out).size(), 3U);
}

TEST(Compare, ConflictsAreListedAndLeftAsOurs)
{
    const ScratchFolder scratch;
    Page ours = samplePage("query.ods"), theirs = samplePage("query.ods");
    ours.objects[1].pleft = 60;
    theirs.objects[1].pleft = 70;
    theirs.objects[1].ptop = 71;
    const std::string mine = scratch.write("ours.ods", serialisePage(ours));
    const ToolResult result =
        odspage({"merge", sampleFolder + "query.ods", mine, scratch.write("theirs.ods", serialisePage(theirs))});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, "odspage: conflict: Label \"Name:\": left 20 -> 60 here, 70 there\n");
    ours.objects[1].ptop = 71;
    EXPECT_TRUE(hostBytes(mine) == serialisePage(ours));
}

using Random = std::mt19937;
std::size_t below(Random &random, std::size_t n) { return random() % n; }

// An edit of one value that says where it was made.
struct Edit {
    std::int16_t object;
    int field;
    auto operator<=>(const Edit &) const = default;
};

void make(Page &p, const Edit &edit, const std::string &mark)
{
    ObjectRecord &o = p.objects[static_cast<std::size_t>(edit.object)];
    switch (edit.field) {
    case 0: o.sptext = mark; break;
    case 1: o.keyreq = mark; break;
    case 2: o.updatekey = mark; break;
    case 3: o.actlist = encodeAction({action::executeSql, {mark}}); break;
    }
}

std::vector<Edit> randomEdits(Random &random, const Page &p, const std::string &side, Page &edited)
{
    std::vector<Edit> edits(1 + below(random, 6));
    for (Edit &edit : edits) {
        edit = {static_cast<std::int16_t>(below(random, static_cast<std::size_t>(objectCount(p)))),
                static_cast<int>(below(random, 4))};
        make(edited, edit, side + std::to_string(edit.object) + "." + std::to_string(edit.field));
    }
    return edits;
}

void addRandomObjects(Random &random, Page &p, const std::string &side)
{
    for (std::size_t i = below(random, 3); i-- > 0;) {
        ObjectRecord record;
        record.kind = static_cast<std::int16_t>(Kind::Image);
        record.sptext = side + " new " + std::to_string(i);
        record.pleft = static_cast<std::int16_t>(below(random, 500));
        appendObject(p, record);
    }
}

// Values that tell where they were made, of all objects.
std::multiset<std::string> marksOf(const Page &p)
{
    std::multiset<std::string> marks;
    for (const ComparedObject &object : takenApart(p).objects)
        for (const Field &field : object.fields)
            if (field.shown.find("ours") != std::string::npos || field.shown.find("theirs") != std::string::npos)
                marks.insert(field.name + field.shown);
    return marks;
}

TEST(Compare, RandomMergesLoseNoEditThatDidNotConflict)
{
    Random random(7);
    const char *const names[] = {"query.ods", "customer.ods", "menu.ods", "record.ods"};
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        const Page base = samplePage(names[round % 4]);
        Page ours = copyOf(base), theirs = copyOf(base);
        const std::vector<Edit> mine = randomEdits(random, base, "ours", ours);
        const std::vector<Edit> other = randomEdits(random, base, "theirs", theirs);
        addRandomObjects(random, ours, "ours");
        addRandomObjects(random, theirs, "theirs");
        std::multiset<std::string> expected = marksOf(ours), both = marksOf(theirs);
        std::set<Edit> conflicts;
        for (const Edit &edit : mine)
            if (std::find(other.begin(), other.end(), edit) != other.end())
                conflicts.insert(edit);
        expected.merge(both);
        const Merge result = merged(base, ours, theirs);
        EXPECT_EQ(result.conflicts.size(), conflicts.size());
        std::multiset<std::string> found = marksOf(result.page);
        EXPECT_EQ(found.size() + conflicts.size(), expected.size());
        EXPECT_TRUE(std::includes(expected.begin(), expected.end(), found.begin(), found.end()));
        EXPECT_TRUE(serialisePage(copyOf(result.page)) == serialisePage(result.page));
    }
}

TEST(PageLinks, ARenameChangesEveryLinkOrNothing)
{
    const ScratchFolder scratch;
    const std::string pages = scratch.path("pages");
    std::filesystem::copy(sampleFolder, pages, std::filesystem::copy_options::recursive);
    const std::string before = odspage({"uses", "prices", pages}).out;
    EXPECT_NE(before.find("menu.ods: object 7 (List Box)\n"), std::string::npos) << before;
    EXPECT_EQ(odspage({"rename", "prices", "query", pages}).exitCode, 1) << "this page is there";
    const std::string damaged = scratch.write("pages/damaged.ods", "x");
    EXPECT_EQ(odspage({"rename", "prices", "tariff", pages}).exitCode, 1);
    EXPECT_EQ(odspage({"diff", sampleFolder + "menu.ods", pages + "/menu.ods"}).out, "");
    std::filesystem::remove(damaged);
    EXPECT_EQ(odspage({"rename", "prices", "tariff", pages}).out, "menu.ods\n");
    EXPECT_TRUE(hostBytes(pages + "/tariff.ods") == hostBytes(sampleFolder + "prices.ods"));
    EXPECT_EQ(odspage({"uses", "PRICES", pages}).out, "");
    EXPECT_EQ(odspage({"uses", "tariff.ods", pages}).out, before);
    EXPECT_EQ(odspage({"check", pages}).out, "");
    const std::string dot = odspage({"graph", pages}).out;
    EXPECT_NE(dot.find("\"MENU\" -> \"TARIFF\";"), std::string::npos) << dot;
    EXPECT_NE(odspage({"graph", "--svg", pages}).out.find(">TARIFF</text>"), std::string::npos);
}

} // namespace

} // namespace corvanta
