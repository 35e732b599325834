#include "preview/host.h"

#include "actions/action_kinds.h"
#include "platform/codepage.h"
#include "preview/actions.h"
#include "preview/shown_page.h"

namespace corvanta {

namespace {

constexpr const char *html = "text/html; charset=utf-8";

// "3-5"; nothing else goes into an address.
bool isRange(const std::string &text)
{
    return !text.empty() && text.size() < 24 && text.find_first_not_of("0123456789-") == std::string::npos;
}

PreviewAnswer redirection(const std::string &location) { return {303, "text/plain", {}, location}; }

} // namespace

PreviewHost::PreviewHost(PageFolder folder, PreviewOptions options)
    : parts{std::move(folder), DataSources(std::move(options.ask)), options.write, {}, {}, {}, {}}
{
    BuildActionKinds(); // before the threads start
}

std::string PreviewHost::stamp(const std::string &page) const
{
    const std::optional<std::string> name = fromUtf8(page);
    return name ? pageStamp(parts.pages, *name) : std::string();
}

PreviewAnswer PreviewHost::answer(const PreviewRequest &request)
{
    if (request.path.empty())
        return redirection(pageLocation(parts.pages.start));
    const std::pair<const char *, PreviewAnswer> own[] = {
        {".preview.js", {200, "text/javascript; charset=utf-8", stripScript, {}}},
        {".preview.css", {200, "text/css; charset=utf-8", stripStyle, {}}},
        {".preview.svg", {200, "image/svg+xml", stripIcon, {}}},
    };
    for (const auto &[path, answer] : own)
        if (request.path == path)
            return answer;
    if (request.path == ".end") {
        const std::string page = ownPage("The application has ended", "The host would end the call here.",
                                         {"Start again", pageLocation(parts.pages.start)});
        return {200, html, withStrip(page, stripOf(parts, parts.pages.start, request)), {}};
    }
    if (const std::optional<std::string> name = pageOfAddress(parts.pages, request.path))
        return answerPage(*name, request);
    const std::size_t slash = request.path.rfind('/');
    const bool named =
        slash == std::string::npos || parts.pictureFolders.holds(fromUtf8Lossy(request.path.substr(0, slash)));
    if (std::optional<MediaFile> media = mediaFile(parts.pages, request.path); named && media && !request.post)
        return {200, media->type, std::move(media->bytes), {}};
    return {404, "text/plain; charset=utf-8", "There is no such page, picture or sound in the directory.\n", {}};
}

PreviewAnswer PreviewHost::answerPage(const std::string &name, const PreviewRequest &request)
{
    const LoadedPage loaded = loadPage(parts.pages, name);
    if (!loaded.failure.empty()) {
        const std::string page =
            ownPage(loaded.missing ? "Page not found" : "Page not readable",
                    toUtf8(name) + ".ods: " + loaded.failure + ".", {"Start page", pageLocation(parts.pages.start)});
        return {loaded.missing ? 404 : 500, html, withStrip(page, stripOf(parts, name, request)), {}};
    }
    if (request.post) {
        const bool record = !valueOf(request.query, "row").empty();
        return redirection(useObject(
            parts, {loaded, request, resultOf(parts, request), numberOf(request, record ? "row" : "from", 0)}));
    }
    if (const std::string records = ownRecords(parts, loaded, request); !records.empty()) {
        const std::string said = valueOf(request.query, "said");
        return redirection(isRange(said) ? records + "&said=" + said : records);
    }
    const bool single = !valueOf(request.query, "row").empty();
    std::string address = pageLocation(name);
    if (const ResultPtr result = resultOf(parts, request))
        address = single ? rowLocation(name, result->number, numberOf(request, "row", 0))
                         : rowsLocation(name, result->number, numberOf(request, "from", 0));
    parts.trail.visit(address);
    return {200, html, shownPage(parts, loaded, request), {}, pictureHosts(loaded.page)};
}

} // namespace corvanta
