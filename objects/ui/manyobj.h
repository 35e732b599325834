#pragma once

#include <cstdint>
#include <vector>

namespace corvanta {

// "Properties of N Objects": the fields that two or more objects of the process-wide page have in common. A field whose
// values differ is empty and says so until it is changed; OK changes only what was changed in the window.
void OpenSharedProperties(const std::vector<std::int16_t> &indices);

} // namespace corvanta
