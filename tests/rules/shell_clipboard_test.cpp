#include "canvas/selection.h"
#include "document/byte_codec.h"
#include "document/clip.h"
#include "platform/clipboard.h"
#include "shell/clipboard.h"
#include "tests/support/fresh_page.h"
#include "tests/support/samples.h"
#include "tests/support/scripted_asking.h"

#include <numeric>

namespace corvanta {

namespace {

class ShellClipboard : public FreshPage {
protected:
    ShellClipboard() : FreshPage(640, 480)
    {
        clipboard() = {[this](const ClipboardContent &put) { content = put; }, [this] { return content; },
                       [] { return true; }};
        edited = documentEvents().edited.connect([this](std::string_view act) { acts.emplace_back(act); });
    }
    ~ShellClipboard() override { clipboard() = {}; }

    static void selectAll()
    {
        for (std::int16_t i = 0; i < objectCount(page()); ++i)
            addToMultiSelection(i);
    }
    static std::vector<std::string> bodies(std::int16_t first, std::int16_t last)
    {
        std::vector<std::string> texts;
        for (std::int16_t i = first; i < last; ++i)
            texts.push_back(serialiseObject(page(), i));
        return texts;
    }

    ClipboardContent content;
    EventConnection edited;
    std::vector<std::string> acts;
};

} // namespace

TEST_F(ShellClipboard, EveryObjectOfTheSamplesComesBackWithAllItsBytes)
{
    ScriptedAsking asking;
    for (const std::string &name : samples::currentPages()) {
        for (const bool asText : {false, true}) {
            newPage();
            parsePage(page(), samples::sample(name));
            const std::int16_t count = objectCount(page());
            if (count == 0)
                continue;
            selectAll();
            const std::vector<std::string> before = bodies(0, count);
            cutObjects();
            EXPECT_EQ(objectCount(page()), 0);
            if (asText)
                content.objects.clear();
            pasteObjects();
            EXPECT_EQ(bodies(0, objectCount(page())), before) << name << (asText ? " as JSON" : "");
            EXPECT_EQ(chosenObjects().size(), static_cast<std::size_t>(count));
        }
    }
}

TEST_F(ShellClipboard, PastedObjectsHaveNamesAndATabOrderOfTheirOwn)
{
    for (const char *name : {"city", "opcity2"}) {
        const std::int16_t index = addAt(Kind::TextBox, 600, 10, 30, 20);
        object(index).ctlname = name;
        object(index).tbindex = static_cast<std::int16_t>(index + 4);
    }
    object(0).condobjname = "opcity2";
    selectAll();
    copyObjects();
    pasteObjects();
    ASSERT_EQ(objectCount(page()), 4);
    EXPECT_EQ(object(2).ctlname, "city2");
    EXPECT_EQ(object(3).ctlname, "opcity3");
    EXPECT_EQ(object(2).condobjname, "opcity3");
    EXPECT_EQ(object(2).tbindex, 6);
    EXPECT_EQ(object(3).tbindex, 7);
    EXPECT_EQ(object(2).pleft, 600);
    pasteObjects();
    EXPECT_EQ(object(4).pleft, 610); // cut to the page
    EXPECT_EQ(object(4).ptop, 20);
    pasteObjects(Point{5, 470});
    EXPECT_EQ(object(6).pleft, 5);
    EXPECT_EQ(object(6).ptop, 460);
    duplicateObjects();
    EXPECT_EQ(object(8).pleft, 15);
    EXPECT_EQ(acts, (std::vector<std::string>{"Paste 2 objects", "Paste 2 objects", "Paste 2 objects",
                                              "Duplicate 2 objects"}));
}

TEST_F(ShellClipboard, TickersBeyondThreeAreToldOnce)
{
    ScriptedAsking asking;
    editing().msgflag = true;
    for (int i = 0; i < 3; ++i)
        addObject(Kind::Ticker);
    addObject(Kind::Label);
    selectAll();
    copyObjects();
    asking.expectMessage("Only 3 ticker controls allowed per page.", "Ticker Maximum Reached", Icon::Information);
    pasteObjects();
    EXPECT_EQ(objectCount(page()), 5);
    EXPECT_EQ(acts.back(), "Paste Label");
}

TEST_F(ShellClipboard, DamagedContentChangesNothing)
{
    addAt(Kind::Grid, 10, 10, 50, 50);
    addAt(Kind::ListBox, 10, 10, 50, 50);
    selectAll();
    copyObjects();
    const std::string clip = content.objects, text = content.text, before = serialisePage(page());
    std::vector<ClipboardContent> damaged = {{"x", ""},
                                             {clip + '\0', ""},
                                             {std::string(clipLimit + 1, 'x'), ""},
                                             {"", "plain text"},
                                             {"", "{}"},
                                             {"", text.substr(1)},
                                             {"", "{\"objects\": [[]]}"}};
    for (std::size_t length = 0; length < clip.size(); ++length)
        damaged.push_back({clip.substr(0, length), ""});
    for (const ClipboardContent &one : damaged) {
        content = one;
        pasteObjects();
        const auto whole = pageOfClip(one.objects); // a cut between two objects is a smaller clip
        EXPECT_EQ(serialisePage(page()) == before, !whole) << one.objects.size() << one.text;
        while (objectCount(page()) > 2)
            deleteObject(2);
    }
}

} // namespace corvanta
