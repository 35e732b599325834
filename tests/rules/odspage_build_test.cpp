#include "document/encoding.h"
#include "tests/rules/odspage_files.h"
#include "json/action.h"

#include <gtest/gtest.h>

namespace corvanta {

namespace {

using namespace std::string_literals;

struct Refusal {
    const char *what;
    std::string pointer; // JSON pointer of the changed value; empty for the whole text
    Json value;          // discarded: the key is removed
    std::string path, reason;
};

Json removal() { return Json(Json::value_t::discarded); }

Json changed(const Refusal &refusal)
{
    Json json = parseJson(sample("menu.json"));
    const Json::json_pointer at(refusal.pointer);
    if (refusal.value.is_discarded())
        json[at.parent_pointer()].erase(at.back());
    else
        json[at] = refusal.value;
    return json;
}

std::string refusalOf(const Json &json)
{
    try {
        fileFromJson(json);
    } catch (const JsonError &error) {
        return error.what();
    }
    return "not refused";
}

void expectRefusal(const std::string &message, const std::string &path, const std::string &reason)
{
    EXPECT_EQ(message.substr(0, path.size() + 2), path + ": ") << message;
    EXPECT_NE(message.find(reason), std::string::npos) << message;
}

TEST(OdspageBuild, RefusesWithPathAndReason)
{
    const Refusal refusals[] = {
        {"unknown page key", "/colour", 1, "$.colour", "unknown"},
        {"missing object key", "/objects/2/tbindex", removal(), "$.objects[2].tbindex", "missing"},
        {"kind without a tail", "/objects/0/kindextra", Json::object(), "$.objects[0].kindextra", "unknown"},
        {"16 bits", "/objects/2/ptop", 32768, "$.objects[2].ptop", "-32768 to 32767"},
        {"32 bits", "/bkgcol", 0x80000000U, "$.bkgcol", "outside"},
        {"fraction", "/bkght", 1.5, "$.bkght", "whole number"},
        {"number for text", "/pgcaption", 1, "$.pgcaption", "string"},
        {"number for truth", "/objects/1/kindextra/font/FontBold", -1, "$.objects[1].kindextra.font.FontBold", "true"},
        {"single", "/objects/1/kindextra/font/FontSize", 1e39, "$.objects[1].kindextra.font.FontSize", "single"},
        {"code page", "/objects/2/sptext", "\u4E2D", "$.objects[2].sptext", "code page 1252"},
        {"object for list", "/objects", Json::object(), "$.objects", "array"},
        {"no action parameter", "/objects/2/actlist/page", removal(), "$.objects[2].actlist.page", "missing"},
        {"nested action", "/objects/4/actlist/entries/1/action/code", "x",
         "$.objects[4].actlist.entries[1].action.code", "whole number"},
        {"raw of another code", "/objects/2/actlist/raw", "0a000000", "$.objects[2].actlist.raw", "code 10"},
        {"raw digits", "/objects/2/actlist/raw", "010g", "$.objects[2].actlist.raw", "hexadecimal"},
        {"list entries", "/objects/7/kindextra/entries", Json(52, {{"text", ""}, {"action", {{"code", 0}}}}),
         "$.objects[7].kindextra.entries", "51"},
        {"columns without a grid", "/gridcolumns", Json(1, {{"descriptor", ""}, {"width", 0}}), "$.gridcolumns",
         "no Grid"},
        {"file", "/pgcaption", std::string(16000, 'x'), "$", "more than the 16384"},
    };
    const Json entry = {{"action", {{"code", 0}}}, {"status", "x"}};
    const Refusal raws[] = {
        {"raw of other parameters", "/objects/2/actlist/raw", "01000100587461696c", "$.objects[2].actlist.raw",
         "other parameters"},
        {"raw of other entries",
         "/objects/2/actlist",
         {{"code", 512}, {"entries", {entry}}, {"raw", "00020000"}},
         "$.objects[2].actlist.raw",
         "other entries"},
        {"raw of fewer entries",
         "/objects/2/actlist",
         {{"code", 512}, {"entries", Json::array()}, {"raw", "0002010007000200000001007800"}},
         "$.objects[2].actlist.raw",
         "other entries"},
    };
    for (const Refusal &refusal : raws)
        expectRefusal(refusalOf(changed(refusal)), refusal.path, refusal.reason);
    for (const Refusal &refusal : refusals) {
        SCOPED_TRACE(refusal.what);
        expectRefusal(refusalOf(changed(refusal)), refusal.path, refusal.reason);
    }
}

TEST(OdspageBuild, RefusesMalformedJson)
{
    const auto refusal = [](const std::string &text) -> std::string {
        try {
            parseJson(text);
        } catch (const JsonError &error) {
            return error.what();
        }
        return "not refused";
    };
    expectRefusal(refusal(R"({"a":[1,{"b":1,"c":2,"b":3}]})"), "$.a[1].b", "twice");
    expectRefusal(refusal(std::string(1001, '[') + std::string(1001, ']')), "$", "levels");
    for (const char *text : {"", "{", "{}x", "{\"a\":\"\xFF\"}", "{\"a\":1e999}", "{\"a\":\"\\ud800\"}", "[1,]"})
        EXPECT_EQ(refusal(text).substr(0, 3), "$: ") << text;
    expectRefusal(refusalOf(Json::array()), "$", "object");
    std::string many = "[{}";
    for (int i = 0; i < 1'000'000; ++i)
        many += ",{}";
    expectRefusal(refusal(many + "]"), "$", "values");
}

TEST(OdspageBuild, ARefusedBuildLeavesTheOutputUntouched)
{
    const ScratchFolder scratch;
    const std::string out = scratch.write("page.ods", "before");
    const std::string json = scratch.write("page.json", R"({"pgversion": 3})");
    const ToolResult refused = odspage({"build", json, out});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_NE(refused.err.find("$.PageType: the key is missing"), std::string::npos) << refused.err;
    EXPECT_EQ(hostBytes(out), "before");
    EXPECT_EQ(odspage({"build", scratch.path("none.json"), out}).exitCode, 1);
    EXPECT_EQ(odspage({"build", samplePath("menu.json"), scratch.path("no/such/folder.ods")}).exitCode, 1);
    EXPECT_EQ(odspage({"build", samplePath("menu.json"), out}).exitCode, 0);
    EXPECT_EQ(hostBytes(out), sample("menu.ods"));
}

TEST(OdspageAction, RawStandsOnlyWhereTheNamedFormFallsShort)
{
    const auto both = [](const std::string &text, const std::string &json) {
        EXPECT_EQ(actionJson(text).dump(), json);
        EXPECT_EQ(actionFromJson(parseJson(json), "$"), text);
    };
    both("", R"({"code":0,"raw":""})");
    both("\0\0"s, R"({"code":0})");
    both("\x08\0\xFF\xFF"s, R"({"code":8,"mode":-1})");
    both("\xFB\x01"s, R"({"code":507,"select":"","hitlist":"","queryview":"","raw":"fb01"})");
    both("\x01\0\x01\0Xtail"s, R"({"code":1,"page":"X","raw":"01000100587461696c"})");
    both("\x09\x03\xAB"s, R"({"code":777,"raw":"0903ab"})");
    both("\0\x02"s, R"({"code":512,"entries":[],"raw":"0002"})");
    both("\0\x02\x01\0\x06\0\x02\0\xFB\x01\0\0"s,
         R"({"code":512,"entries":[{"action":{"code":507,"select":"","hitlist":"","queryview":"","raw":"fb01"},)"
         R"("status":""}]})");
}

// Lists in lists that all claim 32,767 entries, and one that ends in empty entries.
TEST(OdspageAction, AHostileListPrintsWhatItsBytesHold)
{
    std::string claims, nested = std::string(4000, '\0');
    for (int level = 0; level < 800; ++level) {
        claims = "\0\2\xFF\x7F"s + encodeString(encodeString(claims));
        nested = "\0\2\xFF\x7F"s + encodeString(encodeString(nested));
    }
    for (const std::string &text : {claims, nested}) {
        const Json json = actionJson(text);
        EXPECT_LT(printJson(json).size(), 8U << 20);
        EXPECT_EQ(actionFromJson(parseJson(printJson(json)), "$"), text);
    }
}

TEST(Odspage, ReadsAndWritesStandardStreams)
{
    const ToolResult dump = odspage({"dump", "-"}, sample("menu.ods"));
    EXPECT_EQ(dump.out, sample("menu.json") + "\n") << dump.err;
    EXPECT_EQ(odspage({"build", "-", "-"}, dump.out).out, sample("menu.ods"));
    EXPECT_EQ(odspage({"dump", "/dev/zero"}).exitCode, 1);
    EXPECT_EQ(odspage({"build", samplePath("menu.json"), "/dev/full"}).exitCode, 1);
    EXPECT_EQ(odspage({"--version"}).exitCode, 0);
}

TEST(Odspage, RefusesWhatIsNoPage)
{
    const ScratchFolder scratch;
    const std::string object = scratch.write("lamp.ods", sample("lamp.hdo")), text = scratch.write("text.ods", "Hello");
    for (const char *command : {"sql", "html"}) {
        EXPECT_NE(odspage({command, text}).err.find("text.ods: "), std::string::npos);
        EXPECT_NE(odspage({command, object}).err.find("not a page file"), std::string::npos);
        EXPECT_EQ(odspage({command, object}).exitCode, 1);
    }
}

} // namespace

} // namespace corvanta
