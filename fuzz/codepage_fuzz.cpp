#include "fuzz/support.h"
#include "platform/codepage.h"

using namespace corvanta;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string bytes(bytesOf(data, size));
    for (const int number : {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258}) {
        const CodePageOfThread current(number);
        require(static_cast<bool>(current), "the code page is known");
        require(fromUtf8(toUtf8(bytes)) == bytes, "every byte comes back");
        const auto spelt = fromUtf8(bytes);
        const std::string lossy = fromUtf8Lossy(bytes);
        require(!spelt || *spelt == lossy, "what can be spelt is not lost");
        require(!spelt || toUtf8(*spelt) == bytes, "what was spelt comes back");
        require(utf8FromUtf16(utf16FromUtf8(toUtf8(bytes))) == toUtf8(bytes), "UTF-16 comes back");
    }
    utf16FromUtf8(bytes);
    return 0;
}
