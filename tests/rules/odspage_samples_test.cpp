#include "document/object_file.h"
#include "document/page_file.h"
#include "platform/codepage.h"
#include "tests/rules/odspage_files.h"

#include <gtest/gtest.h>

namespace corvanta {

namespace {

struct Sample {
    const char *name, *json;
    bool undamaged;
};

class OdspageSample : public testing::TestWithParam<Sample> {};

INSTANTIATE_TEST_SUITE_P(
    Pages, OdspageSample,
    testing::Values(Sample{"empty.ods", "empty.json", true}, Sample{"hitlist.ods", "hitlist.json", true},
                    Sample{"largest.ods", "largest.json", true}, Sample{"menu.ods", "menu.json", true},
                    Sample{"query.ods", "query.json", true}, Sample{"record.ods", "record.json", true},
                    Sample{"view.ods", "view.json", true}, Sample{"lamp.hdo", "lamp.hdo.json", true},
                    Sample{"quitbutton.hdo", "quitbutton.hdo.json", true},
                    Sample{"truncated.ods", "truncated.json", false}, Sample{"version1.ods", "version1.json", false}),
    [](const auto &parameter) {
        std::string name = parameter.param.name;
        return name.replace(name.find('.'), 1, "_");
    });

TEST_P(OdspageSample, DumpIsTheJsonAndBuildTheBytes)
{
    const Sample &s = GetParam();
    const ScratchFolder scratch;
    const ToolResult dump = odspage({"dump", samplePath(s.name).string()});
    EXPECT_EQ(dump.exitCode, 0);
    EXPECT_EQ(dump.out, sample(s.json) + "\n");
    EXPECT_EQ(dump.err.empty(), s.undamaged) << dump.err;

    const std::string built = scratch.path("built");
    const ToolResult build = odspage({"build", samplePath(s.json).string(), built});
    EXPECT_EQ(build.exitCode, 0);
    EXPECT_EQ(build.out + build.err, "");
    EXPECT_EQ(contentOf(built) == sample(s.name), s.undamaged);
}

TEST_P(OdspageSample, BuildEqualsLoadAndSave)
{
    const std::string name = GetParam().name, built = fileFromJson(parseJson(sample(GetParam().json)));
    Page p;
    if (name.ends_with(".hdo")) {
        appendObjectFile(p, sample(name));
        EXPECT_TRUE(objectFileText(p, 0) == built);
    } else {
        parsePage(p, sample(name));
        EXPECT_TRUE(serialisePage(p) == built);
    }
}

TEST(OdspageDump, WarnsOfVersionAndDamage)
{
    const ToolResult old = odspage({"dump", samplePath("version1.ods").string()});
    EXPECT_NE(old.err.find("saving would change this file"), std::string::npos);
    EXPECT_NE(old.err.find("version is 1, saved as 3"), std::string::npos);
    const ToolResult cut = odspage({"dump", samplePath("truncated.ods").string()});
    EXPECT_NE(cut.err.find("saving would change this file"), std::string::npos);
    EXPECT_EQ(cut.err.find("version"), std::string::npos);
}

TEST(OdspageDump, TellsAnObjectFileByItsContent)
{
    const ScratchFolder scratch;
    const ToolResult object = odspage({"dump", scratch.write("lamp", sample("lamp.hdo"))});
    EXPECT_EQ(object.out, sample("lamp.hdo.json") + "\n");
    const ToolResult page = odspage({"dump", scratch.write("menu.bak", sample("menu.ods"))});
    EXPECT_EQ(page.out, sample("menu.json") + "\n");
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
    EXPECT_EQ(odspage({"dump", "--codepage", "437", samplePath("menu.ods").string()}).exitCode, 2);
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
    EXPECT_EQ(contentOf(back), serialisePage(p));
    setCodePage(1252);
}

} // namespace

} // namespace corvanta
