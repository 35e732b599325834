#include "fuzz/support.h"
#include "platform/picture_header.h"

using namespace corvanta;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view content = bytesOf(data, size);
    int reads = 0;
    const auto header = pictureHeader([&](std::uint64_t offset, std::size_t length) {
        require(++reads < 5000 && length <= 64, "a header is looked at in few small pieces");
        return sourceOf(content)(offset, length);
    });
    if (!header)
        return 0;
    require(header->width >= 1 && header->width <= 65535 && header->height >= 1 && header->height <= 65535,
            "a picture has pixels");
    require(header->decodedBytes >= 1 && header->decodedBytes <= mostDecodedBytes, "a picture is not too large");
    const std::string longer = std::string(content) + std::string(8, '\xFF');
    const auto again = pictureHeader(sourceOf(longer));
    require(again && again->width == header->width && again->height == header->height &&
                again->format == header->format,
            "what follows a picture does not change it");
    return 0;
}
