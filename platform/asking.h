#pragma once

#include "platform/font.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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
    std::string detail = {};  // said below the text in smaller letters; may be empty
    std::string further = {}; // shown on demand, to scroll and copy
    std::vector<std::string> captions =
        {}; // buttons of its own in place of Buttons, with access keys; the last cancels
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
    bool entersDirectory = true;  // the chosen file's directory becomes current
};

using FontChoice = FontBlock;

struct Asking {
    std::function<Answer(const MessageBox &)> messageBox;
    std::function<std::size_t(const MessageBox &)> choice; // index of the pressed one of the box's captions
    // The chosen drive path; none on cancel.
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
// A question with captions of its own: the index of the pressed one. The last for Esc and without a desktop.
std::size_t askChoice(const MessageBox &box);

// While it lives, messages that only have an OK are told once for each title; what comes after is told in one further
// message at the end, with all texts as its details. The outermost one counts.
class CollectedMessages {
public:
    CollectedMessages();
    ~CollectedMessages();
    CollectedMessages(const CollectedMessages &) = delete;
    CollectedMessages &operator=(const CollectedMessages &) = delete;
};

void showExclamation(std::string_view text, std::string_view title);

// A one-line input dialog; parameter holds prompt, window caption and initial text, tab-separated. The
// typed text after OK, empty after Cancel.
std::string askText(const std::string &parameter);

} // namespace corvanta
