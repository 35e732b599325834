#pragma once

#include "platform/media_source.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace corvanta {

// What all sounds that are mixed with each other may take together, decoded for the device.
inline constexpr std::uint64_t mostSoundBytes = 64 << 20;

enum class SoundFormat { Wave, Aiff, Midi, Ogg, Flac, Mpeg };

// By content. None for what is no sound that can be played: an unknown format, a cut header, a Wave file of an odd
// rate or number of channels. Reads a few bytes.
std::optional<SoundFormat> soundFormat(const ByteSource &source);

// The longest that a whole sound file in memory can last, whatever its headers claim.
struct SoundLength {
    std::uint64_t frames = 0; // samples of one channel
    std::uint32_t rate = 1;   // frames a second, lowestRate to highestRate
};
inline constexpr std::uint32_t lowestRate = 1000, highestRate = 384000;

// None when that cannot be told without decoding it: such a sound is streamed.
std::optional<SoundLength> longestSound(std::string_view content);

// Whether a sound file in memory finds room among those that play, which take so many bytes, while it is decoded for a
// device that takes so many bytes a second.
bool mayBeMixed(std::string_view content, std::uint64_t bytesOfSecond, std::uint64_t playing);

} // namespace corvanta
