#include "platform/picture_header.h"

#include <algorithm>
#include <string_view>

namespace corvanta {

namespace {

constexpr std::size_t enough = 64; // bytes, for every header but that of a JPEG file
constexpr std::uint64_t mostPixelsOfSide = 65535;
constexpr int mostSegments = 4096; // of a JPEG file before its size
constexpr std::uint64_t fullColour = 32;

using Header = std::optional<PictureHeader>;

Header header(PictureFormat format, std::uint64_t width, std::uint64_t height, std::uint64_t bitsOfPixel)
{
    if (width < 1 || height < 1 || width > mostPixelsOfSide || height > mostPixelsOfSide)
        return std::nullopt;
    const std::uint64_t bytes = (width * bitsOfPixel + 7) / 8 * height;
    if (bytes > mostDecodedBytes)
        return std::nullopt;
    return PictureHeader{format, static_cast<int>(width), static_cast<int>(height), bytes};
}

// Rows from the top have a negative height.
std::uint64_t rowsOf(std::uint32_t height) { return height >> 31 ? ~height + std::uint64_t{1} : height; }

Header bitmapHeader(std::string_view bytes)
{
    constexpr std::size_t start = 14, oldLength = 12, usualLength = 40;
    const std::uint32_t length = littleEndian(bytes, start, 4);
    const bool old = length == oldLength;
    if ((!old && length < usualLength) || bytes.size() < start + (old ? oldLength : usualLength))
        return std::nullopt;
    const std::uint32_t bits = littleEndian(bytes, old ? 24 : 28, 2);
    if (bits != 1 && bits != 4 && bits != 8 && bits != 16 && bits != 24 && bits != 32)
        return std::nullopt;
    const std::uint64_t held = bits == 1 ? 1 : bits <= 8 ? 8 : fullColour;
    if (old)
        return header(PictureFormat::Bmp, littleEndian(bytes, 18, 2), littleEndian(bytes, 20, 2), held);
    return header(PictureFormat::Bmp, littleEndian(bytes, 18, 4), rowsOf(littleEndian(bytes, 22, 4)), held);
}

Header gifHeader(std::string_view bytes)
{
    return header(PictureFormat::Gif, littleEndian(bytes, 6, 2), littleEndian(bytes, 8, 2), fullColour);
}

constexpr std::string_view pngStart("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16);

Header pngHeader(std::string_view bytes)
{
    constexpr std::size_t length = 26;
    if (bytes.size() < length)
        return std::nullopt;
    const std::uint32_t depth = bigEndian(bytes, 24, 1), colours = bigEndian(bytes, 25, 1);
    const bool oneChannel = colours == 0 || colours == 3; // grey, or by a palette
    const std::uint64_t deep = depth == 16 ? 2 : 1;
    return header(PictureFormat::Png, bigEndian(bytes, 16, 4), bigEndian(bytes, 20, 4),
                  (oneChannel ? (depth == 1 ? 1 : 8) : fullColour) * deep);
}

// The first picture of an icon, which may be a PNG file. A side of 0 in the directory stands for 256 or more.
Header iconHeader(std::string_view bytes, const ByteSource &source)
{
    constexpr std::size_t directory = 22; // with its first entry
    const std::uint32_t type = littleEndian(bytes, 2, 2);
    if (bytes.size() < directory || (type != 1 && type != 2) || littleEndian(bytes, 4, 2) == 0)
        return std::nullopt;
    const std::string picture = source(littleEndian(bytes, 18, 4), enough);
    if (std::string_view(picture).starts_with(pngStart)) {
        Header png = pngHeader(picture);
        if (png)
            png->format = PictureFormat::Ico;
        return png;
    }
    if (littleEndian(picture, 0, 4) < 40)
        return std::nullopt;
    const std::uint32_t width = littleEndian(bytes, 6, 1), height = littleEndian(bytes, 7, 1);
    return header(PictureFormat::Ico, width ? width : littleEndian(picture, 4, 4),
                  height ? height : littleEndian(picture, 8, 4) / 2, fullColour);
}

bool isSize(std::uint32_t marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Markers that have no length and no content, and bytes that fill up the space before one.
bool standsAlone(std::uint32_t marker) { return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7); }

// Goes from segment to segment up to the one that tells the size; what lies in between may be long.
Header jpegHeader(const ByteSource &source)
{
    std::uint64_t at = 2;
    for (int i = 0; i < mostSegments; ++i) {
        constexpr std::size_t looked = 10;
        const std::string segment = source(at, looked);
        const std::uint32_t marker = bigEndian(segment, 1, 1), length = bigEndian(segment, 2, 2);
        if (bigEndian(segment, 0, 1) != 0xFF || marker == 0xD9 || marker == 0xDA)
            return std::nullopt;
        if (isSize(marker) && segment.size() < looked)
            return std::nullopt;
        if (isSize(marker))
            return header(PictureFormat::Jpeg, bigEndian(segment, 7, 2), bigEndian(segment, 5, 2),
                          bigEndian(segment, 9, 1) == 1 ? 8 : fullColour);
        if (marker == 0xFF)
            ++at;
        else if (standsAlone(marker))
            at += 2;
        else if (length < 2)
            return std::nullopt;
        else
            at += 2 + length;
    }
    return std::nullopt;
}

} // namespace

std::optional<PictureHeader> pictureHeader(const ByteSource &source)
{
    const std::string start = source(0, enough);
    const std::string_view bytes = start;
    if (bytes.starts_with("BM"))
        return bitmapHeader(bytes);
    if (bytes.starts_with("GIF87a") || bytes.starts_with("GIF89a"))
        return gifHeader(bytes);
    if (bytes.starts_with(pngStart))
        return pngHeader(bytes);
    if (bytes.starts_with("\xFF\xD8\xFF"))
        return jpegHeader(source);
    if (littleEndian(bytes, 0, 2) == 0)
        return iconHeader(bytes, source);
    return std::nullopt;
}

} // namespace corvanta
