#include "platform/sound_header.h"

#include <gtest/gtest.h>

#include <string>

namespace corvanta {
namespace {

using std::string_literals::operator""s;

std::string little(std::uint64_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(value >> (8 * i));
    return text;
}

std::string wave(int encoding, int channels, int rate, int bits, const std::string &before = {})
{
    const std::string form = "fmt " + little(16, 4) + little(static_cast<std::uint64_t>(encoding), 2) +
                             little(static_cast<std::uint64_t>(channels), 2) +
                             little(static_cast<std::uint64_t>(rate), 4) + little(0, 6) +
                             little(static_cast<std::uint64_t>(bits), 2);
    return "RIFF\0\0\0\0WAVE"s + before + form + "data" + little(0xFFFFFFFF, 4) + std::string(1000, '\0');
}

std::string oggPage(int flags, const std::string &lacing, const std::string &body)
{
    return "OggS\0"s + static_cast<char>(flags) + std::string(20, '\0') + static_cast<char>(lacing.size()) + lacing +
           body;
}

std::string aiff(const std::string &rate)
{
    return "FORM\0\0\0\0AIFFCOMM\0\0\0\x12\0\2\0\0\0\1\0\x10"s + rate + std::string(6, '\0');
}

TEST(SoundHeaders, TellWhatCanBePlayedAndHowLongItLastsAtMost)
{
    constexpr std::uint64_t streamed = ~std::uint64_t{0};
    struct Case {
        const char *name;
        std::string content;
        std::uint64_t frames; // 0: cannot be played
        std::uint32_t rate;
    };
    const std::string head = "\x01vorbis\0\0\0\0\2"s,
                      start = head + little(44100, 4) + std::string(12, '\0') + "\xB8\1";
    const std::string vorbis = oggPage(2, "\x1E", start), opus = oggPage(2, "\x08", "OpusHead");
    const std::string slow = oggPage(2, "\x1E", head + little(1, 4) + std::string(12, '\0') + "\xB8\1");
    const Case cases[] = {
        {"stereo", wave(1, 2, 44100, 16), 262, 44100},
        {"two samples in a byte", wave(0x11, 1, 8000, 4), 2089, 8000},
        {"behind an odd chunk", wave(1, 1, 8000, 8, "LIST\3\0\0\0abc\0"s), 1057, 8000},
        {"one frame a second", wave(1, 2, 1, 16), 0, 0},
        {"no channel", wave(1, 0, 44100, 16), 0, 0},
        {"many channels", wave(1, 60000, 44100, 16), 0, 0},
        {"odd bits", wave(1, 1, 44100, 3), 0, 0},
        {"unknown encoding", wave(0x55, 1, 44100, 16), 0, 0},
        {"two forms", wave(1, 1, 44100, 16, wave(1, 1, 44100, 8).substr(12, 24)), 0, 0},
        {"vorbis", vorbis + oggPage(0, "\xFF\1\2"s, std::string(258, '.')), 6144, 44100},
        {"opus", opus + oggPage(4, "\0\0\0"s, ""), 23040, 48000},
        {"slow vorbis", slow, 0, 0},
        {"two streams", vorbis + slow, streamed, 0},
        {"something between pages", vorbis + "...." + oggPage(4, "\1", "."), streamed, 0},
        {"mpeg", "\xFF\xFB\x90\x64" + std::string(996, '\0'), 48000, 48000},
        {"mpeg with a tag", "ID3" + std::string(997, '\0'), 48000, 48000},
        {"aiff", aiff("\x40\x0E\xAC\x44"s), streamed, 0},
        {"slow aiff", aiff("\x3F\xFF\x80\0"s), 0, 0},
        {"endless aiff", aiff("\x7F\xFF\xFF\xFF"s), 0, 0},
        {"flac", "fLaC" + std::string(14, '\0') + "\x0A\xC4\x42"s, streamed, 0},
        {"midi", "MThd" + std::string(20, '\0'), streamed, 0},
        {"text", "hello, world", 0, 0},
        {"nothing", "", 0, 0},
    };
    for (const Case &each : cases) {
        EXPECT_EQ(soundFormat(sourceOf(each.content)).has_value(), each.frames != 0) << each.name;
        const auto longest = longestSound(each.content);
        EXPECT_EQ(longest.has_value(), each.frames != 0 && each.frames != streamed) << each.name;
        if (longest) {
            EXPECT_EQ(longest->frames, each.frames) << each.name;
            EXPECT_EQ(longest->rate, each.rate) << each.name;
        }
    }
}

TEST(SoundHeaders, TellWhatFindsRoomAmongWhatPlays)
{
    constexpr std::uint64_t second = 176400, megabyte = 1 << 20;
    const std::string samples(megabyte - 1100, '\0');
    struct Case {
        std::string content;
        std::uint64_t playing;
        bool mixed;
    };
    const Case cases[] = {
        {wave(1, 2, 44100, 16) + samples, 0, true},
        {wave(1, 2, 44100, 16) + samples, 57 * megabyte, false},
        {wave(1, 1, 8000, 8) + samples, 0, false},
        {wave(1, 1, 8000, 8), 63 * megabyte, true},
        {"\xFF\xFB\x90\x64" + samples.substr(0, megabyte / 8), 0, true},
        {"\xFF\xFB\x90\x64" + samples, 0, false},
        {aiff("\x40\x0E\xAC\x44"s), 0, false},
        {"hello, world", 0, false},
    };
    for (const Case &each : cases)
        EXPECT_EQ(mayBeMixed(each.content, second, each.playing), each.mixed) << each.content.size() << each.playing;
}

} // namespace
} // namespace corvanta
