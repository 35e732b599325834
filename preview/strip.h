#pragma once

#include "preview/journal.h"

#include <string>
#include <vector>

// What the preview adds to a page: a strip at the window's lower edge with the statements that ran, its script, which
// reloads the page when it changes, and the messages of message boxes. Texts are UTF-8.
namespace corvanta {

struct StripLink {
    std::string caption, address; // the address relative to the page
};

struct Strip {
    std::string page;                       // the page's name
    std::string stamp;                      // of the page as it is shown
    int pageHeight = 0;                     // pixels of the page, with what stands below it
    std::string state;                      // one line, such as "Rows 1 to 14 of 14"
    std::vector<StripLink> links;           // behind it
    std::vector<JournalEntry> entries;      // newest first
    unsigned long saidFrom = 0, saidTo = 0; // entries that the last action made; 0 for none
};

// The document with the strip.
std::string withStrip(std::string html, const Strip &strip);

// A document of the preview's own: a heading and a sentence, plain text.
std::string ownPage(const std::string &heading, const std::string &text, const StripLink &link);

extern const char *const stripScript, *const stripStyle, *const stripIcon; // by the names .preview.js, .css, .svg

} // namespace corvanta
