#pragma once

#include "preview/request.h"

#include <httplib.h>
#include <string_view>

// Forms as browsers send them.
namespace corvanta {

inline constexpr std::size_t bodyLimit = 4 << 20; // bytes of a request's body

// The values of "application/x-www-form-urlencoded"; what is beyond a thousand values is left out.
std::vector<FormValue> urlEncodedValues(std::string_view text);

enum class BodyReading { Done, TooLarge, Malformed };

// Reads the body of a request into its form values and files. Contents of files are counted, not kept.
BodyReading readForm(const httplib::Request &request, const httplib::ContentReader &reader, PreviewRequest &plain);

} // namespace corvanta
