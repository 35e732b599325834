#pragma once

#include <string>
#include <string_view>

// The exchange with the one-line input dialog.
namespace corvanta {

// Prompt, caption and initial text, tab-separated (the text may hold tabs itself), while the dialog opens; its result
// when it has closed.
std::string &inputparam();

struct InputTexts {
    std::string prompt, caption, text;
};

InputTexts inputTexts(std::string_view parameter);

// Whether the dialog's OK takes a text.
bool inputAccepted(std::string_view text);

} // namespace corvanta
