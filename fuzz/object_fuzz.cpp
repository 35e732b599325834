#include "document/object_file.h"
#include "document/page_file.h"
#include "fuzz/support.h"

using namespace corvanta;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view bytes = bytesOf(data, size);
    objectFileFault(bytes);
    Page p;
    const std::int16_t index = appendObjectFile(p, bytes);
    if (index == noObject || !kindOf(p.objects[static_cast<std::size_t>(index)].kind))
        return 0;
    const std::string written = objectFileText(p, index);
    require(objectFileFault(written).empty(), "a written object file has no fault");
    Page again;
    require(appendObjectFile(again, written) == 0, "a written object file holds its object");
    require(objectFileText(again, 0) == written, "a written object file reads back");
    require(serialiseObject(p, index) == serialiseObject(again, 0), "a page holds the same object");
    return 0;
}
