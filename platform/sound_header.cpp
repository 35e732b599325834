#include "platform/sound_header.h"

#include <algorithm>
#include <string>

namespace corvanta {

namespace {

constexpr int mostChunks = 1000; // of a Wave file
constexpr std::uint32_t mostChannels = 8;

bool isRate(std::uint32_t rate) { return rate >= lowestRate && rate <= highestRate; }

struct WaveForm {
    std::uint32_t encoding = 0, channels = 0, rate = 0, bits = 0;

    // Bits of one frame; the packed encodings hold at most two samples in a byte. 0 for an unknown one.
    std::uint32_t bitsOfFrame() const
    {
        constexpr std::uint32_t plain = 1, adaptive = 2, real = 3, a = 6, mu = 7, adaptiveToo = 0x11, extended = 0xFFFE;
        const bool whole = bits == 8 || bits == 16 || bits == 24 || bits == 32;
        switch (encoding) {
        case plain:
        case real:
        case extended: return whole ? channels * bits : 0;
        case a:
        case mu: return channels * 8;
        case adaptive:
        case adaptiveToo: return channels * 4;
        default: return 0;
        }
    }
    bool playable() const { return channels >= 1 && channels <= mostChannels && isRate(rate) && bitsOfFrame() > 0; }
};

// The one chunk of a name, with its first bytes; none when there is another one before the end. Chunks behind the last
// one that matters are not looked at.
std::optional<std::string> onlyChunk(const ByteSource &source, std::string_view name, std::string_view last,
                                     std::uint32_t (*number)(std::string_view, std::size_t, std::size_t))
{
    constexpr std::size_t head = 8, looked = 32;
    std::optional<std::string> found;
    std::uint64_t at = 12;
    for (int i = 0; i < mostChunks; ++i) {
        std::string chunk = source(at, looked);
        const std::uint64_t length = number(chunk, 4, 4);
        if (chunk.size() < head || (!last.empty() && chunk.starts_with(last)))
            return found;
        at += head + length + length % 2;
        if (!chunk.starts_with(name))
            continue;
        if (found)
            return std::nullopt;
        found = chunk.substr(head);
    }
    return std::nullopt;
}

std::optional<WaveForm> waveForm(const ByteSource &source)
{
    const auto chunk = onlyChunk(source, "fmt ", "data", littleEndian);
    if (!chunk)
        return std::nullopt;
    const WaveForm form{littleEndian(*chunk, 0, 2), littleEndian(*chunk, 2, 2), littleEndian(*chunk, 4, 4),
                        littleEndian(*chunk, 14, 2)};
    return form.playable() ? std::optional(form) : std::nullopt;
}

// The rate is a number of 80 bits: its exponent and the upper half of its digits are enough.
bool isPlayableAiff(const ByteSource &source)
{
    const auto chunk = onlyChunk(source, "COMM", {}, bigEndian);
    const std::uint32_t channels = chunk ? bigEndian(*chunk, 0, 2) : 0;
    const std::uint32_t exponent = chunk ? bigEndian(*chunk, 8, 2) : 0;
    constexpr std::uint32_t whole = 0x3FFF + 31;
    return channels >= 1 && channels <= mostChannels && exponent <= whole && whole - exponent < 32 &&
           isRate(bigEndian(*chunk, 10, 4) >> (whole - exponent));
}

bool isMpegFrame(std::string_view bytes)
{
    const std::uint32_t head = bigEndian(bytes, 0, 4);
    const std::uint32_t version = head >> 19 & 3, layer = head >> 17 & 3, bitrate = head >> 12 & 15;
    return head >> 21 == 0x7FF && version != 1 && layer != 0 && bitrate != 0 && bitrate != 15 && (head >> 10 & 3) != 3;
}

// The lowest bit rate of the format for the whole file; what introduces it counts as sound.
SoundLength mpegLength(std::uint64_t bytes)
{
    constexpr std::uint32_t rate = 48000, lowestBytesOfSecond = 1000;
    return {bytes * (rate / lowestBytesOfSecond), rate};
}

// What one packet of an Ogg stream can hold, by the packet that begins the stream.
std::optional<SoundLength> oggPacket(std::string_view first)
{
    constexpr std::uint32_t opusRate = 48000, longestOpus = 5760;
    if (first.starts_with("OpusHead"))
        return SoundLength{longestOpus, opusRate};
    const std::uint32_t rate = littleEndian(first, 12, 4), block = bigEndian(first, 28, 1) >> 4;
    if (!first.starts_with("\x01vorbis") || !isRate(rate) || block > 13)
        return std::nullopt;
    return SoundLength{std::uint64_t{1} << block, rate};
}

// One stream of pages, without anything between them.
std::optional<SoundLength> oggLength(std::string_view content)
{
    constexpr std::size_t headLength = 27;
    std::optional<SoundLength> packet;
    std::uint64_t packets = 0;
    for (std::size_t at = 0; content.size() - at >= headLength;) {
        const std::string_view page = content.substr(at);
        const std::size_t segments = bigEndian(page, 26, 1);
        const bool begins = (bigEndian(page, 5, 1) & 2) != 0;
        if (!page.starts_with("OggS") || begins != (at == 0) || page.size() < headLength + segments)
            return std::nullopt;
        std::size_t length = headLength + segments;
        for (const char lacing : page.substr(headLength, segments)) {
            length += static_cast<unsigned char>(lacing);
            packets += static_cast<unsigned char>(lacing) < 255;
        }
        if (begins)
            packet = oggPacket(page.substr(headLength + segments));
        if (!packet)
            return std::nullopt;
        at += std::min(length, page.size());
    }
    return packet ? std::optional(SoundLength{packets * packet->frames, packet->rate}) : std::nullopt;
}

} // namespace

std::optional<SoundFormat> soundFormat(const ByteSource &source)
{
    const std::string start = source(0, 64);
    const std::string_view bytes = start, kind = bytes.substr(std::min<std::size_t>(8, bytes.size()), 4);
    const auto when = [](bool playable, SoundFormat format) { return playable ? std::optional(format) : std::nullopt; };
    if (bytes.starts_with("RIFF") && kind == "WAVE")
        return when(waveForm(source).has_value(), SoundFormat::Wave);
    if (bytes.starts_with("FORM") && (kind == "AIFF" || kind == "AIFC"))
        return when(isPlayableAiff(source), SoundFormat::Aiff);
    if (bytes.starts_with("MThd") || (bytes.starts_with("RIFF") && kind == "RMID"))
        return when(bytes.size() > 14, SoundFormat::Midi);
    if (bytes.starts_with("OggS"))
        return when(oggPacket(bytes.substr(std::min<std::size_t>(28, bytes.size()))).has_value(), SoundFormat::Ogg);
    if (bytes.starts_with("fLaC"))
        return when(isRate(bigEndian(bytes, 18, 3) >> 4), SoundFormat::Flac);
    return when(bytes.starts_with("ID3") || isMpegFrame(bytes), SoundFormat::Mpeg);
}

std::optional<SoundLength> longestSound(std::string_view content)
{
    const auto format = soundFormat(sourceOf(content));
    if (!format)
        return std::nullopt;
    switch (*format) {
    case SoundFormat::Wave: {
        const auto form = waveForm(sourceOf(content));
        return SoundLength{content.size() * 8 / form->bitsOfFrame() + 1, form->rate};
    }
    case SoundFormat::Mpeg: return mpegLength(content.size());
    case SoundFormat::Ogg: return oggLength(content);
    case SoundFormat::Aiff:
    case SoundFormat::Midi:
    case SoundFormat::Flac: break;
    }
    return std::nullopt;
}

// The mixer converts a Wave file in one piece that may be eight times as large as the result.
bool mayBeMixed(std::string_view content, std::uint64_t bytesOfSecond, std::uint64_t playing)
{
    constexpr std::uint64_t forWave = 8, forOthers = 2;
    const auto longest = longestSound(content);
    const std::uint64_t room = soundFormat(sourceOf(content)) == SoundFormat::Wave ? forWave : forOthers;
    return longest && longest->frames < mostSoundBytes &&
           room * (longest->frames * bytesOfSecond / longest->rate) + playing <= mostSoundBytes;
}

} // namespace corvanta
