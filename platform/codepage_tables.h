#pragma once

#include <span>

// The upper halves of the Windows code pages. Bytes 0x80 to 0x9F that a page leaves undefined stand for
// U+0080 to U+009F; undefined bytes above have the private-use character that Windows gives them.
namespace corvanta {

struct CodePageTable {
    int number;
    char16_t upperHalf[128]; // the characters of the bytes 0x80 to 0xFF, all different
};

// The known code pages; the first one is the default.
std::span<const CodePageTable> codePageTables();

} // namespace corvanta
