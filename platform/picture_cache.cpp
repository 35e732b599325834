#include "platform/picture_cache.h"

#include "platform/post.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr std::uint64_t mostFileBytes = 64 << 20;

void tellOnEventLoop(const std::weak_ptr<const PictureFile> &file)
{
    postToEventLoop([file] {
        const auto picture = file.lock();
        if (!picture)
            return;
        if (picture->unreadable)
            pictureEvents().unreadable(*picture);
        else
            pictureEvents().arrived(*picture);
    });
}

} // namespace

PictureCache::PictureCache(Decoder decode, std::uint64_t mostKept, Decoding how)
    : decoder(std::move(decode)), most(mostKept), decoding(how)
{
}

PictureCache::~PictureCache() { cancel(); }

void PictureCache::cancel()
{
    const std::lock_guard guard(state->lock);
    state->requests.clear();
}

void PictureCache::forget(State &state, const PictureFile &file)
{
    const std::lock_guard guard(state.lock);
    const auto found = state.files.find({file.path, file.version});
    if (found != state.files.end() && found->second.expired())
        state.files.erase(found);
    const auto first = state.entries.lower_bound({file.number, PictureView{}});
    auto last = first;
    for (; last != state.entries.end() && last->first.first == file.number; ++last)
        state.kept -= last->second.pixels ? last->second.pixels->bytes : 0;
    state.entries.erase(first, last);
}

PicturePtr PictureCache::newRecord(const std::string &drivePath, const FileVersion &version,
                                   const PictureHeader &header)
{
    auto record = std::make_unique<PictureFile>();
    record->width = header.width;
    record->height = header.height;
    record->path = drivePath;
    record->version = version;
    record->decodedBytes = header.decodedBytes;
    record->number = ++records;
    return {record.release(), [of = std::weak_ptr(state)](const PictureFile *ended) {
                if (const auto cache = of.lock())
                    forget(*cache, *ended);
                delete ended;
            }};
}

PicturePtr PictureCache::load(const std::string &drivePath)
{
    const OpenMedia file(drivePath);
    if (!file || file.version().size > mostFileBytes)
        return nullptr;
    const std::pair key(drivePath, file.version());
    std::shared_ptr<const PictureFile> known; // may be the last owner, whose end takes the lock
    {
        const std::lock_guard guard(state->lock);
        if (const auto found = state->files.find(key); found != state->files.end())
            known = found->second.lock();
    }
    if (known && !known->unreadable)
        return known;
    const auto header = pictureHeader(file.source());
    if (!header)
        return nullptr;
    const PicturePtr record = newRecord(drivePath, file.version(), *header);
    const std::lock_guard guard(state->lock);
    state->files[key] = std::static_pointer_cast<const PictureFile>(record);
    return record;
}

PixelsPtr PictureCache::shown(const PicturePtr &picture, const PictureView &view)
{
    const auto file = std::dynamic_pointer_cast<const PictureFile>(picture);
    if (!file || file->unreadable)
        return nullptr;
    {
        const std::lock_guard guard(state->lock);
        Entry &entry = state->entries[{file->number, view}];
        entry.lastShown = ++shows;
        if (entry.pixels || entry.awaited || (entry.dropped && arrivalIsPainted))
            return entry.pixels;
        entry.awaited = true;
        state->requests.push_back({file, view});
    }
    if (decoding == Decoding::InBackground) {
        if (!worker)
            worker.emplace();
        worker->post([this] { decodeLast(); });
        return nullptr;
    }
    decodeLast();
    const std::lock_guard guard(state->lock);
    return state->entries[{file->number, view}].pixels;
}

// What nobody wants any more is left out.
void PictureCache::decodeLast()
{
    Request request;
    {
        const std::lock_guard guard(state->lock);
        if (state->requests.empty())
            return;
        request = std::move(state->requests.back());
        state->requests.pop_back();
    }
    const auto file = request.file.lock();
    if (!file)
        return;
    const PixelsPtr pixels = file->unreadable ? nullptr : decoder(*file, request.view);
    file->unreadable = !pixels;
    keep(*file, request.view, pixels);
    if (decoding == Decoding::InBackground)
        tellOnEventLoop(file);
}

void PictureCache::keep(const PictureFile &file, const PictureView &view, const PixelsPtr &pixels)
{
    const std::lock_guard guard(state->lock);
    Entry &entry = state->entries[{file.number, view}];
    entry.awaited = false;
    if (!pixels)
        return;
    makeRoom(pixels->bytes);
    entry.pixels = pixels;
    state->kept += pixels->bytes;
}

// Drops what was not shown for the longest time.
void PictureCache::makeRoom(std::uint64_t bytes)
{
    while (state->kept > 0 && state->kept + bytes > most) {
        Entry *oldest = nullptr;
        for (auto &[key, entry] : state->entries)
            if (entry.pixels && (!oldest || entry.lastShown < oldest->lastShown))
                oldest = &entry;
        if (!oldest)
            return;
        state->kept -= oldest->pixels->bytes;
        oldest->pixels = nullptr;
        oldest->dropped = true;
    }
}

bool PictureCache::finish(std::chrono::milliseconds longest) { return !worker || worker->finish(longest); }

std::uint64_t PictureCache::keptBytes() const
{
    const std::lock_guard guard(state->lock);
    return state->kept;
}

} // namespace corvanta
