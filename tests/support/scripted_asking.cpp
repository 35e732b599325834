#include "tests/support/scripted_asking.h"

#include "platform/paths.h"
#include "platform/text.h"

#include <gtest/gtest.h>

#include <utility>

namespace corvanta {

namespace {

constexpr const char *const iconNames[] = {"no icon", "exclamation", "information", "question"};

std::string describe(const MessageBox &box)
{
    return "message \"" + box.text + "\" titled \"" + box.title + "\" with " + iconNames[static_cast<int>(box.icon)] +
           (box.buttons == Buttons::Ok ? ", Ok" : ", Yes No Cancel");
}

std::string describeChoice(const MessageBox &box)
{
    std::string captions;
    for (const std::string &caption : box.captions)
        captions += (captions.empty() ? "" : "|") + caption;
    return "choice \"" + box.text + "\" titled \"" + box.title + "\": " + captions;
}

std::string describe(FileDialog::Kind kind)
{
    return kind == FileDialog::Kind::Open ? "file dialog Open" : "file dialog Save";
}

} // namespace

ScriptedAsking::ScriptedAsking() : before(std::exchange(asking(), {}))
{
    asking().messageBox = [this](const MessageBox &box) { return next(describe(box)).message; };
    asking().choice = [this](const MessageBox &box) { return next(describeChoice(box)).choice; };
    asking().fileDialog = [this](const FileDialog &dialog) {
        fileDialogs.push_back(dialog);
        const auto answer = next(describe(dialog.kind)).text;
        if (answer && dialog.entersDirectory)
            changeDirectory(directoryPart(*answer));
        return answer;
    };
    asking().fontDialog = [this](const FontChoice &) { return next("font dialog").font; };
    asking().colourDialog = [this](std::int32_t colour) {
        colours.push_back(colour);
        return next("colour dialog").colour;
    };
    asking().askText = [this](const std::string &parameter) {
        return next("text \"" + parameter + "\"").text.value_or("");
    };
}

ScriptedAsking::~ScriptedAsking()
{
    for (const Question &question : expected)
        ADD_FAILURE() << "Never asked: " << question.description;
    asking() = before;
}

void ScriptedAsking::expectMessage(const std::string &text, const std::string &title, Icon icon, Buttons buttons,
                                   Answer answer)
{
    expected.push_back({.description = describe({text, title, icon, buttons}), .message = answer});
}

void ScriptedAsking::expectChoice(const std::string &text, const std::string &title, const std::string &captions,
                                  std::size_t answer)
{
    expected.push_back(
        {.description = "choice \"" + text + "\" titled \"" + title + "\": " + captions, .choice = answer});
}

void ScriptedAsking::expectFileDialog(FileDialog::Kind kind, const std::optional<std::string> &answer)
{
    expected.push_back({.description = describe(kind), .text = answer});
}

void ScriptedAsking::expectFontDialog(const std::optional<FontChoice> &answer)
{
    expected.push_back({.description = "font dialog", .font = answer});
}

void ScriptedAsking::expectColourDialog(std::optional<std::int32_t> answer)
{
    expected.push_back({.description = "colour dialog", .colour = answer});
}

void ScriptedAsking::expectText(const std::string &parameter, const std::string &answer)
{
    expected.push_back({.description = "text \"" + parameter + "\"", .text = answer});
}

ScriptedAsking::Question ScriptedAsking::next(const std::string &description)
{
    const Question cancelled{.description = description, .message = Answer::Cancel};
    if (expected.empty()) {
        ADD_FAILURE() << "Unexpected question: " << description;
        return cancelled;
    }
    const Question question = expected.front();
    expected.pop_front();
    EXPECT_EQ(description, question.description) << "another question was expected";
    return question.description == description ? question : cancelled;
}

} // namespace corvanta
