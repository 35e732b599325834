#pragma once

#include "preview/host_parts.h"
#include "preview/request.h"

#include <string>

// A host for the pages of one directory: what it answers to requests that the server has let in. docs/preview.md tells
// what each action does. May be called from many threads.
namespace corvanta {

struct PreviewOptions {
    bool write = false; // carry out statements that change the database
    AskCredentials ask; // empty: nobody is asked
};

class PreviewHost {
public:
    PreviewHost(PageFolder pages, PreviewOptions options);

    PreviewAnswer answer(const PreviewRequest &request);

    // A text that changes when a page changes; the page's name in UTF-8.
    std::string stamp(const std::string &page) const;

private:
    PreviewAnswer answerPage(const std::string &name, const PreviewRequest &request);

    HostParts parts;
};

} // namespace corvanta
