#include "document/recovery.h"

#include "document/encoding.h"
#include "document/events.h"
#include "document/file_state.h"
#include "document/history.h"
#include "document/media.h"
#include "document/page.h"
#include "document/page_file.h"
#include "platform/asking.h"
#include "platform/environment.h"
#include "platform/host_files.h"
#include "platform/worker.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvanta {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view magic = "CORVANTA RECOVERY 1\n";
constexpr std::uintmax_t longestFile = 1 << 20; // bytes
constexpr std::chrono::milliseconds longestFlush(500);

struct Recovery {
    fs::path file; // its lock has the extension "lock"
    std::shared_ptr<void> lock;
    std::function<void(Job)> soon;
    bool waiting = false; // a job of soon's is on its way
    EventConnections listening;
    std::unique_ptr<Worker> writer;
};
std::optional<Recovery> recovery;

// Locks a lock file; none when another editor holds it. The lock goes with the last copy of the result.
std::shared_ptr<void> lockOf(fs::path file, int flags)
{
    file.replace_extension("lock");
    const int fd = open(file.c_str(), flags | O_RDWR | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (fd < 0)
        return {};
    struct stat locked, named; // another editor may have removed the file since it was opened
    if (flock(fd, LOCK_EX | LOCK_NB) != 0 || fstat(fd, &locked) != 0 || stat(file.c_str(), &named) != 0 ||
        locked.st_ino != named.st_ino) {
        close(fd);
        return {};
    }
    return {new int(fd), [](void *held) {
                close(*static_cast<int *>(held));
                delete static_cast<int *>(held);
            }};
}

void removeFiles(fs::path file)
{
    std::error_code ignored;
    fs::remove(file, ignored);
    fs::remove(file.replace_extension("lock"), ignored);
}

// Renamed into place, so that there is never half a page. Not flushed: it is against the end of the program.
void writeFile(const fs::path &file, const std::string &bytes)
{
    fs::path half = file;
    half.replace_extension("half");
    const int fd = open(half.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (fd < 0)
        return;
    std::string_view left = bytes;
    while (!left.empty()) {
        const ssize_t written = write(fd, left.data(), left.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            break;
        left.remove_prefix(static_cast<std::size_t>(written));
    }
    close(fd);
    if (!left.empty() || rename(half.c_str(), file.c_str()) != 0)
        unlink(half.c_str());
}

// In one piece, so that no copy of the page's password is left in memory that was grown out of.
std::string recoveryText()
{
    const std::int64_t now = std::time(nullptr);
    const std::string head = std::string(magic) + encodeString(editing().filetag) + encodeString(editing().curdir) +
                             encodeString(rememberedStamp()) + encodeInt32(static_cast<std::int32_t>(now >> 32)) +
                             encodeInt32(static_cast<std::int32_t>(now));
    const std::string &page = wholeActBytes();
    std::string text;
    text.reserve(head.size() + page.size());
    return text.append(head).append(page);
}

void update()
{
    if (!recovery)
        return;
    recovery->waiting = false;
    const fs::path file = recovery->file;
    if (editing().pagedirty)
        recovery->writer->post([file, bytes = recoveryText()]() mutable {
            writeFile(file, bytes);
            wipe(bytes);
        });
    else
        recovery->writer->post([file] { unlink(file.c_str()); });
}

void updateSoon()
{
    if (!recovery || recovery->waiting)
        return;
    recovery->waiting = true;
    recovery->soon(update);
}

void listen(EventConnections &connections)
{
    DocumentEvents &events = documentEvents();
    connections.add(events.edited, [](std::string_view) { updateSoon(); });
    connections.add(events.pageRestored, [](const Page &) { updateSoon(); });
    connections.add(events.clean, update);
}

std::optional<LostPage> lostPageOf(std::string_view text)
{
    if (!text.starts_with(magic))
        return {};
    text.remove_prefix(magic.size());
    LostPage lost;
    lost.filetag = decodeString(text);
    lost.curdir = decodeString(text);
    lost.stamp = decodeString(text);
    const auto high = static_cast<std::uint32_t>(decodeInt32(text)),
               low = static_cast<std::uint32_t>(decodeInt32(text));
    lost.time = static_cast<std::int64_t>(std::uint64_t{high} << 32 | low);
    lost.bytes = text;
    return lost.bytes.empty() ? std::nullopt : std::optional(std::move(lost));
}

std::optional<LostPage> readLost(const fs::path &file)
{
    FileContent content = readHostFile(file, longestFile);
    std::optional<LostPage> lost = lostPageOf(content.bytes);
    wipe(content.bytes);
    if (lost)
        lost->file = file;
    return lost;
}

void removeHalf(const fs::path &file)
{
    std::error_code ignored;
    fs::remove(file, ignored);
}

// What an editor that died before its first edit has left.
void removeIdleLock(const fs::path &file)
{
    fs::path page = file;
    std::error_code ignored;
    if (!fs::exists(page.replace_extension("page"), ignored) && lockOf(file, 0))
        fs::remove(file, ignored);
}

} // namespace

fs::path recoveryFolder()
{
    const fs::path state = environmentValue("XDG_STATE_HOME"), home = environmentValue("HOME");
    if (state.is_absolute())
        return state / "corvanta";
    return home.empty() ? fs::path() : home / ".local/state/corvanta";
}

void startRecovery(const fs::path &folder, std::function<void(Job)> soon)
{
    recovery.reset();
    std::error_code error;
    fs::create_directories(folder, error);
    fs::permissions(folder, fs::perms::owner_all, error);
    if (folder.empty() || error)
        return;
    Recovery started;
    for (int number = 0; !started.lock && number < 1000; ++number) {
        started.file = folder / (std::to_string(getpid()) + '-' + std::to_string(number) + ".page");
        if (!fs::exists(started.file, error)) // a dead editor had the same number
            started.lock = lockOf(started.file, O_CREAT);
    }
    if (!started.lock)
        return;
    started.soon = std::move(soon);
    started.writer = std::make_unique<Worker>();
    recovery = std::move(started);
    listen(recovery->listening);
}

void flushRecovery()
{
    if (!recovery)
        return;
    update();
    recovery->writer->finish(longestFlush);
}

void stopRecovery(RecoveryFile file)
{
    if (!recovery)
        return;
    recovery->listening.clear();
    if (file == RecoveryFile::Keep && editing().pagedirty)
        flushRecovery();
    else
        recovery->writer->post([page = recovery->file] { removeFiles(page); });
    recovery->writer->finish(longestFlush);
    recovery.reset();
}

std::vector<LostPage> lostPages(const fs::path &folder)
{
    std::vector<LostPage> lost;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        const fs::path &file = entry->path();
        if (file.extension() == ".lock")
            removeIdleLock(file);
        if (file.extension() == ".half" && lockOf(file, 0)) // its writer died
            removeHalf(file);
        if (file.extension() != ".page")
            continue;
        const auto lock = lockOf(file, O_CREAT);
        auto page = lock ? readLost(file) : std::nullopt;
        if (!page)
            continue;
        page->lock = lock;
        lost.push_back(std::move(*page));
    }
    std::ranges::sort(lost, {}, &LostPage::time);
    return lost;
}

void recoverPage(const LostPage &lost)
{
    newPage();
    const CollectedMessages collected;
    editing().filetag = lost.filetag;
    editing().curdir = lost.curdir;
    documentEvents().fileChanged();
    parsePage(page(), lost.bytes);
    rememberFile(lost.filetag, lost.stamp);
    noteDamageOfFile(lost.filetag);
    loadPageMedia();
    editing().pagedirty = true;
    resetHistory(FirstState::Unsaved); // there is nothing before it that could be meant
    flushRecovery();
    removeFiles(lost.file);
}

LostPage::~LostPage() { wipe(bytes); }

void discardLostPage(const LostPage &lost) { removeFiles(lost.file); }

} // namespace corvanta
