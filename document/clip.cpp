#include "document/clip.h"

#include "document/encoding.h"
#include "document/object_file.h"
#include "document/page_file.h"

#include <algorithm>

namespace corvanta {

std::string clipOf(const Page &p, const std::vector<std::int16_t> &indices)
{
    std::string clip = serialisePage(Page());
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        if (std::ranges::find(indices, i) != indices.end())
            clip += serialiseObject(p, i);
    return clip;
}

std::optional<Page> pageOfClip(std::string_view clip)
{
    if (clip.size() > clipLimit)
        return {};
    Page p;
    parsePage(p, clip);
    if (objectCount(p) == 0 || serialisePage(p) != clip)
        return {};
    return p;
}

std::vector<std::int16_t> appendClip(Page &p, std::string_view clip)
{
    std::vector<std::int16_t> appended;
    if (!pageOfClip(clip))
        return appended;
    decodeString(clip); // the page-wide values
    bool tickersFull = false;
    while (!clip.empty()) {
        const std::string body = decodeString(clip);
        std::string_view front = body;
        const bool ticker = kindOf(decodeInt16(front)) == Kind::Ticker;
        if (ticker && tickersFull)
            continue;
        const std::int16_t index = appendObjectFile(p, encodeInt16(currentVersion) + encodeString(body));
        if (index != noObject)
            appended.push_back(index);
        tickersFull = tickersFull || (ticker && index == noObject);
    }
    return appended;
}

std::string objectsName(const Page &p, const std::vector<std::int16_t> &indices)
{
    if (indices.size() == 1)
        return objectName(p.objects[static_cast<std::size_t>(indices.front())].kind);
    return std::to_string(indices.size()) + " objects";
}

} // namespace corvanta
