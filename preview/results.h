#pragma once

#include "preview/data_source.h"
#include "preview/template_fill.h"

#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

// The results of the queries that visitors walk through.
namespace corvanta {

struct ResultSet {
    unsigned number = 0;
    PageSource source;
    SqlStatement statement;
    SqlResult data;
    std::string ownPage;              // the page whose own statement this is; empty for a query
    std::string hitList, queryView;   // names of pages, bytes of the code page
    std::vector<TemplateValue> asked; // what the visitor asked for, by object name
};
using ResultPtr = std::shared_ptr<const ResultSet>;

// Keeps the last ones, by number. May be called from many threads.
class Results {
public:
    ResultPtr add(ResultSet result);               // gives it a number
    void refresh(unsigned number, SqlResult data); // after a change; nothing for one that is no longer kept
    ResultPtr find(unsigned number) const;         // none when it is no longer kept

private:
    mutable std::mutex mutex;
    std::deque<ResultPtr> results;
    unsigned count = 0;
};

} // namespace corvanta
