#pragma once

#include "preview/host_parts.h"
#include "preview/request.h"
#include "preview/strip.h"

#include <string>

// A page as the visitor sees it: its template with a record and hits, and the strip.
namespace corvanta {

// A page that shows the records of its own SELECT statement and was asked for without a result: the address with the
// result, below the token. Empty for other pages and when the statement failed.
std::string ownRecords(HostParts &parts, const LoadedPage &loaded, const PreviewRequest &request);

// The page with the record or the hits that the request names. Notes the folders of its pictures.
std::string shownPage(HostParts &parts, const LoadedPage &loaded, const PreviewRequest &request);

// What the strip of a page says that is the same for every page.
Strip stripOf(const HostParts &parts, const std::string &page, const PreviewRequest &request);

} // namespace corvanta
