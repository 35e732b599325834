#include "document/object_file.h"
#include "document/page_file.h"
#include "tests/rules/odspage_files.h"

#include <gtest/gtest.h>

namespace corvanta {

namespace {

Json dumpOf(std::string_view bytes)
{
    Page p;
    parsePage(p, bytes);
    return pageJson(p);
}

// What was read is printed, and building it gives a page that reads the same.
void expectStable(std::string_view bytes)
{
    Json first = dumpOf(bytes);
    std::string built;
    try {
        built = fileFromJson(first);
    } catch (const JsonError &error) {
        EXPECT_NE(std::string(error.what()).find("of a file"), std::string::npos) << error.what();
        return; // missing values take room, so a damaged page can outgrow a file
    }
    first["pgversion"] = currentVersion;
    EXPECT_EQ(dumpOf(built), first);
}

struct Cuts {
    const char *name;
    std::size_t step; // one for every byte; the largest page would take minutes
};

TEST(OdspageDamage, EveryCutOfASampleReadsAndBuildsAgain)
{
    for (const Cuts &cuts : {Cuts{"menu.ods", 1}, Cuts{"hitlist.ods", 1}, Cuts{"record.ods", 1}, Cuts{"query.ods", 1},
                             Cuts{"view.ods", 1}, Cuts{"version1.ods", 1}, Cuts{"largest.ods", 251}}) {
        const std::string bytes = sample(cuts.name);
        for (std::size_t length = 1; length < bytes.size(); length += cuts.step) {
            SCOPED_TRACE(std::string(cuts.name) + " cut at " + std::to_string(length));
            expectStable(std::string_view(bytes).substr(0, length));
        }
    }
}

TEST(OdspageDamage, EveryFlippedByteReadsAndBuildsAgain)
{
    std::string bytes = sample("record.ods");
    for (char &byte : bytes) {
        SCOPED_TRACE("byte " + std::to_string(&byte - bytes.data()));
        byte = static_cast<char>(~byte);
        expectStable(bytes);
        byte = static_cast<char>(~byte);
    }
}

TEST(OdspageDamage, EveryCutOfAnObjectFileReadsAndBuildsAgain)
{
    for (const char *name : {"lamp.hdo", "quitbutton.hdo"}) {
        const std::string bytes = sample(name);
        for (std::size_t length = 2; length < bytes.size(); ++length) {
            Page cut, again;
            appendObjectFile(cut, std::string_view(bytes).substr(0, length));
            const Json first = objectFileJson(cut, currentVersion);
            appendObjectFile(again, fileFromJson(first));
            EXPECT_EQ(objectFileJson(again, currentVersion), first) << name << " cut at " << length;
        }
    }
}

} // namespace

} // namespace corvanta
