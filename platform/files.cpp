#include "platform/files.h"

#include "platform/codepage.h"
#include "platform/host_files.h"
#include "platform/paths.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace corvanta {

namespace {

constexpr int noError = 0;
constexpr int temporaryNameTries = 100;
constexpr std::string_view strayPrefix = ".corvanta-";
constexpr std::time_t youngest = 10; // seconds: a writer that has just made its file has not locked it yet

// An open file; closed at the end.
class Descriptor {
public:
    explicit Descriptor(int opened = -1) : fd(opened) {}
    Descriptor(Descriptor &&other) noexcept : fd(std::exchange(other.fd, -1)) {}
    Descriptor &operator=(Descriptor &&) = delete;
    ~Descriptor() { close(); }

    explicit operator bool() const { return fd >= 0; }
    int get() const { return fd; }

    int close()
    {
        const int closing = std::exchange(fd, -1);
        return closing >= 0 && ::close(closing) != 0 && errno != EINTR ? errno : noError;
    }

private:
    int fd;
};

struct TemporaryFile {
    Descriptor file;
    std::filesystem::path name;
    int error = noError; // why it could not be opened
};

std::string description(int error) { return fromUtf8Lossy(std::system_category().message(error)); }

int errorOf(int result) { return result < 0 ? errno : noError; }

int irregularFileError(const struct stat &status)
{
    if (S_ISREG(status.st_mode))
        return noError;
    return S_ISDIR(status.st_mode) ? EISDIR : EOPNOTSUPP;
}

// Appends at most limit + 1 bytes.
int readUpTo(int fd, std::uintmax_t limit, std::string &bytes)
{
    std::array<char, 65536> chunk;
    while (bytes.size() <= limit) {
        const std::uintmax_t wanted = std::min<std::uintmax_t>(chunk.size() - 1, limit - bytes.size()) + 1;
        const ssize_t count = read(fd, chunk.data(), wanted);
        if (count == 0)
            return noError;
        if (count > 0)
            bytes.append(chunk.data(), static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return errno;
    }
    return noError;
}

int writeAll(int fd, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = write(fd, bytes.data(), bytes.size());
        if (count > 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (count == 0)
            return EIO;
        else if (errno != EINTR)
            return errno;
    }
    return noError;
}

// The file that a chain of symbolic links ends at, whether it exists or not.
std::filesystem::path followLinks(std::filesystem::path file)
{
    std::error_code error;
    for (int links = 0; links < 40 && std::filesystem::is_symlink(file, error); ++links)
        file = file.parent_path() / std::filesystem::read_symlink(file, error);
    return file;
}

std::string randomName()
{
    static thread_local std::random_device random;
    constexpr char digits[] = "0123456789abcdef";
    std::string name(strayPrefix);
    for (int i = 0; i < 16; ++i)
        name += digits[random() % 16];
    return name;
}

TemporaryFile openTemporary(const std::filesystem::path &folder)
{
    for (int i = 0; i < temporaryNameTries; ++i) {
        const std::filesystem::path name = folder / randomName();
        Descriptor file(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
        if (file) {
            flock(file.get(), LOCK_EX | LOCK_NB); // tells it from those of dead writers
            return {std::move(file), name};
        }
        if (errno != EEXIST)
            break;
    }
    return {Descriptor(), {}, errno};
}

// The owner is kept where the system allows it; the mode must be.
int takeOver(int fd, const struct stat &target)
{
    if (fchown(fd, target.st_uid, target.st_gid) != 0)
        static_cast<void>(fchown(fd, static_cast<uid_t>(-1), target.st_gid) == 0);
    return errorOf(fchmod(fd, target.st_mode & 0777));
}

void flushFolder(const std::filesystem::path &folder)
{
    const Descriptor directory(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory)
        fsync(directory.get());
}

// Over the old bytes, for a file whose folder takes no new one. The room is taken first, so that a full disk
// leaves the file as it was.
int writeInPlace(const std::filesystem::path &target, std::string_view bytes)
{
    Descriptor file(open(target.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status;
    if (!file || fstat(file.get(), &status) != 0)
        return errno;
    const auto length = static_cast<off_t>(bytes.size());
    int error = length > status.st_size ? posix_fallocate(file.get(), 0, length) : noError;
    if (error != noError) {
        static_cast<void>(ftruncate(file.get(), status.st_size) == 0);
        return error;
    }
    error = writeAll(file.get(), bytes);
    if (error == noError)
        error = errorOf(ftruncate(file.get(), length));
    if (error == noError)
        error = errorOf(fsync(file.get()));
    const int closing = file.close();
    return error != noError ? error : closing;
}

// The mode that a new file of the user's gets.
mode_t usualMode()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

int fillTemporary(Descriptor &file, std::string_view bytes, const struct stat *target, FileMode mode)
{
    int error = writeAll(file.get(), bytes);
    if (error == noError && target == nullptr && mode == FileMode::Usual)
        error = errorOf(fchmod(file.get(), usualMode()));
    if (error == noError && target != nullptr)
        error = takeOver(file.get(), *target);
    if (error == noError)
        error = errorOf(fsync(file.get()));
    const int closing = file.close();
    return error != noError ? error : closing;
}

// In a sticky folder, on a mount point, on another device.
bool renamingRefused(int error) { return error == EPERM || error == EACCES || error == EBUSY || error == EXDEV; }

int replaceFile(const std::filesystem::path &file, std::string_view bytes, FileMode mode)
{
    const std::filesystem::path target = followLinks(file);
    struct stat status;
    const bool exists = stat(target.c_str(), &status) == 0;
    if (!exists && errno != ENOENT)
        return errno;
    if (exists && irregularFileError(status) != noError)
        return irregularFileError(status);
    TemporaryFile temporary = openTemporary(target.parent_path());
    if (!temporary.file) {
        const bool closedFolder = temporary.error == EACCES || temporary.error == EPERM || temporary.error == EROFS;
        return exists && closedFolder ? writeInPlace(target, bytes) : temporary.error;
    }
    int error = fillTemporary(temporary.file, bytes, exists ? &status : nullptr, mode);
    if (error == noError)
        error = errorOf(rename(temporary.name.c_str(), target.c_str()));
    if (exists && renamingRefused(error)) {
        error = writeInPlace(target, bytes); // the temporary file keeps the new bytes until the target has them
        unlink(temporary.name.c_str());
        return error;
    }
    if (error != noError)
        unlink(temporary.name.c_str());
    else
        flushFolder(target.parent_path());
    return error;
}

} // namespace

FileContent readHostFile(const std::filesystem::path &file, std::uintmax_t limit)
{
    FileContent content;
    const Descriptor opened(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status;
    if (!opened || fstat(opened.get(), &status) != 0) {
        const int reason = errno;
        std::error_code unknown;
        content.missing = reason == ENOENT || reason == ENOTDIR;
        if (!content.missing || !std::filesystem::is_directory(absolute(file).parent_path(), unknown))
            content.error = description(reason);
        return content;
    }
    int error = irregularFileError(status);
    if (error == noError) {
        content.length = static_cast<std::uintmax_t>(status.st_size);
        if (content.length <= limit)
            error = readUpTo(opened.get(), limit, content.bytes);
        content.length = std::max<std::uintmax_t>(content.length, content.bytes.size());
        content.tooLarge = content.length > limit;
    }
    if (error != noError)
        content.error = description(error);
    if (error != noError || content.tooLarge)
        content.bytes.clear();
    return content;
}

std::optional<std::string> writeHostFileAtomically(const std::filesystem::path &file, std::string_view bytes,
                                                   FileMode mode)
{
    const int error = replaceFile(file, bytes, mode);
    if (error == noError)
        return std::nullopt;
    return description(error);
}

FileContent readFile(std::string_view drivePath, std::uintmax_t limit)
{
    return readHostFile(hostPath(drivePath), limit);
}

std::optional<std::string> writeFileAtomically(std::string_view drivePath, std::string_view bytes, FileMode mode)
{
    return writeHostFileAtomically(hostPath(drivePath), bytes, mode);
}

void removeStrayFiles(std::string_view directory)
{
    std::error_code error;
    std::filesystem::directory_iterator entry(hostPath(directory), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::filesystem::path &file = entry->path();
        if (!file.filename().native().starts_with(strayPrefix))
            continue;
        const Descriptor opened(open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        struct stat status;
        if (opened && fstat(opened.get(), &status) == 0 && S_ISREG(status.st_mode) &&
            std::time(nullptr) - status.st_mtime > youngest && flock(opened.get(), LOCK_EX | LOCK_NB) == 0)
            unlink(file.c_str());
    }
}

bool othersMayRead(std::string_view drivePath)
{
    struct stat status;
    return stat(hostPath(drivePath).c_str(), &status) == 0 && (status.st_mode & (S_IRGRP | S_IROTH)) != 0;
}

void wipe(std::string &secret)
{
    explicit_bzero(secret.data(), secret.size());
    secret.clear();
}

void takeFileErrorsAsErrors()
{
    struct sigaction ignored {};
    ignored.sa_handler = SIG_IGN;
    sigaction(SIGXFSZ, &ignored, nullptr);
}

} // namespace corvanta
