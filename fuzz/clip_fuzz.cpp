#include "document/clip.h"
#include "document/page_file.h"
#include "fuzz/support.h"
#include "json/page.h"

using namespace corvanta;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view bytes = bytesOf(data, size);
    Page p;
    const std::vector<std::int16_t> added = appendClip(p, bytes);
    require(added.empty() || pageOfClip(bytes), "only a clip adds objects");
    if (added.empty())
        require(objectCount(p) == 0, "what is no clip adds nothing");
    else
        require(static_cast<bool>(pageOfClip(clipOf(p, added))), "what was pasted can be copied");
    return 0;
}
