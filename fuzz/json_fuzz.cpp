#include "document/page_file.h"
#include "fuzz/support.h"
#include "json/page.h"

using namespace corvanta;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    std::string written;
    try {
        written = fileFromJson(Json::parse(bytesOf(data, size)));
    } catch (const std::exception &) {
        return 0; // told by the tools
    }
    if (!isPageFile(written))
        return 0;
    const Page p = pageOf(written);
    require(fileFromJson(pageJson(p)) == written, "what was built is dumped and built again");
    return 0;
}
