#pragma once

#include "database/statement.h"
#include "document/page.h"

#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

// The connections of a preview, one to read and one to write for each data source that a page names. May be called
// from many threads; the statements of one source run one after another.
namespace corvanta {

struct Credentials {
    std::string user, password; // bytes of the code page
};

// Asks for the credentials of a data source (its name in bytes of the code page); none when nobody answers.
using AskCredentials = std::function<std::optional<Credentials>(const std::string &source)>;

// What a page says about its data source.
struct PageSource {
    std::string source;
    Credentials credentials;
    bool operator==(const PageSource &other) const
    {
        return source == other.source && credentials.user == other.credentials.user &&
               credentials.password == other.credentials.password;
    }
};
PageSource sourceOf(const Page &p);

class DataSources {
public:
    explicit DataSources(AskCredentials asking) : ask(std::move(asking)) {}

    // Both connect when they are first called, and again when the connection has gone. A failure is told in the
    // result's error, without the password.
    SqlResult read(const PageSource &source, const SqlStatement &statement, const SqlLimits &limits = {});
    SqlResult change(const PageSource &source, const SqlStatement &statement, std::optional<long> mostRows);

private:
    struct Connected {
        std::mutex busy; // a source that is slow holds nobody else up
        PageSource source;
        Credentials used;
        bool declined = false; // nobody answered the question for credentials
        OdbcHandle reading{nullptr, nullptr}, writing{nullptr, nullptr};
    };

    SqlResult run(const PageSource &source, SqlUse use, const SqlStatement &statement,
                  const std::function<SqlResult(void *)> &work);
    std::shared_ptr<Connected> entryFor(const PageSource &source);
    OdbcHandle connect(Connected &entry, SqlUse use);

    AskCredentials ask;
    std::mutex asking;                        // one question at a time
    std::mutex mutex;                         // of what follows
    OdbcHandle environment{nullptr, nullptr}; // outlives the connections
    std::list<std::shared_ptr<Connected>> connections;
};

} // namespace corvanta
