#include "document/recovery.h"
#include "fuzz/support.h"
#include <fstream>

using namespace corvanta;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::filesystem::path folder = scratchFolder() / "recovery";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "1.page", std::ios::binary) << bytesOf(data, size);
    for (const LostPage &lost : lostPages(folder)) {
        require(lost.bytes.size() <= size, "a lost page is what the file holds");
        recoverPage(lost);
    }
    std::filesystem::remove_all(folder);
    return 0;
}
