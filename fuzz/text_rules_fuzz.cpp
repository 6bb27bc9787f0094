// The trims on any bytes: no crash, and the properties every reader relies on.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "store/text_rules.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace qb::store;
    const std::string input(reinterpret_cast<const char*>(data), size);

    std::string value = input;
    TrimTableValue(value);
    std::string again = value;
    TrimTableValue(again);
    if (again != value) std::abort();  // a trimmed value has nothing left to trim
    if (value.size() > input.size() || input.find(value) == std::string::npos) std::abort();

    for (bool keep : {false, true}) {
        std::string key = input;
        TrimTableKey(key, keep);
        if (key.size() > input.size() + 1) std::abort();
    }
    const std::string blanks = TrimBlanks(input);
    if (!blanks.empty() && (blanks.front() == ' ' || blanks.back() == ' ')) std::abort();
    for (const char* delimiter : {"=", "*", "==", ""}) {
        size_t total = 0;
        const auto fields = SplitAll(input, delimiter);
        for (auto field : fields)
            total += field.size();
        const size_t cuts = fields.empty() ? 0 : fields.size() - 1;
        if (total + cuts * std::string(delimiter).size() != input.size()) std::abort();
    }
    (void)IsNumericallyOne(input);
    return 0;
}
