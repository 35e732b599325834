#pragma once

#include <compare>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

// Pictures and sounds, looked at piece by piece before anything takes them as a whole.
namespace corvanta {

// Bytes by their place: those of [offset, offset + length) as far as the content reaches.
using ByteSource = std::function<std::string(std::uint64_t offset, std::size_t length)>;

// The content stands in memory and outlives the source.
ByteSource sourceOf(std::string_view content);

// A number of 1 to 4 bytes at a place of a text; 0 where the text ends before it does.
std::uint32_t littleEndian(std::string_view bytes, std::size_t at, std::size_t length);
std::uint32_t bigEndian(std::string_view bytes, std::size_t at, std::size_t length);

// What tells one content of a path from another.
struct FileVersion {
    std::uint64_t device = 0, inode = 0, size = 0; // size in bytes
    std::int64_t time = 0;                         // of the last change, nanoseconds

    auto operator<=>(const FileVersion &) const = default;
};

// A regular file that is open for reading; nothing for one that is missing, cannot be read, or is a pipe or a device.
// Opening never blocks on a pipe.
class OpenMedia {
public:
    explicit OpenMedia(std::string_view drivePath);

    explicit operator bool() const { return file != nullptr; }
    const FileVersion &version() const { return found; }
    int descriptor() const { return *file; }
    // May outlive this.
    ByteSource source() const;

private:
    std::shared_ptr<const int> file; // closed with its last owner
    FileVersion found;
};

} // namespace corvanta
