#pragma once

#include "preview/journal.h"
#include "preview/pages.h"
#include "preview/request.h"

#include <string>

// A host for the pages of one directory: what it answers to requests that the server has let in. docs/preview.md tells
// what each action does. May be called from many threads.
namespace corvanta {

class PreviewHost {
public:
    explicit PreviewHost(PageFolder pages);

    PreviewAnswer answer(const PreviewRequest &request);

    // A text that changes when a page changes; the page's name in UTF-8.
    std::string stamp(const std::string &page) const;

    // The address of a page (name in bytes of the code page) below the token.
    static std::string addressOf(const std::string &page);
    std::string startAddress() const { return addressOf(pages.start); }

private:
    PreviewAnswer showPage(const std::string &name, const PreviewRequest &request);

    PageFolder pages;
    Journal journal;
};

} // namespace corvanta
