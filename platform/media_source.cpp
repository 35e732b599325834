#include "platform/media_source.h"

#include "platform/paths.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvanta {

namespace {

std::uint32_t byteAt(std::string_view bytes, std::size_t at) { return static_cast<unsigned char>(bytes[at]); }

bool reaches(std::string_view bytes, std::size_t at, std::size_t length)
{
    return at <= bytes.size() && bytes.size() - at >= length;
}

std::string readAt(int file, std::uint64_t offset, std::size_t length)
{
    std::string bytes(length, '\0');
    std::size_t got = 0;
    while (got < length) {
        const ssize_t count = pread(file, bytes.data() + got, length - got, static_cast<off_t>(offset + got));
        if (count > 0)
            got += static_cast<std::size_t>(count);
        else if (count == 0 || errno != EINTR)
            break;
    }
    bytes.resize(got);
    return bytes;
}

} // namespace

ByteSource sourceOf(std::string_view content)
{
    return [content](std::uint64_t offset, std::size_t length) {
        return offset < content.size() ? std::string(content.substr(offset, length)) : std::string();
    };
}

std::uint32_t littleEndian(std::string_view bytes, std::size_t at, std::size_t length)
{
    std::uint32_t number = 0;
    for (std::size_t i = length; reaches(bytes, at, length) && i-- > 0;)
        number = number << 8 | byteAt(bytes, at + i);
    return number;
}

std::uint32_t bigEndian(std::string_view bytes, std::size_t at, std::size_t length)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; reaches(bytes, at, length) && i < length; ++i)
        number = number << 8 | byteAt(bytes, at + i);
    return number;
}

OpenMedia::OpenMedia(std::string_view drivePath)
{
    const int opened = open(hostPath(drivePath).c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (opened < 0)
        return;
    std::shared_ptr<const int> closing(new int(opened), [](const int *held) {
        close(*held);
        delete held;
    });
    struct stat status;
    if (fstat(opened, &status) != 0 || !S_ISREG(status.st_mode))
        return;
    constexpr std::int64_t nanoseconds = 1'000'000'000;
    found = {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
             status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec};
    file = std::move(closing);
}

ByteSource OpenMedia::source() const
{
    return [held = file](std::uint64_t offset, std::size_t length) { return readAt(*held, offset, length); };
}

} // namespace corvanta
