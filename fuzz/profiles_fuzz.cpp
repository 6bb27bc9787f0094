// The hub's profile file in any form: every line's name, if any, is a part of the line.

#include <cstdint>
#include <cstdlib>

#include "fuzz_input.h"
#include "store/hub_profiles.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    for (const auto& line : qb::fuzz::LinesOf(data, size)) {
        const std::string name = qb::store::ProfileNameOf(line);
        if (!name.empty() &&
            (line.find(name) == std::string::npos || name.find('<', 1) != std::string::npos)) {
            std::abort();
        }
    }
    return 0;
}
