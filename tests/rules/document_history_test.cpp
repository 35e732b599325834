#include "canvas/gestures.h"
#include "canvas/selection.h"
#include "canvas/tab_order.h"
#include "document/history.h"
#include "objects/properties.h"
#include "objects/shared_properties.h"
#include "page/page_properties.h"
#include "platform/clipboard.h"
#include "shell/clipboard.h"
#include "shell/commands.h"
#include "tests/rules/canvas_page.h"
#include "tests/support/samples.h"
#include "tests/support/temporary_drive.h"

#include <random>

namespace corvanta {

namespace {

class DocumentHistory : public CanvasPage {
protected:
    DocumentHistory()
    {
        startHistory();
        clipboard() = {[this](const ClipboardContent &put) { content = put; }, [this] { return content; },
                       [] { return true; }};
        beginPage();
    }
    ~DocumentHistory() override
    {
        stopHistory();
        clipboard() = {};
    }

    static void beginPage()
    {
        newPage();
        page().bkgwd = 640;
        page().bkght = 480;
        resetHistory();
    }
    static void addOne(Kind kind)
    {
        addAt(kind, 10, 10, 60, 40);
        pageEdited("Add " + objectName(static_cast<std::int16_t>(kind)));
    }
    static void changeProperties(std::int16_t index, const std::string &text)
    {
        PropertyFields fields = LoadProperties(index);
        fields.sptext = fields.cap = text;
        ConfirmProperties(index, fields);
    }

    ClipboardContent content;

    static void shareProperties(const std::string &text)
    {
        const auto chosen = chosenObjects();
        SharedProperties shared = LoadSharedProperties(chosen);
        shared.values.sptext = text;
        if (!chosen.empty())
            ConfirmSharedProperties(chosen, shared.values, shared.common);
    }

    // One act of many kinds on a page that has objects or none.
    void act(std::mt19937 &random)
    {
        const auto any = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
        const std::int16_t count = objectCount(page());
        clearMultiSelection();
        setCurrentObject(count > 0 ? static_cast<std::int16_t>(any(count)) : noObject);
        for (int i = any(3); count > 1 && i > 0; --i)
            addToMultiSelection(static_cast<std::int16_t>(any(count)));
        noteSelection();
        switch (any(11)) {
        case 0:
        case 1: return addOne(static_cast<Kind>(1 + any(13)));
        case 2: return runCommand(Command::Delete);
        case 3: return runCommand(any(2) ? Command::AlignLeft : Command::BringToFront);
        case 4: return runCommand(any(2) ? Command::Duplicate : Command::DuplicateObjects);
        case 5:
            if (count > 0)
                drag(editing().curobj, {30, 30}, {30 + any(200), 30 + any(200)});
            return;
        case 6:
            if (count > 0)
                changeProperties(editing().curobj, std::string(static_cast<std::size_t>(any(9)), 'x'));
            return;
        case 7: return chosenObjects().empty() ? void() : any(2) ? cutObjects() : pasteObjects();
        case 8: return shareProperties(std::string(static_cast<std::size_t>(any(9)), 'y'));
        case 9:
            startTabOrder();
            for (int i = any(5); tabOrderActive() && i > 0; --i)
                numberObject(static_cast<std::int16_t>(any(count)));
            return endTabOrder();
        default:
            PagePropertyFields fields = LoadPageProperties(page());
            fields.pgcaption = std::to_string(any(1000));
            ConfirmPageProperties(fields, {1000, 1000});
        }
    }
};

} // namespace

TEST_F(DocumentHistory, ActsAreNamedAndComeBackWithTheirSelection)
{
    addOne(Kind::Label);
    addOne(Kind::Button);
    EXPECT_EQ(undoName(), "Add Button");
    addToMultiSelection(0);
    addToMultiSelection(1);
    setCurrentObject(1);
    noteSelection();
    const std::string before = serialisePage(page());
    runCommand(Command::Delete);
    EXPECT_EQ(undoName(), "Delete 2 objects");
    EXPECT_TRUE(undoEdit());
    EXPECT_EQ(serialisePage(page()), before);
    EXPECT_EQ(editing().curobj, 1);
    EXPECT_EQ(chosenObjects().size(), 2U);
    EXPECT_EQ(redoName(), "Delete 2 objects");
    EXPECT_TRUE(redoEdit());
    EXPECT_EQ(objectCount(page()), 0);
    EXPECT_FALSE(redoEdit());
    undoEdit();
    addOne(Kind::Url); // what was taken back is gone for good
    EXPECT_EQ(redoName(), "");
    newPage();
    EXPECT_EQ(undoName(), "");
}

TEST_F(DocumentHistory, AStateEqualToTheSavedOneIsNotDirty)
{
    TemporaryDrive drive;
    addOne(Kind::Label);
    editing().filetag = "C:\\A.ODS";
    ASSERT_TRUE(savePage());
    addOne(Kind::Label);
    EXPECT_TRUE(editing().pagedirty);
    undoEdit();
    EXPECT_FALSE(editing().pagedirty);
    undoEdit();
    EXPECT_TRUE(editing().pagedirty);
    redoEdit();
    EXPECT_FALSE(editing().pagedirty);
}

TEST_F(DocumentHistory, RandomActsAreUndoneToTheStartAndRedoneToTheEnd)
{
    std::mt19937 random(4711);
    std::vector<std::string> states{serialisePage(page())};
    for (int i = 0; i < 2000; ++i) {
        const int before = edits;
        act(random);
        if (edits > before && serialisePage(page()) != states.back()) // what changes nothing is no step
            states.push_back(serialisePage(page()));
        if (states.size() < historySteps)
            continue;
        std::size_t at = states.size() - 1;
        for (; undoEdit(); --at)
            ASSERT_EQ(serialisePage(page()), states[at - 1]);
        EXPECT_EQ(at, 0U);
        for (; redoEdit(); ++at)
            ASSERT_EQ(serialisePage(page()), states[at + 1]);
        EXPECT_EQ(at + 1, states.size());
        beginPage();
        states = {serialisePage(page())};
    }
}

TEST_F(DocumentHistory, IsBoundedByItsStepsAndItsBytes)
{
    parsePage(page(), samples::sample("largest.ods"));
    resetHistory();
    for (std::size_t i = 0; i < historySteps + 50; ++i) {
        object(0).ptop = static_cast<std::int16_t>(i);
        pageEdited("Move");
        pageEdited("Label properties"); // with OK, and nothing changed: no step, and what was taken back stays
    }
    std::size_t steps = 0;
    for (; undoEdit(); pageEdited("Label properties"))
        ++steps;
    EXPECT_EQ(redoName(), "Move");
    EXPECT_GE(steps, 200U);
    EXPECT_LE(steps, historySteps);
    EXPECT_LE(historyMemory(), historyBytes);
}

} // namespace corvanta
