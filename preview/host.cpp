#include "preview/host.h"

#include "actions/action_kinds.h"
#include "converter/address.h"
#include "converter/ods2hts.h"
#include "platform/codepage.h"
#include "preview/strip.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr int soundHeight = 60; // pixels of the player below a page

PreviewAnswer notFound(const std::string &what) { return {404, "text/plain; charset=utf-8", what + "\n", {}}; }

int heightOf(const Page &p) { return std::max<int>(p.bkght, 0) + (p.sndfn.empty() ? 0 : soundHeight); }

} // namespace

PreviewHost::PreviewHost(PageFolder folder) : pages(std::move(folder))
{
    BuildActionKinds(); // before the threads start
}

std::string PreviewHost::addressOf(const std::string &page) { return pageAddress(page); }

std::string PreviewHost::stamp(const std::string &page) const
{
    const std::optional<std::string> name = fromUtf8(page);
    return name ? pageStamp(pages, *name) : std::string();
}

PreviewAnswer PreviewHost::answer(const PreviewRequest &request)
{
    if (request.path.empty())
        return {303, "text/plain", "", startAddress()};
    if (request.path == ".preview.js")
        return {200, "text/javascript; charset=utf-8", stripScript, {}};
    if (request.path == ".preview.css")
        return {200, "text/css; charset=utf-8", stripStyle, {}};
    if (const std::optional<std::string> name = pageOfAddress(pages, request.path))
        return showPage(*name, request);
    if (std::optional<MediaFile> media = mediaFile(pages, request.path))
        return {200, media->type, std::move(media->bytes), {}};
    return notFound("There is no such file among the pages, pictures and sounds of the directory.");
}

PreviewAnswer PreviewHost::showPage(const std::string &name, const PreviewRequest &)
{
    Strip strip;
    strip.page = toUtf8(name);
    strip.stamp = pageStamp(pages, name);
    strip.entries = journal.newestFirst();
    const LoadedPage loaded = loadPage(pages, name);
    if (!loaded.failure.empty()) {
        const std::string page = ownPage(loaded.missing ? "Page not found" : "Page not readable",
                                         strip.page + ".ods: " + loaded.failure + ".", {"Start page", startAddress()});
        return {loaded.missing ? 404 : 500, "text/html; charset=utf-8", withStrip(page, strip), {}};
    }
    strip.pageHeight = heightOf(loaded.page);
    return {200, "text/html; charset=utf-8", withStrip(htmlTemplate(loaded.page), strip), {}};
}

} // namespace corvanta
