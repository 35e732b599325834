#pragma once

#include "platform/asking.h"
#include "tests/support/stepped_clock.h"
#include "tests/support/temporary_drive.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace corvanta {

// Stands in for the user: answers the expected questions in their order and records every question.
// An unexpected question fails the test and is cancelled, and so does a question that was never asked.
// The questions of before come back at the end.
class ScriptedAsking {
public:
    ScriptedAsking();
    ~ScriptedAsking();
    ScriptedAsking(const ScriptedAsking &) = delete;
    ScriptedAsking &operator=(const ScriptedAsking &) = delete;

    void expectMessage(const std::string &text, const std::string &title, Icon icon = Icon::Exclamation,
                       Buttons buttons = Buttons::Ok, Answer answer = Answer::Ok);
    // The chosen drive path, whose directory becomes current; none cancels.
    // A question with captions of its own, joined with "|", answered with the caption of this index.
    void expectChoice(const std::string &text, const std::string &title, const std::string &captions,
                      std::size_t answer);
    void expectFileDialog(FileDialog::Kind kind, const std::optional<std::string> &answer);
    void expectFontDialog(const std::optional<FontChoice> &answer);
    void expectColourDialog(std::optional<std::int32_t> answer);
    // The whole parameter: prompt, caption and initial text, tab-separated.
    void expectText(const std::string &parameter, const std::string &answer);

    std::vector<FileDialog> fileDialogs;
    std::vector<std::int32_t> colours;

private:
    struct Question {
        std::string description; // what is asked, compared with what was expected
        Answer message = Answer::Ok;
        std::size_t choice = 99; // beyond all: cancels
        std::optional<std::string> text = {};
        std::optional<FontChoice> font = {};
        std::optional<std::int32_t> colour = {};
    };

    // The expected question of this description; an empty one, which cancels, when another was expected.
    Question next(const std::string &description);

    std::deque<Question> expected;
    Asking before;
};

} // namespace corvanta
