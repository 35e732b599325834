#pragma once

#include "tests/support/temporary_drive.h"

#include <vector>

// The sample files of tests/data.
namespace corvanta::samples {

inline std::filesystem::path folder() { return std::filesystem::path(CORVANTA_TEST_DATA) / "pages"; }

inline std::string sample(const std::string &name) { return hostBytes(folder() / name); }

// Page files that the editor writes back byte for byte: current version, undamaged.
inline std::vector<std::string> currentPages()
{
    return {"empty.ods", "hitlist.ods", "largest.ods", "menu.ods", "query.ods", "record.ods", "view.ods"};
}

} // namespace corvanta::samples
