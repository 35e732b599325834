#include "document/object_file.h"
#include "document/page_file.h"
#include "platform/codepage.h"
#include "tests/rules/odspage_files.h"

#include <gtest/gtest.h>

namespace corvanta {

namespace {

// Truncated and version-1 files are not written back as they were.
struct Sample {
    std::string name;
    std::string json = name.ends_with(".ods") ? name.substr(0, name.size() - 3) + "json" : name + ".json";
    bool undamaged = name != "truncated.ods" && name != "version1.ods";
};

class OdspageSample : public testing::TestWithParam<const char *> {};

INSTANTIATE_TEST_SUITE_P(Pages, OdspageSample,
                         testing::Values("empty.ods", "hitlist.ods", "largest.ods", "menu.ods", "query.ods",
                                         "record.ods", "view.ods", "lamp.hdo", "quitbutton.hdo", "truncated.ods",
                                         "version1.ods"),
                         [](const auto &row) {
                             return std::string(row.param).replace(std::string(row.param).find('.'), 1, "_");
                         });

TEST_P(OdspageSample, DumpIsTheJsonAndBuildTheBytes)
{
    const Sample s{GetParam()};
    const ScratchFolder scratch;
    const ToolResult dump = odspage({"dump", samplePath(s.name)});
    EXPECT_EQ(dump.exitCode, 0);
    EXPECT_EQ(dump.out, sample(s.json) + "\n");
    EXPECT_EQ(dump.err.empty(), s.undamaged) << dump.err;

    const std::string built = scratch.path("built");
    const ToolResult build = odspage({"build", samplePath(s.json), built});
    EXPECT_EQ(build.exitCode, 0);
    EXPECT_EQ(build.out + build.err, "");
    EXPECT_EQ(hostBytes(built) == sample(s.name), s.undamaged);
}

TEST_P(OdspageSample, BuildEqualsLoadAndSave)
{
    const Sample s{GetParam()};
    const std::string name = s.name, built = fileFromJson(parseJson(sample(s.json)));
    Page p;
    if (name.ends_with(".hdo")) {
        appendObjectFile(p, sample(name));
        EXPECT_TRUE(objectFileText(p, 0) == built);
    } else {
        parsePage(p, sample(name));
        EXPECT_TRUE(serialisePage(p) == built);
    }
}

TEST(OdspageDump, FailuresAndWrongUsage)
{
    const ScratchFolder scratch;
    EXPECT_EQ(odspage({"dump", scratch.path("none.ods")}).exitCode, 1);
    EXPECT_FALSE(std::filesystem::exists(scratch.path("none.ods")));
    EXPECT_EQ(odspage({"dump", scratch.write("zero.ods", "")}).exitCode, 1);
    EXPECT_EQ(odspage({"dump", scratch.write("big.ods", std::string(16385, '\0'))}).exitCode, 1);
    EXPECT_EQ(odspage({"dump", scratch.write("full.ods", std::string(16384, '\0'))}).exitCode, 0);
    EXPECT_EQ(odspage({}).exitCode, 2);
    EXPECT_EQ(odspage({"dump"}).exitCode, 2);
    EXPECT_EQ(odspage({"paint", "x"}).exitCode, 2);
    EXPECT_EQ(odspage({"build", "x"}).exitCode, 2);
    EXPECT_EQ(odspage({"dump", "--codepage", "437", samplePath("menu.ods")}).exitCode, 2);
    EXPECT_EQ(odspage({"--help"}).exitCode, 0);
}

TEST(OdspageDump, ReadsTextsInTheGivenCodePage)
{
    const ScratchFolder scratch;
    Page p;
    p.pgcaption = "\xE9\x81";
    const std::string file = scratch.write("caption.ods", serialisePage(p));
    const auto caption = [&](const ToolResult &dump) { return parseJson(dump.out)["pgcaption"].get<std::string>(); };
    EXPECT_EQ(caption(odspage({"dump", file})), "\u00E9\u0081");
    const ToolResult hebrew = odspage({"dump", file, "--codepage", "1255"});
    EXPECT_EQ(caption(hebrew).substr(0, 2), "\u05D9");
    const std::string json = scratch.write("caption.json", hebrew.out), back = scratch.path("back.ods");
    EXPECT_EQ(odspage({"build", json, back}).exitCode, 1) << "the usual code page lacks the letter";
    EXPECT_FALSE(std::filesystem::exists(back));
    EXPECT_EQ(odspage({"--codepage", "1255", "build", json, back}).exitCode, 0);
    EXPECT_EQ(hostBytes(back), serialisePage(p));
    setCodePage(1252);
}

// What was read is printed, and building it gives a page that reads the same.
void expectStable(std::string_view bytes)
{
    const auto dumpOf = [](std::string_view text) {
        Page p;
        parsePage(p, text);
        return pageJson(p);
    };
    Json first = dumpOf(bytes);
    const std::string built = fileFromJson(first);
    first["pgversion"] = currentVersion;
    EXPECT_EQ(dumpOf(built), first);
}

TEST(OdspageDamage, CutAndFlippedPagesReadAndBuildAgain)
{
    std::string bytes = sample("record.ods");
    for (std::size_t at = 1; at < bytes.size(); ++at) {
        SCOPED_TRACE(at);
        expectStable(std::string_view(bytes).substr(0, at));
        bytes[at] = static_cast<char>(~bytes[at]);
        expectStable(bytes);
        bytes[at] = static_cast<char>(~bytes[at]);
    }
}

TEST(OdspageSql, PrintsTheGeneratedStatementOrTheMessage)
{
    const ToolResult query = odspage({"sql", CORVANTA_SOURCE "/samples/query.ods"});
    EXPECT_EQ(query.out, "Select * From Customers Where Customers.Name Like '@custname@%' And Customers.City @opcity@ "
                         "'@city@' And (Customers.CreditLimit = @credit@ Or @credit@ is Null) And \"Customer Since\" = "
                         "{d'@since@'}\n");
    const ToolResult menu = odspage({"sql", CORVANTA_SOURCE "/samples/menu.ods"});
    EXPECT_EQ(menu.exitCode, 1);
    EXPECT_NE(menu.err.find("No Default Table."), std::string::npos);
}

} // namespace

} // namespace corvanta
