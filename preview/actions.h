#pragma once

#include "preview/host_parts.h"
#include "preview/request.h"

#include <optional>
#include <string>

// What happens when a form comes in: the action of the object that was used.
namespace corvanta {

// The page that was in use, and the row of a result that it showed.
struct UsedPage {
    const LoadedPage &loaded;
    const PreviewRequest &request;
    ResultPtr result; // none when the page showed no result
    long row = 0;     // of the result; of a hit list the first row that it showed
};

// The result that a request names; none without one or when it is no longer kept.
ResultPtr resultOf(const HostParts &parts, const PreviewRequest &request);

// A whole number from 0 on in a query; the fallback for anything else.
long numberOf(const PreviewRequest &request, const char *name, long fallback);

// Carries the action out and gives the address to go on with, below the token.
std::string useObject(HostParts &parts, const UsedPage &used);

} // namespace corvanta
