#pragma once

#include "platform/font.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

// Every question to the user goes through one struct of functions. The desktop fills it at start;
// tests put a queue of expected questions in its place. All texts are bytes of the code page.
namespace corvanta {

enum class Icon { None, Exclamation, Information, Question };
enum class Buttons { Ok, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

struct MessageBox {
    std::string text;
    std::string title;
    Icon icon = Icon::Exclamation;
    Buttons buttons = Buttons::Ok;
};

struct FileDialog {
    enum class Kind { Open, Save };
    Kind kind = Kind::Open;
    bool mustExist = false;       // file and path must exist
    bool overwritePrompt = false; // ask before an existing file is chosen
    std::string defaultExtension; // added to a name without one, e.g. "ODS"
    std::string filter;           // "Caption (*.ods)|*.ods|All Files (*.*)|*.*"; the first is selected
    std::string initialDirectory; // drive path
    std::string fileName;         // initial file name
};

using FontChoice = FontBlock;

struct Asking {
    std::function<Answer(const MessageBox &)> messageBox;
    // The chosen drive path; none on cancel. The chosen file's directory has become current.
    std::function<std::optional<std::string>(const FileDialog &)> fileDialog;
    std::function<std::optional<FontChoice>(const FontChoice &)> fontDialog;
    std::function<std::optional<std::int32_t>(std::int32_t)> colourDialog; // 0x00BBGGRR
    // A one-line text: prompt, window caption and initial text, tab-separated. Empty on cancel.
    std::function<std::string(const std::string &parameter)> askText;
};

// The process-wide questions. Without a desktop (the tools) they are empty: nobody is asked, a message
// box answers Cancel or Ok, a dialog is cancelled.
Asking &asking();

Answer showMessage(const MessageBox &box);
void showExclamation(std::string_view text, std::string_view title);

// A one-line input dialog; parameter holds prompt, window caption and initial text, tab-separated. The
// typed text after OK, empty after Cancel.
std::string askText(const std::string &parameter);

} // namespace corvanta
