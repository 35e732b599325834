#include "actions/action.h"
#include "actions/action_choice.h"
#include "actions/action_kinds.h"

#include <gtest/gtest.h>

namespace corvanta {

namespace {

using namespace std::string_literals;

class ActionChoice : public testing::Test {
protected:
    void SetUp() override { BuildActionKinds(); }
};

TEST_F(ActionChoice, ListsTheOfferedKindsInCodeOrder)
{
    std::vector<std::string> captions;
    for (const std::int16_t code : offeredActions())
        captions.push_back(actionKind(code).caption);
    const std::vector<std::string> expected = {"(none)",
                                               "Go to Page",
                                               "Execute C/S App",
                                               "Get next record",
                                               "Get previous record",
                                               "Update current record",
                                               "Delete current record",
                                               "Insert a new record",
                                               "Submit a SELECT query",
                                               "View current result-set row",
                                               "Execute a SQL statement",
                                               "Download file",
                                               "Upload file",
                                               "List of Actions",
                                               "Exit Application",
                                               "Reset Form",
                                               "Close Page",
                                               "Message Box"};
    EXPECT_EQ(captions, expected);
    EXPECT_EQ(actionKinds().size(), 525U) << "one empty entry after the highest code";
}

TEST_F(ActionChoice, TemplatesAndDialogs)
{
    EXPECT_EQ(actionKind(1).actionTemplate, "\x01\0\0\0"s);
    EXPECT_EQ(actionKind(13).actionTemplate, "\x0D\0\0\0\0\0"s);
    EXPECT_EQ(actionKind(507).actionTemplate, "\xFB\x01"s);
    EXPECT_EQ(actionKind(512).actionTemplate, "\0\x02"s);
    std::vector<std::int16_t> withDialog;
    for (std::int16_t code = -2; code < 600; ++code)
        if (hasActionDialog(code))
            withDialog.push_back(code);
    EXPECT_EQ(withDialog, (std::vector<std::int16_t>{1, 13, 507, 509, 510, 511, 512, 523}));
}

TEST_F(ActionChoice, CaptionsAreFoundWithoutRegardToCase)
{
    EXPECT_EQ(FindActionKind("(none)"), 0);
    EXPECT_EQ(FindActionKind("go TO page"), 1);
    EXPECT_EQ(FindActionKind("Message Box"), 523);
    EXPECT_EQ(FindActionKind("Message"), -1);
    EXPECT_EQ(FindActionKind(""), -1) << "an empty caption is no kind, although codes without one exist";
}

TEST_F(ActionChoice, ChoosingGivesTemplateOrTheStoredActionBack)
{
    const std::string stored = encodeAction({1, {"MAIN"}});
    const std::string message = chosenAction("Message Box", stored, stored);
    EXPECT_EQ(message, "\x0B\x02"s);
    EXPECT_EQ(chosenAction("Go to Page", message, stored), stored);
    const std::string edited = encodeAction({1, {"OTHER"}});
    EXPECT_EQ(chosenAction("Go to Page", edited, stored), edited) << "the own kind changes nothing";
    EXPECT_EQ(chosenAction("no such kind", edited, stored), edited);
    EXPECT_EQ(chosenAction("(none)", "\x04\0\x01\0u"s, "\x04\0\x01\0u"s), "\0\0"s);
    EXPECT_EQ(chosenAction("(none)", message, ""), "") << "an object without an action holds an empty text";
}

TEST_F(ActionChoice, CaptionsOfOfferedKindsOnly)
{
    EXPECT_EQ(actionCaption("\x08\x02"), "Exit Application");
    EXPECT_EQ(actionCaption("\x04\0"s), "");
}

} // namespace

} // namespace corvanta
