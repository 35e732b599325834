#pragma once

#include "platform/post.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// The page's unsaved changes in a file of the user's state directory, against crashes and log-outs. The file of an
// editor that lives is locked; what a dead one left is offered at the next start.
namespace corvanta {

// The folder of recovery files: $XDG_STATE_HOME/corvanta, else ~/.local/state/corvanta. A host path.
std::filesystem::path recoveryFolder();

// Keeps the recovery file of the process-wide page up to date from now on: written soon after an edit, removed when the
// page has no changes. soon carries a job out once, within a second. The file is written by a thread; a folder that
// cannot be used means that there is none.
void startRecovery(const std::filesystem::path &folder, std::function<void(Job)> soon);

// Writes what is not yet written, waiting half a second at most.
void flushRecovery();

enum class RecoveryFile { Remove, Keep };
void stopRecovery(RecoveryFile file);

// A page that a dead editor left. It stays locked while this lives, so that no second editor offers it.
struct LostPage {
    std::string filetag;   // drive path of its file; empty for a new page
    std::string curdir;    // its page directory
    std::string stamp;     // what its file was when the dead editor last read or wrote it
    std::int64_t time = 0; // when it was written, seconds since 1970
    std::string bytes;     // of the page
    std::filesystem::path file;
    std::shared_ptr<void> lock;

    LostPage() = default;
    LostPage(LostPage &&) = default;
    LostPage &operator=(LostPage &&) = default;
    ~LostPage(); // wipes the bytes, which may hold a password
};

// In the order of their times. Damaged files are no pages; they stay.
std::vector<LostPage> lostPages(const std::filesystem::path &folder);

// Opens a lost page as a changed page of its own file, and removes its recovery file.
void recoverPage(const LostPage &lost);
void discardLostPage(const LostPage &lost);

} // namespace corvanta
