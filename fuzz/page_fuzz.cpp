#include "document/page_damage.h"
#include "document/page_file.h"
#include "fuzz/support.h"
#include "json/page.h"

using namespace corvanta;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view bytes = bytesOf(data, size);
    const std::string written = serialisePage(pageOf(bytes));
    const Page again = pageOf(written);
    require(serialisePage(again) == written, "what was written reads back");
    require(damageOf(bytes) || !damageOf(written), "a sound page stays sound");
    require(damageOf(bytes) || written.size() >= bytes.size(), "what loses bytes is told");
    if (size < 2000)
        require(fileFromJson(Json::parse(pageJson(again).dump())) == written, "JSON holds every byte");
    return 0;
}
