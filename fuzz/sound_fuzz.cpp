#include "fuzz/support.h"
#include "platform/sound_header.h"

using namespace corvanta;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view content = bytesOf(data, size);
    int reads = 0;
    const auto format = soundFormat([&](std::uint64_t offset, std::size_t length) {
        require(++reads < 5000 && length <= 64, "a header is looked at in few small pieces");
        return sourceOf(content)(offset, length);
    });
    const auto length = longestSound(content);
    require(!length || format, "what has a length can be played");
    if (!length)
        return 0;
    require(length->rate >= lowestRate && length->rate <= highestRate, "a rate can be converted");
    constexpr std::uint64_t bytesOfSecond = 4 * 48000;
    require(!mayBeMixed(content, bytesOfSecond, 0) || length->frames * bytesOfSecond / length->rate <= mostSoundBytes,
            "what is mixed finds room");
    constexpr std::uint64_t mostOfByte = 8192; // frames
    require(length->frames <= (size + 1) * mostOfByte, "a length is in keeping with the file");
    const std::string half(content.substr(0, size / 2));
    const auto shorter = longestSound(half);
    require(!shorter || shorter->rate != length->rate || shorter->frames <= length->frames,
            "half a sound is not longer");
    return 0;
}
