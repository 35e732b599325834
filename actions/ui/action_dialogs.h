#pragma once

#include <span>

// The dialogs of the action kinds. Each takes its action from the dialog exchange text and leaves its result there.
namespace corvanta {

void showGopact();
void showSelpact();
void showSqlpact();
void showDwnlpact();
void showListpact();

// Dialogs with a line for each text parameter.
struct TextField {
    const char *name, *label;
};
struct TextDialog {
    const char *name;
    std::span<const TextField> fields;
    bool required = false; // a blank first field disables OK
    const char *caption = "Action Properties";
    const char *cancelName = "cancel";
};
extern const TextDialog appact, pguact, urlact, nclact, msgPact;
void showTextDialog(const TextDialog &row);

// Dialogs with option buttons for a number parameter.
struct OptionDialog {
    const char *name, *caption;
    const char *options[3];
    int values[3]; // of the options; the first stands for all other values too
};
extern const OptionDialog dwnact, hlpact;
void showOptionDialog(const OptionDialog &row);

} // namespace corvanta
