#pragma once

#include "preview/data_source.h"
#include "preview/journal.h"
#include "preview/pages.h"
#include "preview/picture_sources.h"
#include "preview/results.h"

#include <mutex>
#include <string>
#include <vector>

// What the answers of one preview share.
namespace corvanta {

// The addresses of the pages that were shown, for "Close Page". May be called from many threads.
class Trail {
public:
    void visit(const std::string &address); // below the token
    // Takes the page that is left off (its address without a query) and gives the one before; empty without one.
    std::string leave(const std::string &page);

private:
    std::mutex mutex;
    std::vector<std::string> addresses;
};

struct HostParts {
    PageFolder pages;
    DataSources sources;
    bool write = false; // statements that change the database are carried out
    Journal journal;
    Results results;
    Trail trail;
    PictureFolders pictureFolders;
};

inline constexpr long rowsAStep = 100; // of a hit list

// The address of a page (name in bytes of the code page) below the token, showing a row of a result, or its rows from
// one on.
std::string pageLocation(const std::string &page);
std::string rowLocation(const std::string &page, unsigned result, long row);
std::string rowsLocation(const std::string &page, unsigned result, long from);

// Parameters for people to read, without what was typed into password fields.
std::vector<std::string> shownParameters(const SqlStatement &statement);

// Runs a SELECT and enters it in the journal; aside when the page asked for something else.
SqlResult readNoted(HostParts &parts, const PageSource &source, const SqlStatement &statement, bool aside = false);

// Runs a SELECT of a page and enters it in the journal. The result is none after a failure.
ResultPtr runQuery(HostParts &parts, ResultSet query, const SqlStatement &statement);

} // namespace corvanta
