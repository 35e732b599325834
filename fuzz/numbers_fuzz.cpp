#include "document/encoding.h"
#include "document/parse.h"
#include "fuzz/support.h"

using namespace corvanta;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view text = bytesOf(data, size);
    const std::int16_t number = ParseInt16Clamped(text);
    require(number > -32768 && ParseInt16Clamped(std::to_string(number)) == number, "a number reads back");
    const std::int32_t wide = ParseInt32Clamped(text);
    require(wide > INT32_MIN && ParseInt32Clamped(std::to_string(wide)) == wide, "a wide number reads back");
    const std::int32_t colour = colourShown(text);
    require(colourShown(colourText(colour)) == colour, "a colour reads back");
    ParseColourText(text);
    std::string_view left = text;
    while (!left.empty()) {
        const std::size_t before = left.size();
        decodeString(left);
        require(left.size() < before, "reading comes to an end");
    }
    return 0;
}
