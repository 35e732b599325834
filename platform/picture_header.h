#pragma once

#include "platform/media_source.h"

#include <cstdint>
#include <optional>

namespace corvanta {

enum class PictureFormat { Bmp, Gif, Ico, Jpeg, Png };

// The most that the pixels of one picture may take; what is larger is not decoded.
inline constexpr std::uint64_t mostDecodedBytes = std::uint64_t{128} * 1024 * 1024;

// What the first bytes of a picture tell of it.
struct PictureHeader {
    PictureFormat format = PictureFormat::Bmp;
    int width = 0, height = 0;      // pixels, 1 to 65535
    std::uint64_t decodedBytes = 0; // of its pixels, 1 to mostDecodedBytes
};

// Of a BMP, GIF, ICO, CUR, JPEG or PNG file, told by its content. None for anything else, a header that is cut or
// describes no pixels, and a picture that is too large. Reads a few bytes, wherever they stand.
std::optional<PictureHeader> pictureHeader(const ByteSource &source);

} // namespace corvanta
