#pragma once

#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

// What happened in a preview, for the strip below its pages. Texts are UTF-8.
namespace corvanta {

struct JournalEntry {
    enum class Kind {
        Statement, // one that ran
        Shown,     // one that would have run
        Note,      // what the host would be told or do
        Message,   // a message box
        Failure
    };
    Kind kind = Kind::Note;
    bool aside = false; // the preview's own statement, for one of the page's
    std::string title;  // of a message
    std::string text;   // statement, note or message
    std::vector<std::string> parameters;
    std::optional<long> rows;
    double milliseconds = -1; // of a statement that ran
    std::string error;        // of the driver
    unsigned long number = 0; // given by the journal, from 1
};

// Keeps the last entries. May be called from many threads.
class Journal {
public:
    unsigned long add(JournalEntry entry); // gives its number
    unsigned long last() const;            // number of the newest entry, 0 without any
    std::vector<JournalEntry> newestFirst() const;

private:
    mutable std::mutex mutex;
    std::deque<JournalEntry> entries;
    unsigned long count = 0;
};

} // namespace corvanta
