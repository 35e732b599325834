#pragma once

#include "platform/picture_header.h"
#include "platform/pictures.h"
#include "platform/worker.h"

#include <atomic>
#include <chrono>
#include <compare>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// The pixels of pictures: decoded when they are first painted, by a thread of their own, and dropped when others need
// the room.
namespace corvanta {

// What all pictures may take together, with the one that is being decoded.
inline constexpr std::uint64_t mostPictureBytes = 2 * mostDecodedBytes;

// A picture file of one version.
struct PictureFile : Picture {
    std::string path; // drive path
    FileVersion version;
    std::uint64_t decodedBytes = 0;               // as its header tells
    std::uint64_t number = 0;                     // of this record, never given again
    mutable std::atomic<bool> unreadable = false; // its pixels could not be decoded
};

// Pixels in the toolkit's form, in a record derived from this one.
struct Pixels {
    std::uint64_t bytes = 0;
    virtual ~Pixels() = default;
};
using PixelsPtr = std::shared_ptr<const Pixels>;

// What is kept of a picture: all of it, or a part of it as large as it is shown.
struct PictureView {
    int left = 0, top = 0, width = 0, height = 0; // the part, in pixels of the picture; no width: the whole picture
    int shownWidth = 0, shownHeight = 0;          // pixels of the screen

    bool whole() const { return width == 0; }
    auto operator<=>(const PictureView &) const = default;
};

enum class Decoding { InBackground, AtOnce };

class PictureCache {
public:
    // Gives a view of a file; none when it cannot. Called by the cache's thread, or by who paints (AtOnce).
    using Decoder = std::function<PixelsPtr(const PictureFile &, const PictureView &)>;

    // Keeps pixels of so many bytes at most.
    PictureCache(Decoder decode, std::uint64_t mostKept, Decoding how = Decoding::InBackground);
    // Waits for the picture that is being decoded; the others are not decoded any more.
    ~PictureCache();

    // A file's picture: the same record as long as the file stays what it is and somebody keeps the record. None when
    // the header is no good.
    PicturePtr load(const std::string &drivePath);

    // The pixels of a view. None while they are not decoded; pictureEvents() tells when they are.
    PixelsPtr shown(const PicturePtr &picture, const PictureView &view);

    // While this is set, pixels that gave room to others are not decoded again: painting what has arrived must not
    // begin a round of pictures that push each other out.
    void paintsArrival(bool on) { arrivalIsPainted = on; }

    // Waits until all that was asked for is decoded, for so long at most. False when some is left.
    bool finish(std::chrono::milliseconds longest);
    // What was asked for and is not begun will not be decoded.
    void cancel();

    std::uint64_t keptBytes() const;

private:
    using Key = std::pair<std::uint64_t, PictureView>; // of the picture's number
    struct Entry {
        PixelsPtr pixels;
        bool awaited = false, dropped = false;
        std::uint64_t lastShown = 0;
    };
    struct Request {
        std::weak_ptr<const PictureFile> file;
        PictureView view;
    };
    struct State { // shared with the records, which tell it of their end
        std::mutex lock;
        std::map<std::pair<std::string, FileVersion>, std::weak_ptr<const PictureFile>> files;
        std::map<Key, Entry> entries;
        std::vector<Request> requests; // the last one is decoded first: it is what the user looks at
        std::uint64_t kept = 0;        // bytes
    };

    static void forget(State &state, const PictureFile &file);
    PicturePtr newRecord(const std::string &drivePath, const FileVersion &version, const PictureHeader &header);
    void decodeLast();
    void keep(const PictureFile &file, const PictureView &view, const PixelsPtr &pixels);
    void makeRoom(std::uint64_t bytes);

    const Decoder decoder;
    const std::uint64_t most;
    const Decoding decoding;
    std::uint64_t shows = 0, records = 0;
    bool arrivalIsPainted = false;
    const std::shared_ptr<State> state = std::make_shared<State>();
    std::optional<Worker> worker; // begins with the first picture; the last member, so that it ends first
};

} // namespace corvanta
