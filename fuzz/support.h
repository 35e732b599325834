#pragma once

#include "document/page.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

// What the fuzz targets share.
namespace corvanta {

inline std::string_view bytesOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), size};
}

// Takes the bytes up to the next zero off the front.
std::string_view takePart(std::string_view &bytes);

// Ends the program with the promise that does not hold.
void require(bool holds, const char *promise);

// A folder of this run, removed at its end. It is the root of drive C:, the user's home and what the profile, state
// and run time folders lie in.
const std::filesystem::path &scratchFolder();

// A text of this run that stands in scratchFolder()/secret.txt and nowhere below it. It is compared by a sum: the
// fuzzer learns what it sees compared, and would write the secret itself.
const std::string &secretText();
bool holdsSecret(std::string_view text);

Page pageOf(std::string_view bytes);

} // namespace corvanta
